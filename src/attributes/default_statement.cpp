// BA_DEF_DEF_ statements: each one sets the default of the attribute definitions of a name.
//
//   BA_DEF_DEF_ "name" value ;
//
// The default is stored in the definition, so the definition must come first.
// SPDX-License-Identifier: MIT
#include "attributes/attribute_statements.h"
#include "attributes/reserved_names.h"
#include "attributes/tokens.h"

namespace vexil {

void ParseDefaultStatement(AttributeTable& table, Arena& arena, std::string_view text) {
    const StatementTokens tokens(text);
    if (tokens.Size() < 3 || !tokens.BeginWith({TokenClass::Other, TokenClass::QuotedString})) {
        return;
    }
    const std::string_view name = QuotedContent(tokens[1]);
    if (!IsReservedAttribute(name)) {
        return;
    }
    for (const auto& definition : table.definitions) {
        AttributeContent content = definition->defaultContent;
        if (definition->name == name && definition->SetValueFromText(content, tokens[2])) {
            content.stringValue = arena.Keep(content.stringValue);
            definition->defaultContent = content;
        }
    }
}

}  // namespace vexil
