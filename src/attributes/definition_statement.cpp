// BA_DEF_ statements: each one defines an attribute of the network, of messages or of signals.
//
//   BA_DEF_ [BO_|SG_] "name" INT min max ;
//   BA_DEF_ [BO_|SG_] "name" ENUM "text","text",... ;
//   BA_DEF_ [BO_|SG_] "name" STRING ;
// SPDX-License-Identifier: MIT
#include <optional>
#include <utility>

#include "attributes/attribute_statements.h"
#include "attributes/reserved_names.h"
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

// Parses kind and name. Returns the position of the type token, or nothing when the statement has
// another form or an owner that the model does not have.
std::optional<std::size_t> TakeShape(const StatementTokens& tokens, Attribute& definition) {
    if (tokens.BeginWith({Other, Other, QuotedString, Other})) {
        const std::optional<AttributeObjectKind> kind = OwnerKind(tokens[1]);
        if (!kind) {
            return std::nullopt;
        }
        definition.objectKind = *kind;
        definition.name = QuotedContent(tokens[2]);
        return 3;
    }
    if (tokens.BeginWith({Other, QuotedString, Other})) {
        definition.objectKind = AttributeObjectKind::Gen;
        definition.name = QuotedContent(tokens[1]);
        return 2;
    }
    return std::nullopt;
}

// Intentional: one number of the two is enough; the other bound becomes 0.
bool TakeBounds(const StatementTokens& tokens, std::size_t typeAt, Attribute& definition) {
    if (tokens.Size() != typeAt + 3 || (ClassifyToken(tokens[typeAt + 1]) != Number &&
                                        ClassifyToken(tokens[typeAt + 2]) != Number)) {
        return false;
    }
    TryParseI32(tokens[typeAt + 1], definition.minValue);
    TryParseI32(tokens[typeAt + 2], definition.maxValue);
    return true;
}

bool TakeEnumValues(const StatementTokens& tokens, std::size_t typeAt, Arena& arena,
                    Attribute& definition) {
    for (std::size_t at = typeAt + 1; at < tokens.Size(); ++at) {
        if (ClassifyToken(tokens[at]) != QuotedString) {
            return false;
        }
        definition.enumValues.push_back(arena.Keep(QuotedContent(tokens[at])));
    }
    return !definition.enumValues.empty();
}

bool TakeType(const StatementTokens& tokens, std::size_t typeAt, Arena& arena,
              Attribute& definition) {
    if (tokens[typeAt] == "INT") {
        definition.valueType = AttributeValueType::Int;
        return TakeBounds(tokens, typeAt, definition);
    }
    if (tokens[typeAt] == "ENUM") {
        definition.valueType = AttributeValueType::Enum;
        return TakeEnumValues(tokens, typeAt, arena, definition);
    }
    definition.valueType = AttributeValueType::Str;
    return tokens[typeAt] == "STRING" && tokens.Size() == typeAt + 1;
}

}  // namespace

void ParseDefinitionStatement(AttributeTable& table, Arena& arena, std::string_view text) {
    const StatementTokens tokens(text);
    Attribute definition;
    const std::optional<std::size_t> typeAt = TakeShape(tokens, definition);
    if (typeAt && IsReservedAttribute(definition.name) &&
        TakeType(tokens, *typeAt, arena, definition)) {
        definition.name = arena.Keep(definition.name);
        table.AddDefinition(std::move(definition));
    }
}

}  // namespace vexil
