// Texts and numbers as a JSON document has them.
// SPDX-License-Identifier: MIT
#include "document/json_text.h"

#include <gtest/gtest.h>
#include <vexil64.h>

#include <cstring>
#include <limits>
#include <nlohmann/json.hpp>
#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "support/random_text.h"

namespace vexil::test {
namespace {

using namespace std::string_view_literals;

std::string Text(std::string_view text) {
    std::string out;
    tool::AppendJsonText(out, text);
    return out;
}

std::string Number(double number) {
    std::string out;
    tool::AppendJsonNumber(out, number);
    return out;
}

TEST(AppendJsonText, EscapesQuotesBackslashesAndControlCharacters) {
    const std::vector<std::pair<std::string_view, std::string_view>> rows = {
        {"", R"("")"},
        {"plain text", R"("plain text")"},
        {"a \"b\" \\ c", R"("a \"b\" \\ c")"},
        {"\t\n\r", R"("\t\n\r")"},
        {"\x00\x01\x1b\x1f\x7f"sv, R"("\u0000\u0001\u001b\u001f\u007f")"},
        {"\xC2\x80 \xC2\x9B \xC2\x9F", R"("\u0080 \u009b \u009f")"},
        {"\xC2\xA0 20 \xC2\xB0\x43 \xE2\x82\xAC \xF0\x9F\x9A\x97",
         "\"\xC2\xA0 20 \xC2\xB0\x43 \xE2\x82\xAC \xF0\x9F\x9A\x97\""},
        {"a/b~", R"("a/b~")"},
    };
    for (const auto& [text, expected] : rows) {
        EXPECT_EQ(Text(text), expected);
    }
}

TEST(AppendJsonText, ReplacesEachByteThatIsNotUtf8) {
    EXPECT_EQ(Text("a\xB0z"), R"("a\ufffdz")");
    EXPECT_EQ(Text("\xE2\x82"), R"("\ufffd\ufffd")");
    EXPECT_EQ(Text("\xED\xA0\x80"), R"("\ufffd\ufffd\ufffd")");
}

TEST(AppendJsonText, IsReadBackAsTheSameText) {
    constexpr std::size_t MostPieces = 30;
    for (unsigned seed = 0; seed < 500; ++seed) {
        const std::string text = RandomText(seed).ValidText(MostPieces);
        EXPECT_EQ(nlohmann::json::parse(Text(text)).get<std::string>(), text) << seed;
    }
}

TEST(AppendJsonNumber, HasTheShortestForm) {
    const std::vector<std::pair<double, std::string_view>> rows = {
        {0, "0"},
        {1, "1"},
        {-40, "-40"},
        {0.1, "0.1"},
        {6553.5, "6553.5"},
        {1e22, "1e+22"},
        {1.0 / 3, "0.3333333333333333"},
        {5e-324, "5e-324"},
        {-0.0, "-0.0"},
        {1e-7, "1e-07"},
    };
    for (const auto& [number, expected] : rows) {
        EXPECT_EQ(Number(number), expected);
    }
}

TEST(AppendJsonNumber, HasTextsForNumbersThatJsonDoesNotHave) {
    constexpr double NaN = std::numeric_limits<double>::quiet_NaN();
    constexpr double Infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(Number(NaN), R"("NaN")");
    EXPECT_EQ(Number(-NaN), R"("-NaN")");
    EXPECT_EQ(Number(Infinity), R"("Infinity")");
    EXPECT_EQ(Number(-Infinity), R"("-Infinity")");
}

TEST(AppendJsonNumber, IsReadBackAsTheSameNumber) {
    std::mt19937_64 engine(1);
    for (int count = 0; count < 20000; ++count) {
        const std::uint64_t bits = engine();
        double number = 0;
        std::memcpy(&number, &bits, sizeof number);
        if (number - number == 0) {
            EXPECT_EQ(nlohmann::json::parse(Number(number)).get<double>(), number);
        }
    }
}

TEST(JsonExcerpt, CutsAtACharacter) {
    EXPECT_EQ(tool::JsonExcerpt("abcd", 4), R"("abcd")");
    EXPECT_EQ(tool::JsonExcerpt("abcde", 4), R"("abcd"...)");
    EXPECT_EQ(tool::JsonExcerpt("abc\xC2\xB0", 4), R"("abc"...)");
    EXPECT_EQ(tool::JsonExcerpt("\x1B[2J", 4), R"("\u001b[2J")");
}

}  // namespace
}  // namespace vexil::test
