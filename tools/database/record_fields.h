// The fields of the records under their names in the header. A document is written from them and
// read into them.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace vexil::tool {

enum class FieldKind : std::uint8_t { Unsigned32, Unsigned64, Signed32, Double, Text };

struct RecordField {
    std::string_view name;
    FieldKind kind;
    std::size_t offset;
    std::size_t size;  // in bytes; for a text, its NUL included
};

// All fields of a record in the order of the header.
std::span<const RecordField> InfoFields();         // DatabaseInfo
std::span<const RecordField> MessageFields();      // CanMessageRecord
std::span<const RecordField> SignalFields();       // CanSignalRecord
std::span<const RecordField> DescriptionFields();  // CanEnumRecord
std::span<const RecordField> ErrorFields();        // ParseError

// The text of a field, which ends at its NUL.
std::string_view LoadText(const RecordField& field, const void* record);

// Stores a text. Precondition: it is shorter than the field.
void StoreText(const RecordField& field, void* record, std::string_view text);

// The number of a field of one of the whole kinds.
std::int64_t LoadWhole(const RecordField& field, const void* record);

// Stores a whole number. Precondition: it is in the range of the kind.
void StoreWhole(const RecordField& field, void* record, std::int64_t number);

double LoadDouble(const RecordField& field, const void* record);
void StoreDouble(const RecordField& field, void* record, double number);

// Whether the field has the same value in both records; two NaN of one sign count as the same.
bool IsSameValue(const RecordField& field, const void* one, const void* other);

}  // namespace vexil::tool
