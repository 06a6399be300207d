// The tables of members, and the ranges of values.
// SPDX-License-Identifier: MIT
#include "document/network_shapes.h"

#include <array>
#include <cmath>
#include <limits>
#include <optional>
#include <vector>

#include "document/json_text.h"

namespace vexil::tool {
namespace {

std::vector<Member> WithFields(std::span<const RecordField> fields, std::vector<Member> others) {
    std::vector<Member> members;
    for (const RecordField& field : fields) {
        members.push_back({field.name, MemberKind::Field, Shape::Document, &field});
    }
    members.insert(members.end(), others.begin(), others.end());
    return members;
}

constexpr Member CutMember = {"cut", MemberKind::Cut};

std::array<std::vector<Member>, 5> MakeTables() {
    return {WithFields({}, {{"formatVersion", MemberKind::Version},
                            {"libraryVersion", MemberKind::Ignored},
                            {"info", MemberKind::Object, Shape::Info},
                            {"messages", MemberKind::List, Shape::Message},
                            {"errors", MemberKind::Ignored},
                            {"account", MemberKind::Ignored}}),
            WithFields(InfoFields(), {}),
            WithFields(MessageFields(), {CutMember, {"signals", MemberKind::List, Shape::Signal}}),
            WithFields(SignalFields(),
                       {CutMember, {"valueDescriptions", MemberKind::List, Shape::Description}}),
            WithFields(DescriptionFields(), {CutMember})};
}

struct Range {
    std::int64_t least;
    std::int64_t most;
};

template <typename Number>
constexpr Range RangeOfType() {
    return {std::numeric_limits<Number>::min(), std::numeric_limits<Number>::max()};
}

Range RangeOf(FieldKind kind) {
    switch (kind) {
        case FieldKind::Unsigned32:
            return RangeOfType<std::uint32_t>();
        case FieldKind::Unsigned64:
            return {0, std::numeric_limits<std::int64_t>::max()};
        default:
            return RangeOfType<std::int32_t>();
    }
}

std::optional<std::int64_t> WholeNumber(const JsonScalar& scalar, const Range& range) {
    std::int64_t number = 0;
    if (const auto* whole = std::get_if<std::int64_t>(&scalar)) {
        number = *whole;
    } else if (const auto* large = std::get_if<std::uint64_t>(&scalar)) {
        if (*large > static_cast<std::uint64_t>(range.most)) {
            return std::nullopt;
        }
        number = static_cast<std::int64_t>(*large);
    } else if (const auto* real = std::get_if<double>(&scalar)) {
        // 1e3 and 5.0 are whole numbers as well. A double has all of those below 2^53.
        constexpr double Largest = 9007199254740992.0;
        if (std::trunc(*real) != *real || std::abs(*real) > Largest) {
            return std::nullopt;
        }
        number = static_cast<std::int64_t>(*real);
    } else {
        return std::nullopt;
    }
    const bool isInside = number >= range.least && number <= range.most;
    return isInside ? std::optional(number) : std::nullopt;
}

std::optional<double> RealNumber(const JsonScalar& scalar) {
    constexpr double Infinity = std::numeric_limits<double>::infinity();
    constexpr double NaN = std::numeric_limits<double>::quiet_NaN();
    if (const auto* whole = std::get_if<std::int64_t>(&scalar)) {
        return static_cast<double>(*whole);
    }
    if (const auto* large = std::get_if<std::uint64_t>(&scalar)) {
        return static_cast<double>(*large);
    }
    if (const auto* real = std::get_if<double>(&scalar)) {
        return *real;
    }
    if (const auto* word = std::get_if<std::string_view>(&scalar)) {
        constexpr std::array<std::pair<std::string_view, double>, 4> Words = {
            {{"NaN", NaN}, {"-NaN", -NaN}, {"Infinity", Infinity}, {"-Infinity", -Infinity}}};
        for (const auto& [name, number] : Words) {
            if (name == *word) {
                return number;
            }
        }
    }
    return std::nullopt;
}

std::string Shown(const JsonScalar& scalar) {
    std::string shown;
    if (const auto* truth = std::get_if<bool>(&scalar)) {
        return *truth ? "true" : "false";
    }
    if (const auto* whole = std::get_if<std::int64_t>(&scalar)) {
        return std::to_string(*whole);
    }
    if (const auto* large = std::get_if<std::uint64_t>(&scalar)) {
        return std::to_string(*large);
    }
    if (const auto* real = std::get_if<double>(&scalar)) {
        AppendJsonNumber(shown, *real);
        return shown;
    }
    if (const auto* text = std::get_if<std::string_view>(&scalar)) {
        return JsonExcerpt(*text);
    }
    return "null";
}

std::string Needed(std::string_view what, const JsonScalar& scalar) {
    return std::string(what) + " is needed, not " + Shown(scalar);
}

std::string StoreTextScalar(const RecordField& field, void* record, const JsonScalar& scalar) {
    const auto* const text = std::get_if<std::string_view>(&scalar);
    if (text == nullptr) {
        return Needed("a text", scalar);
    }
    if (text->find('\0') != std::string_view::npos) {
        return "the text has the character U+0000, which ends it in the record";
    }
    if (text->size() >= field.size) {
        return "the text has " + std::to_string(text->size()) + " bytes, and the record takes " +
               std::to_string(field.size - 1);
    }
    StoreText(field, record, *text);
    return {};
}

}  // namespace

std::span<const Member> MembersOf(Shape shape) {
    static const std::array<std::vector<Member>, 5> tables = MakeTables();
    return tables[static_cast<std::size_t>(shape)];
}

std::string StoreScalar(const RecordField& field, void* record, const JsonScalar& scalar) {
    if (field.kind == FieldKind::Text) {
        return StoreTextScalar(field, record, scalar);
    }
    if (field.kind == FieldKind::Double) {
        const auto number = RealNumber(scalar);
        if (!number) {
            return Needed(R"(a number, "NaN", "-NaN", "Infinity" or "-Infinity")", scalar);
        }
        StoreDouble(field, record, *number);
        return {};
    }
    const Range range = RangeOf(field.kind);
    const auto number = WholeNumber(scalar, range);
    if (!number) {
        return Needed("a whole number from " + std::to_string(range.least) + " to " +
                          std::to_string(range.most),
                      scalar);
    }
    StoreWhole(field, record, *number);
    return {};
}

std::string CheckFormat(const JsonScalar& scalar) {
    constexpr Range Known = {DocumentFormat, DocumentFormat};
    return WholeNumber(scalar, Known)
               ? std::string()
               : Needed("the number " + std::to_string(DocumentFormat), scalar);
}

}  // namespace vexil::tool
