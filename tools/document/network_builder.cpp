// Appends records, and compares them with the records that the database then has.
// SPDX-License-Identifier: MIT
#include "document/network_builder.h"

#include <algorithm>
#include <set>

#include "database/record_fields.h"
#include "document/json_text.h"

namespace vexil::tool {
namespace {

// Returns the row of a field in its table.
std::size_t RowOf(std::span<const RecordField> fields, std::string_view name) {
    const auto isIt = [name](const RecordField& field) { return field.name == name; };
    return static_cast<std::size_t>(std::find_if(fields.begin(), fields.end(), isIt) -
                                    fields.begin());
}

bool Has(FieldSet given, std::size_t row) {
    return ((given >> row) & 1U) != 0;
}

// Gives one text field the value of another one if the document has only the latter.
template <typename Record>
void FillIn(Record& record, FieldSet given, std::span<const RecordField> fields,
            std::string_view name, std::string_view source) {
    const std::size_t from = RowOf(fields, source);
    if (!Has(given, RowOf(fields, name)) && Has(given, from)) {
        StoreText(fields[RowOf(fields, name)], &record, LoadText(fields[from], &record));
    }
}

// Where two texts part. A long text is shown from a little before that.
std::size_t StartOfDifference(std::string_view one, std::string_view other) {
    constexpr std::size_t Before = 20;
    const auto parted = std::mismatch(one.begin(), one.end(), other.begin(), other.end());
    auto start = static_cast<std::size_t>(parted.first - one.begin());
    start -= std::min(start, Before);
    const auto isInside = [&](std::string_view text) {
        return start < text.size() && (static_cast<unsigned char>(text[start]) & 0xC0U) == 0x80U;
    };
    while (start > 0 && isInside(one)) {
        --start;
    }
    return start;
}

std::string Became(const RecordField& field, const void* given, const void* made) {
    std::string was;
    std::string is;
    if (field.kind == FieldKind::Text) {
        const std::string_view one = LoadText(field, given);
        const std::string_view other = LoadText(field, made);
        const std::size_t start = StartOfDifference(one, other);
        const std::string_view dots = start == 0 ? "" : "...";
        was = std::string(dots) + JsonExcerpt(one.substr(start));
        is = std::string(dots) + JsonExcerpt(other.substr(start));
    } else {
        AppendJsonValue(was, field, given);
        AppendJsonValue(is, field, made);
    }
    return was + " became " + is;
}

// Adds a remark for each given field that differs.
//   kind  the path of such records without their indexes
void Compare(DocumentResult& result, std::string_view kind, const std::string& path,
             std::span<const RecordField> fields, FieldSet given, const void* record,
             const void* made) {
    for (std::size_t row = 0; row < fields.size(); ++row) {
        const RecordField& field = fields[row];
        if (!Has(given, row) || IsSameValue(field, record, made)) {
            continue;
        }
        std::string name = ".";
        name += field.name;
        Remarks& remarks = result.ChangesOf(std::string(kind) + name);
        if (remarks.HasRoom()) {
            remarks.Add(path + name, Became(field, record, made));
        } else {
            remarks.AddUnseen();
        }
    }
}

}  // namespace

SignalDraft::SignalDraft() {
    record.byteOrder = ByteOrderLittleEndian;
    record.factor = 1;
}

MessageDraft::MessageDraft() {
    constexpr std::uint32_t UsualSize = 8;
    record.dlc = UsualSize;
}

NetworkBuilder::NetworkBuilder(DocumentResult& documentResult) : result(documentResult) {
    VexilClearData();
    SetInfo({});
}

void NetworkBuilder::SetInfo(const DatabaseInfo& info) {
    VexilSetDatabaseInfo(&info, sizeof info);
}

void NetworkBuilder::Add(const MessageDraft& message) {
    CanMessageRecord record = message.record;
    FillIn(record, message.given, MessageFields(), "longName", "name");
    const std::string path = PathOfMessage(message.index);
    if (VexilAppendCanMessage(&record) == 0) {
        Refuse(path);
        return;
    }
    messageIndex = static_cast<std::uint32_t>(result.messages);
    ++result.messages;
    for (const SignalDraft& signal : message.signals) {
        AddSignal(message, signal);
    }
    CanMessageRecord made{};
    VexilGetCanMessageData(messageIndex, &made);
    Compare(result, "messages[]", path, MessageFields(), message.given, &message.record, &made);
}

void NetworkBuilder::AddSignal(const MessageDraft& message, const SignalDraft& signal) {
    CanSignalRecord record = signal.record;
    FillIn(record, signal.given, SignalFields(), "longName", "name");
    // An append reads the unit in UTF-8 from the field "unit".
    if (Has(signal.given, RowOf(SignalFields(), "unitUtf8"))) {
        std::copy(std::begin(record.unitUtf8), std::end(record.unitUtf8), std::begin(record.unit));
    }
    const std::string path = PathOfSignal(message.index, signal.index);
    std::uint32_t before = 0;
    VexilGetNumCanSignalsInCanMessage(messageIndex, &before);
    if (VexilAppendCanSignalToCanMessage(messageIndex, &record) == 0) {
        Refuse(path);
        return;
    }
    ++result.signals;
    AddDescriptions(path, before, signal);
    CanSignalRecord made{};
    VexilGetCanSignalData(messageIndex, before, &made);
    Compare(result, "messages[].signals[]", path, SignalFields(), signal.given, &signal.record,
            &made);
}

void NetworkBuilder::AddDescriptions(const std::string& path, std::uint32_t signalIndex,
                                     const SignalDraft& signal) {
    std::set<std::int32_t> values;
    for (const DescriptionDraft& each : signal.descriptions) {
        const std::string own = path + ".valueDescriptions[" + std::to_string(each.index) + "]";
        CanEnumRecord record{};
        record.value = each.value;
        each.text.copy(std::begin(record.text), LongTextSize - 1);
        if (VexilAppendEnumToCanSignal(messageIndex, signalIndex, &record) == 0) {
            Refuse(own);
        } else if (values.insert(each.value).second) {
            ++result.descriptions;
        } else {
            result.ChangesOf("messages[].signals[].valueDescriptions[].value")
                .Add(own + ".value", std::to_string(each.value) +
                                         " is described before; the two texts were joined");
        }
    }
}

void NetworkBuilder::Refuse(const std::string& path) {
    result.refused.Add(path, "the library does not take it");
}

std::string PathOfMessage(DocumentIndex message) {
    return "messages[" + std::to_string(message) + "]";
}

std::string PathOfSignal(DocumentIndex message, DocumentIndex signal) {
    return PathOfMessage(message) + ".signals[" + std::to_string(signal) + "]";
}

}  // namespace vexil::tool
