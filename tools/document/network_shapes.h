// The objects of a document, their members, and which values a member takes.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "database/record_fields.h"

namespace vexil::tool {

enum class Shape : std::uint8_t { Document, Info, Message, Signal, Description };

enum class MemberKind : std::uint8_t {
    Field,    // of a record
    Version,  // of the form of the document
    Object,   // of the shape
    List,     // of objects of the shape
    Cut,      // marks that texts of the object may be cut; its value is not read
    Ignored   // any value; it is not read
};

struct Member {
    std::string_view name;
    MemberKind kind;
    Shape shape = Shape::Document;
    const RecordField* field = nullptr;
};

// The members of an object. Those that are fields come first, in the order of their record.
std::span<const Member> MembersOf(Shape shape);

// A value that is neither object nor list.
using JsonScalar =
    std::variant<std::nullptr_t, bool, std::int64_t, std::uint64_t, double, std::string_view>;

// Stores a value in a field. Returns an error message; empty on success.
std::string StoreScalar(const RecordField& field, void* record, const JsonScalar& scalar);

// The form of the documents that this version writes and reads.
inline constexpr std::uint64_t DocumentFormat = 1;

// Returns why the format of a document is refused; empty if it is accepted.
std::string CheckFormat(const JsonScalar& scalar);

}  // namespace vexil::tool
