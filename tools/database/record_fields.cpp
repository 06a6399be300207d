// The tables of fields, and what is copied by them.
// SPDX-License-Identifier: MIT
#include "database/record_fields.h"

#include <vexil64.h>

#include <array>
#include <cmath>
#include <cstring>

namespace vexil::tool {
namespace {

constexpr RecordField Unsigned(std::string_view name, std::size_t offset) {
    return {name, FieldKind::Unsigned32, offset, sizeof(std::uint32_t)};
}

constexpr RecordField Signed(std::string_view name, std::size_t offset) {
    return {name, FieldKind::Signed32, offset, sizeof(std::int32_t)};
}

constexpr RecordField Number(std::string_view name, std::size_t offset) {
    return {name, FieldKind::Double, offset, sizeof(double)};
}

constexpr RecordField Text(std::string_view name, std::size_t offset, std::size_t size) {
    return {name, FieldKind::Text, offset, size};
}

constexpr std::array InfoTable = {Unsigned("protocolType", offsetof(DatabaseInfo, protocolType)),
                                  Unsigned("busType", offsetof(DatabaseInfo, busType))};

constexpr std::array MessageTable = {
    Unsigned("id", offsetof(CanMessageRecord, id)),
    Text("name", offsetof(CanMessageRecord, name), ShortTextSize),
    Unsigned("dlc", offsetof(CanMessageRecord, dlc)),
    Text("longName", offsetof(CanMessageRecord, longName), LongTextSize),
    Text("transmitter", offsetof(CanMessageRecord, transmitter), ShortTextSize),
    RecordField{"signalCount", FieldKind::Unsigned64, offsetof(CanMessageRecord, signalCount),
                sizeof(std::uint64_t)},
    Text("comment", offsetof(CanMessageRecord, comment), LongTextSize),
    Text("sendType", offsetof(CanMessageRecord, sendType), ShortTextSize),
    Signed("cycleTime", offsetof(CanMessageRecord, cycleTime))};

constexpr std::array SignalTable = {
    Text("name", offsetof(CanSignalRecord, name), ShortTextSize),
    Text("longName", offsetof(CanSignalRecord, longName), LongTextSize),
    Text("unit", offsetof(CanSignalRecord, unit), ShortTextSize),
    Text("receiverList", offsetof(CanSignalRecord, receiverList), LongTextSize),
    Text("comment", offsetof(CanSignalRecord, comment), LongTextSize),
    Unsigned("multiplexType", offsetof(CanSignalRecord, multiplexType)),
    Unsigned("multiplexValue", offsetof(CanSignalRecord, multiplexValue)),
    Unsigned("startBit", offsetof(CanSignalRecord, startBit)),
    Unsigned("bitLength", offsetof(CanSignalRecord, bitLength)),
    Unsigned("byteOrder", offsetof(CanSignalRecord, byteOrder)),
    Unsigned("valueType", offsetof(CanSignalRecord, valueType)),
    Number("factor", offsetof(CanSignalRecord, factor)),
    Number("offset", offsetof(CanSignalRecord, offset)),
    Number("minimum", offsetof(CanSignalRecord, minimum)),
    Number("maximum", offsetof(CanSignalRecord, maximum)),
    Unsigned("enumCount", offsetof(CanSignalRecord, enumCount)),
    Signed("startValue", offsetof(CanSignalRecord, startValue)),
    Signed("inactiveValue", offsetof(CanSignalRecord, inactiveValue)),
    Text("unitUtf8", offsetof(CanSignalRecord, unitUtf8), ShortTextSize)};

constexpr std::array DescriptionTable = {Signed("value", offsetof(CanEnumRecord, value)),
                                         Text("text", offsetof(CanEnumRecord, text), LongTextSize)};

constexpr std::array ErrorTable = {Unsigned("code", offsetof(ParseError, code)),
                                   Unsigned("line", offsetof(ParseError, line)),
                                   Text("text", offsetof(ParseError, text), LongTextSize)};

const char* PlaceOf(const RecordField& field, const void* record) {
    return static_cast<const char*>(record) + field.offset;
}

char* PlaceOf(const RecordField& field, void* record) {
    return static_cast<char*>(record) + field.offset;
}

template <typename Value>
Value Load(const RecordField& field, const void* record) {
    Value value{};
    std::memcpy(&value, PlaceOf(field, record), sizeof value);
    return value;
}

template <typename Value>
void Store(const RecordField& field, void* record, Value value) {
    std::memcpy(PlaceOf(field, record), &value, sizeof value);
}

}  // namespace

std::span<const RecordField> InfoFields() {
    return InfoTable;
}

std::span<const RecordField> MessageFields() {
    return MessageTable;
}

std::span<const RecordField> SignalFields() {
    return SignalTable;
}

std::span<const RecordField> DescriptionFields() {
    return DescriptionTable;
}

std::span<const RecordField> ErrorFields() {
    return ErrorTable;
}

std::string_view LoadText(const RecordField& field, const void* record) {
    const char* const text = PlaceOf(field, record);
    const void* const end = std::memchr(text, '\0', field.size);
    return {text, end == nullptr ? field.size
                                 : static_cast<std::size_t>(static_cast<const char*>(end) - text)};
}

void StoreText(const RecordField& field, void* record, std::string_view text) {
    char* const place = PlaceOf(field, record);
    text.copy(place, text.size());
    place[text.size()] = '\0';
}

std::int64_t LoadWhole(const RecordField& field, const void* record) {
    switch (field.kind) {
        case FieldKind::Unsigned32:
            return Load<std::uint32_t>(field, record);
        case FieldKind::Unsigned64:
            return static_cast<std::int64_t>(Load<std::uint64_t>(field, record));
        default:
            return Load<std::int32_t>(field, record);
    }
}

void StoreWhole(const RecordField& field, void* record, std::int64_t number) {
    switch (field.kind) {
        case FieldKind::Unsigned32:
            Store(field, record, static_cast<std::uint32_t>(number));
            break;
        case FieldKind::Unsigned64:
            Store(field, record, static_cast<std::uint64_t>(number));
            break;
        default:
            Store(field, record, static_cast<std::int32_t>(number));
            break;
    }
}

double LoadDouble(const RecordField& field, const void* record) {
    return Load<double>(field, record);
}

void StoreDouble(const RecordField& field, void* record, double number) {
    Store(field, record, number);
}

bool IsSameValue(const RecordField& field, const void* one, const void* other) {
    if (field.kind == FieldKind::Text) {
        return LoadText(field, one) == LoadText(field, other);
    }
    if (field.kind == FieldKind::Double) {
        const double left = LoadDouble(field, one);
        const double right = LoadDouble(field, other);
        const bool isSame = left == right || (std::isnan(left) && std::isnan(right));
        return isSame && std::signbit(left) == std::signbit(right);
    }
    return LoadWhole(field, one) == LoadWhole(field, other);
}

}  // namespace vexil::tool
