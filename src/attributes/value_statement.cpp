// BA_ statements: each one gives the network, a message or a signal a value for an attribute.
//
//   BA_ "name" value ;
//   BA_ "name" BO_ id value ;
//   BA_ "name" SG_ id signal value ;
//
// The definition of the name determines which of the forms a statement must have.
// SPDX-License-Identifier: MIT
#include <array>
#include <utility>

#include "attributes/attribute_statements.h"
#include "attributes/reserved_names.h"
#include "attributes/tokens.h"
#include "text/constants.h"
#include "text/lexical.h"

namespace vexil {
namespace {

using enum TokenClass;

// The rank of a definition in the search for a name: kinds in the order Gen, Msg, Sig, and within a
// kind the types in the order Int, Str, Enum.
std::pair<AttributeObjectKind, int> SearchRank(const Attribute& definition) {
    constexpr std::array<int, 4> Ranks = {3, 0, 2, 1};  // of Unsup, Int, Enum and Str
    return {definition.objectKind, Ranks[static_cast<std::size_t>(definition.valueType)]};
}

// Intentional: only the first definition in the order of the search is used, so a name that is
// defined for messages and for signals always refers to messages.
const Attribute* FindDefinitionOfName(const AttributeTable& table, std::string_view name) {
    const Attribute* first = nullptr;
    for (const auto& definition : table.definitions) {
        if (definition->name == name &&
            (first == nullptr || SearchRank(*definition) < SearchRank(*first))) {
            first = definition.get();
        }
    }
    return first;
}

// The position of the value token in a statement for the kind.
std::size_t ValueAt(AttributeObjectKind kind) {
    switch (kind) {
        case AttributeObjectKind::Msg:
            return 4;
        case AttributeObjectKind::Sig:
            return 5;
        case AttributeObjectKind::Gen:
            break;
    }
    return 2;
}

// Whether the tokens have the form that the definition requires. Intentional: an Enum value must be
// a number, and "" is not a text.
bool HasShape(const StatementTokens& tokens, const Attribute& definition) {
    const TokenClass value =
        definition.valueType == AttributeValueType::Str ? QuotedString : Number;
    switch (definition.objectKind) {
        case AttributeObjectKind::Msg:
            return tokens.BeginWith({Other, QuotedString, Other, Number, value}) &&
                   tokens[2] == keyword::BO_;
        case AttributeObjectKind::Sig:
            return tokens.BeginWith({Other, QuotedString, Other, Number, Other, value}) &&
                   tokens[2] == keyword::SG_;
        case AttributeObjectKind::Gen:
            break;
    }
    return tokens.BeginWith({Other, QuotedString, value});
}

}  // namespace

void ParseValueStatement(AttributeTable& table, Arena& arena, std::string_view text) {
    const StatementTokens tokens(text);
    if (tokens.Size() < 2) {
        return;
    }
    const std::string_view name = QuotedContent(tokens[1]);
    const Attribute* definition =
        IsReservedAttribute(name) ? FindDefinitionOfName(table, name) : nullptr;
    if (definition == nullptr || !HasShape(tokens, *definition)) {
        return;
    }
    AttributeValue value;
    value.definition = definition;
    if (definition->objectKind != AttributeObjectKind::Gen) {
        TryParseU32(tokens[3], value.messageId);
    }
    if (definition->objectKind == AttributeObjectKind::Sig) {
        value.signalName = arena.Keep(tokens[4]);
    }
    if (definition->SetValueFromText(value.content, tokens[ValueAt(definition->objectKind)])) {
        value.content.stringValue = arena.Keep(value.content.stringValue);
        table.AddValue(value);
    }
}

}  // namespace vexil
