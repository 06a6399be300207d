// Tests of attributes/tokens.h.
// SPDX-License-Identifier: MIT
#include "attributes/tokens.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace vexil {
namespace {

using enum TokenClass;
using Tokens = std::vector<std::string>;

Tokens Split(std::string_view text) {
    const StatementTokens tokens(text);
    Tokens texts;
    for (std::size_t at = 0; at < tokens.Size(); ++at) {
        texts.emplace_back(tokens[at]);
    }
    return texts;
}

struct SplitCase {
    std::string_view text;
    Tokens tokens;
};

TEST(StatementTokens, SplitsAtDelimitersOutsideQuotes) {
    const SplitCase cases[] = {
        {"", {}},
        {" \f\n\r\t\v;,", {}},
        {"a", {"a"}},
        {"a b", {"a", "b"}},
        {" ,a;;b\t\n", {"a", "b"}},
        {"a\fb\nc\rd\te\vf;g,h i", {"a", "b", "c", "d", "e", "f", "g", "h", "i"}},
        {"BA_DEF_ \"BusType\" STRING ;", {"BA_DEF_", "\"BusType\"", "STRING"}},
        // A run of delimiters inside quotes becomes one blank.
        {"\"a b\"", {"\"a b\""}},
        {"\"a,b;  c\"", {"\"a b c\""}},
        {"\"a\n\t b\" x", {"\"a b\"", "x"}},
        {"\"a,b\",\"c d\"", {"\"a b\"", "\"c d\""}},
        {"\"a\",\"\",\"b\"", {"\"a\"", "\"\"", "\"b\""}},
        // One at the end of a quoted text stays as one blank.
        {"\"a ; \"", {"\"a \""}},
        {"\"a \" b", {"\"a \"", "b"}},
        // One at its start leaves a lone quote, which counts as closed.
        {"\" a\"", {"\"", "a\""}},
        {"\" \"", {"\"", "\""}},
        {"x \" y z\" w", {"x", "\"", "y", "z\"", "w"}},
        // A backslash has no meaning.
        {"\"a\\\"b c\"", {"\"a\\\"b c\""}},
        {"\"a\\\" c\"", {"\"a\\\"", "c\""}},
        // An opening quote without a closing one takes the rest.
        {"a \"b c; d", {"a", "\"b c d"}},
        {"\"a b\"c d\" e", {"\"a b\"c d\"", "e"}},
        // A quote inside a word opens nothing, nor does one that ends a word.
        {"a\"b c\"", {"a\"b", "c\""}},
        {"a\" b", {"a\"", "b"}},
        // Only the last character of a word closes, whatever comes before it.
        {"\"a\"b c", {"\"a\"b c"}},
        {"\"\"a b\"", {"\"\"a b\""}},
        {"\"\" a", {"\"\"", "a"}},
        {"\"\"\" a", {"\"\"\"", "a"}},
        {"\"\xC3\xA4 \xC3\xB6\"", {"\"\xC3\xA4 \xC3\xB6\""}},
    };
    for (const SplitCase& row : cases) {
        EXPECT_EQ(Split(row.text), row.tokens) << row.text;
    }
}

// More than an ordinary statement has.
TEST(StatementTokens, HoldsAnyNumberOfTokens) {
    std::string text;
    Tokens expected;
    for (int number = 0; number < 1000; ++number) {
        text += "\"" + std::to_string(number) + ", x\",";
        expected.push_back("\"" + std::to_string(number) + " x\"");
        ASSERT_EQ(Split(text), expected);
    }
}

TEST(QuotedContent, IsTheTextBetweenTheFirstAndTheLastQuote) {
    const std::pair<std::string_view, std::string_view> cases[] = {
        {"", ""},
        {"abc", ""},
        {"\"", ""},
        {"abc\"", ""},
        {"\"abc", ""},
        {"\"\"", ""},
        {"a\"\"b", ""},
        {"\"a\"", "a"},
        {"\" \"", " "},
        {"\"\"\"", "\""},
        {"x\"a\"y", "a"},
        {"\"a\"b\"c\"", "a\"b\"c"},
        {"\"a\\\"b\"", "a\\\"b"},
        {"\"a\\\\\"", "a\\\\"},
    };
    for (const auto& [token, content] : cases) {
        EXPECT_EQ(QuotedContent(token), content) << token;
    }
}

TEST(QuotedContent, IsAViewIntoTheToken) {
    const std::string token = "\"abc\"";
    EXPECT_EQ(QuotedContent(token).data(), token.data() + 1);
}

TEST(ClassifyToken, ReturnsTheClassOfAToken) {
    const std::pair<std::string_view, TokenClass> cases[] = {
        {"BA_", Other},
        {"\"a\"", QuotedString},
        {"x\"a\"", QuotedString},
        {"1\"2\"3", QuotedString},
        {"\"1\"", QuotedString},
        {"\"\"", Other},
        {"\"", Other},
        {"\"a", Other},
        {"0", Number},
        {"007", Number},
        {"-1", Number},
        {"1.5", Number},
        {"-1.5e3", Number},
        {"12abc", Number},
        {"0x10", Number},
        {"1\"", Number},
        {"1\"\"", Number},
        {"9223372036854775807", Number},
        {"9223372036854775808", Other},
        {"-9223372036854775808", Number},
        {"-9223372036854775809", Other},
        {".5", Other},
        {"-", Other},
        {"--1", Other},
        {"-a", Other},
        {"+1", Other},
        {"a1", Other},
        {"\xC3\xA4", Other},
    };
    for (const auto& [token, tokenClass] : cases) {
        EXPECT_EQ(ClassifyToken(token), tokenClass) << token;
    }
}

TEST(BeginWith, ComparesTheFirstTokens) {
    const StatementTokens tokens("BA_ \"a\" 1");
    EXPECT_TRUE(tokens.BeginWith({}));
    EXPECT_TRUE(tokens.BeginWith({Other, QuotedString}));
    EXPECT_TRUE(tokens.BeginWith({Other, QuotedString, Number}));
    EXPECT_FALSE(tokens.BeginWith({Other, Number}));
    EXPECT_FALSE(tokens.BeginWith({Number, QuotedString, Number}));
    EXPECT_FALSE(tokens.BeginWith({Other, QuotedString, Number, Other}));
    EXPECT_FALSE(StatementTokens("").BeginWith({Other}));
}

}  // namespace
}  // namespace vexil
