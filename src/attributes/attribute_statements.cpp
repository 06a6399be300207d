// The attribute statements: recognising and dispatching them.
// SPDX-License-Identifier: MIT
#include "attributes/attribute_statements.h"

#include "attributes/tokens.h"
#include "text/keywords.h"

namespace vexil {
namespace {

constexpr CharSet Delimiters(" \f\n\r\t\v;,");

}  // namespace

bool IsAttributeStatement(std::string_view text) {
    Position end = npos;
    return MatchKeyword(text, keyword::BA_, end, 0) ||
           MatchKeyword(text, keyword::BA_DEF_, end, 0) ||
           MatchKeyword(text, keyword::BA_DEF_DEF_, end, 0);
}

void ParseAttributeStatement(AttributeTable& table, std::string_view text) {
    const StatementTokens split = SplitStatementTokens(text, Delimiters);
    const std::vector<std::string_view>& tokens = split.tokens;
    if (tokens.empty()) {
        return;
    }
    if (tokens.front() == keyword::BA_DEF_) {
        ParseDefinitionStatement(table, tokens);
    } else if (tokens.front() == keyword::BA_DEF_DEF_) {
        ParseDefaultStatement(table, tokens);
    } else if (tokens.front() == keyword::BA_) {
        ParseValueStatement(table, tokens);
    }
}

}  // namespace vexil
