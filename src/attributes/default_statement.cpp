// BA_DEF_DEF_ statements: each one sets the default of the attribute definitions of a name.
//
//   BA_DEF_DEF_ "name" value ;
//
// A default is kept in the definition itself, so the definition has to stand in front of it.
// SPDX-License-Identifier: MIT
#include "attributes/attribute_statements.h"
#include "attributes/tokens.h"

namespace vexil {

void ParseDefaultStatement(AttributeTable& table, const std::vector<std::string_view>& tokens) {
    if (tokens.size() < 3 || !BeginWith(tokens, {TokenClass::Other, TokenClass::QuotedString})) {
        return;
    }
    const std::string_view name = QuotedContent(tokens[1]);
    if (table.IsUnrecognised(name)) {
        return;
    }
    for (Attribute& definition : table.definitions) {
        if (definition.name == name) {
            table.SetDefault(definition, tokens[2]);
        }
    }
}

}  // namespace vexil
