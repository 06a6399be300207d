// Tests of attributes/tokens.h.
// SPDX-License-Identifier: MIT
#include "attributes/tokens.h"

#include <gtest/gtest.h>

#include <random>

#include "support/token_twin.h"

namespace vexil {
namespace {

using enum TokenClass;
using Tokens = std::vector<std::string>;

constexpr std::string_view Delimiters = " \f\n\r\t\v;,";

// The tokens as texts of their own.
Tokens Split(std::string_view text, std::string_view delimiters = Delimiters) {
    const StatementTokens split = SplitStatementTokens(text, CharSet(delimiters));
    return {split.tokens.begin(), split.tokens.end()};
}

struct SplitCase {
    std::string_view text;
    Tokens tokens;
};

TEST(SplitStatementTokens, CutsAtDelimitersAndJoinsWhatQuotesHold) {
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
        // Only the last character of a word closes, whatever stands in front of it.
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

TEST(SplitStatementTokens, TakesTheDelimitersOfTheCaller) {
    EXPECT_EQ(Split("a-b c-\"d-e\"", "-"), (Tokens{"a", "b c", "\"d e\""}));
    EXPECT_EQ(Split("a;b", ""), (Tokens{"a;b"}));
}

TEST(SplitStatementTokens, IsThePlainTwoPassesOnRandomTexts) {
    constexpr unsigned Seed = 4711;
    constexpr std::string_view Letters = "ab\"\"\"\\ \t\n;,";
    std::mt19937 random(Seed);
    for (int round = 0; round < 20000; ++round) {
        std::string text(random() % 24, ' ');
        for (char& ch : text) {
            ch = Letters[random() % Letters.size()];
        }
        ASSERT_EQ(Split(text), test::TwinTokens(text, Delimiters))
            << "seed " << Seed << ", round " << round << ": " << text;
    }
}

TEST(QuotedContent, IsWhatStandsBetweenTheFirstAndTheLastQuote) {
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

TEST(ClassifyTokens, TellsTheClassOfEachToken) {
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
        EXPECT_EQ(ClassifyTokens({token}), std::vector{tokenClass}) << token;
    }
}

TEST(ClassifyTokens, GivesOneClassPerToken) {
    EXPECT_EQ(ClassifyTokens({}), std::vector<TokenClass>{});
    EXPECT_EQ(ClassifyTokens({"BA_", "\"a\"", "BO_", "5", "-7", "\"\""}),
              (std::vector{Other, QuotedString, Other, Number, Number, Other}));
}

TEST(BeginWith, ComparesTheFrontOfTheTokens) {
    const std::vector<std::string_view> tokens = {"BA_", "\"a\"", "1"};
    EXPECT_TRUE(BeginWith(tokens, {}));
    EXPECT_TRUE(BeginWith(tokens, {Other, QuotedString}));
    EXPECT_TRUE(BeginWith(tokens, {Other, QuotedString, Number}));
    EXPECT_FALSE(BeginWith(tokens, {Other, Number}));
    EXPECT_FALSE(BeginWith(tokens, {Number, QuotedString, Number}));
    EXPECT_FALSE(BeginWith(tokens, {Other, QuotedString, Number, Other}));
    EXPECT_FALSE(BeginWith({}, {Other}));
}

TEST(SplitStatementTokens, KeepsJoinedTokensWhereItIsMovedTo) {
    const std::string text = "\"a;b\" \"c;d\" e";
    StatementTokens split = SplitStatementTokens(text, CharSet(Delimiters));
    const StatementTokens moved = std::move(split);
    EXPECT_EQ(Tokens(moved.tokens.begin(), moved.tokens.end()),
              (Tokens{"\"a b\"", "\"c d\"", "e"}));
}

}  // namespace
}  // namespace vexil
