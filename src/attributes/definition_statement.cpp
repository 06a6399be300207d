// BA_DEF_ statements: each one defines an attribute of the network, of messages or of signals.
//
//   BA_DEF_ [BO_|SG_] "name" INT min max ;
//   BA_DEF_ [BO_|SG_] "name" ENUM "text","text",... ;
//   BA_DEF_ [BO_|SG_] "name" STRING ;
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <optional>

#include "attributes/attribute_statements.h"
#include "attributes/tokens.h"
#include "text/constants.h"
#include "text/lexical.h"

namespace vexil {
namespace {

using enum TokenClass;

std::optional<AttributeObjectKind> OwnerKind(std::string_view token) {
    if (token == keyword::BO_) {
        return AttributeObjectKind::Msg;
    }
    if (token == keyword::SG_) {
        return AttributeObjectKind::Sig;
    }
    return std::nullopt;
}

// Takes kind and name. Returns the position of the type token, or nothing when the statement has
// another shape or an owner that the model does not know.
std::optional<std::size_t> TakeShape(const std::vector<std::string_view>& tokens,
                                     Attribute& definition) {
    if (BeginWith(tokens, {Other, Other, QuotedString, Other})) {
        const std::optional<AttributeObjectKind> kind = OwnerKind(tokens[1]);
        if (!kind) {
            return std::nullopt;
        }
        definition.objectKind = *kind;
        definition.name = QuotedContent(tokens[2]);
        return 3;
    }
    if (BeginWith(tokens, {Other, QuotedString, Other})) {
        definition.objectKind = AttributeObjectKind::Gen;
        definition.name = QuotedContent(tokens[1]);
        return 2;
    }
    return std::nullopt;
}

// Kept on purpose: one number of the two is enough; the bound that is none becomes 0.
bool TakeBounds(const std::vector<std::string_view>& tokens, const std::vector<TokenClass>& classes,
                std::size_t typeAt, Attribute& definition) {
    if (tokens.size() != typeAt + 3 ||
        (classes[typeAt + 1] != Number && classes[typeAt + 2] != Number)) {
        return false;
    }
    TryParseI32(tokens[typeAt + 1], definition.minValue);
    TryParseI32(tokens[typeAt + 2], definition.maxValue);
    return true;
}

bool TakeEnumValues(const std::vector<std::string_view>& tokens,
                    const std::vector<TokenClass>& classes, std::size_t typeAt,
                    Attribute& definition) {
    if (tokens.size() < typeAt + 2 ||
        !std::all_of(classes.begin() + static_cast<std::ptrdiff_t>(typeAt) + 1, classes.end(),
                     [](TokenClass tokenClass) { return tokenClass == QuotedString; })) {
        return false;
    }
    for (std::size_t at = typeAt + 1; at < tokens.size(); ++at) {
        definition.enumValues.emplace_back(QuotedContent(tokens[at]));
    }
    return true;
}

bool TakeType(const std::vector<std::string_view>& tokens, const std::vector<TokenClass>& classes,
              std::size_t typeAt, Attribute& definition) {
    if (tokens[typeAt] == "INT") {
        definition.valueType = AttributeValueType::Int;
        return TakeBounds(tokens, classes, typeAt, definition);
    }
    if (tokens[typeAt] == "ENUM") {
        definition.valueType = AttributeValueType::Enum;
        return TakeEnumValues(tokens, classes, typeAt, definition);
    }
    definition.valueType = AttributeValueType::Str;
    return tokens[typeAt] == "STRING" && tokens.size() == typeAt + 1;
}

}  // namespace

void ParseDefinitionStatement(AttributeTable& table, const std::vector<std::string_view>& tokens) {
    Attribute definition;
    const std::optional<std::size_t> typeAt = TakeShape(tokens, definition);
    if (typeAt && !table.IsUnrecognised(definition.name) &&
        TakeType(tokens, ClassifyTokens(tokens), *typeAt, definition)) {
        table.AddDefinition(definition);
    }
}

}  // namespace vexil
