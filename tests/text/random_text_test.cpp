// The text functions against their slow twins, over random text.
// SPDX-License-Identifier: MIT
#include "support/random_text.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cmath>
#include <ostream>
#include <string>
#include <vector>

#include "support/files.h"
#include "support/reference_text.h"
#include "text/keywords.h"
#include "text/lexical.h"
#include "text/statement_file.h"
#include "text/utf8_text.h"

namespace vexil {

namespace test::reference {

void PrintTo(const Statement& statement, std::ostream* out) {
    *out << testing::PrintToString(statement.text) << " at line " << statement.lineNumber
         << " in state " << statement.parseState;
}

}  // namespace test::reference

namespace {

using test::RandomText;

// Runs check(random, seed) with each seed until one fails; its number is in the failure.
template <typename Check>
void ForSeeds(std::uint32_t count, Check check) {
    for (std::uint32_t seed = 1; seed <= count && !testing::Test::HasFailure(); ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        RandomText random(seed);
        check(random);
    }
}

// A position in, at the end of or behind a text.
Position AnyPosition(RandomText& random, const std::string& text) {
    return random.Below(50) == 0 ? npos : random.Below(text.size() + 3);
}

// -- Keywords ---------------------------------------------------------------------------------

TEST(MatchKeyword, DoesWhatItsSlowTwinDoes) {
    std::size_t matches = 0;
    ForSeeds(20000, [&](RandomText& random) {
        const std::string keyword =
            test::reference::Keywords[random.Below(test::reference::Keywords.size())].text;
        std::string text = random.ValidText(2) + (random.Below(3) == 0 ? "" : " ");
        const Position atKeyword = text.size();
        text += random.Below(3) == 0 ? random.KeywordLike() : keyword;
        text += (random.Below(3) == 0 ? "" : "\n") + random.AnyText(2);
        const Position from = random.Below(2) == 0 ? atKeyword : AnyPosition(random, text);
        Position end = 99;
        Position expectedEnd = 99;
        const bool expected = test::reference::MatchKeyword(text, keyword, expectedEnd, from);
        EXPECT_EQ(MatchKeyword(text, keyword, end, from), expected)
            << testing::PrintToString(text) << " from " << from;
        EXPECT_EQ(end, expectedEnd) << testing::PrintToString(text) << " from " << from;
        matches += expected ? 1 : 0;
    });
    EXPECT_GT(matches, 1000U);
}

TEST(KeywordTable, IsThatOfTheSlowTwin) {
    ASSERT_EQ(keywordTable.size(), test::reference::Keywords.size());
    for (std::size_t row = 0; row < keywordTable.size(); ++row) {
        EXPECT_EQ(keywordTable[row].keyword, test::reference::Keywords[row].text);
        EXPECT_EQ(keywordTable[row].needsSemicolon, test::reference::Keywords[row].needsSemicolon);
    }
}

// -- UTF-8 ------------------------------------------------------------------------------------

TEST(Utf8FitLength, DoesWhatItsSlowTwinDoes) {
    ForSeeds(20000, [](RandomText& random) {
        const std::string text = random.Below(2) == 0 ? random.AnyText(6) : random.ValidText(20);
        const std::uint64_t bufferSize = random.Below(text.size() + 4);
        std::uint64_t length = 99;
        std::uint64_t expectedLength = 99;
        const bool expected = test::reference::Utf8FitLength(text, bufferSize, expectedLength);
        EXPECT_EQ(Utf8FitLength(text, bufferSize, length), expected)
            << testing::PrintToString(text) << " into " << bufferSize;
        EXPECT_EQ(length, expectedLength) << testing::PrintToString(text) << " into " << bufferSize;
    });
}

TEST(CopyUtf8Text, DoesWhatItsSlowTwinDoes) {
    ForSeeds(20000, [](RandomText& random) {
        std::string buffer = random.Below(2) == 0 ? random.AnyText(6) : random.ValidText(20);
        if (random.Below(2) == 0) {
            buffer.insert(random.Below(buffer.size() + 1), 1, '\0');
        }
        std::string_view out = "before";
        std::string expectedOut = "before";
        const bool expected =
            test::reference::CopyUtf8Text(expectedOut, buffer.data(), buffer.size());
        EXPECT_EQ(CopyUtf8Text(out, buffer.data(), buffer.size()), expected)
            << testing::PrintToString(buffer);
        EXPECT_EQ(out, expectedOut) << testing::PrintToString(buffer);
    });
}

TEST(ReplaceInvalidUtf8, DoesWhatItsSlowTwinDoes) {
    ForSeeds(20000, [](RandomText& random) {
        const std::string text = random.AnyText(10);
        std::string line = text;
        std::string expected = text;
        ReplaceInvalidUtf8(line);
        test::reference::ReplaceInvalidUtf8(expected);
        EXPECT_EQ(line, expected) << testing::PrintToString(text);
        EXPECT_TRUE(test::reference::IsValidUtf8(line));
        EXPECT_EQ(line.size(), text.size());
    });
}

TEST(FoldToAscii, DoesWhatItsSlowTwinDoes) {
    ForSeeds(10000, [](RandomText& random) {
        const std::string text = random.ValidText(20);
        EXPECT_EQ(FoldToAscii(text), test::reference::FoldToAscii(text))
            << testing::PrintToString(text);
    });
}

// Every sequence of one to three bytes that begins outside ASCII, so that no rule of what is a
// character is left to chance.
TEST(ReplaceInvalidUtf8, AgreesOnEveryLeadWithTheEdgesOfItsContinuations) {
    for (int lead = 0x80; lead < 0x100; ++lead) {
        for (const char second : {'\x7f', '\x80', '\x8f', '\x90', '\x9f', '\xa0', '\xbf', '\xc0'}) {
            for (const char third : {'z', '\x80', '\xbf', '\xc2'}) {
                for (const char fourth : {'z', '\x80', '\xbf', '\xf0'}) {
                    const std::string text{static_cast<char>(lead), second, third, fourth};
                    std::string line = text;
                    std::string expected = text;
                    ReplaceInvalidUtf8(line);
                    test::reference::ReplaceInvalidUtf8(expected);
                    ASSERT_EQ(line, expected) << testing::PrintToString(text);
                }
            }
        }
    }
}

// -- Tokens, ranges, identifiers --------------------------------------------------------------

TEST(ParseUnsignedToken, DoesWhatItsSlowTwinDoes) {
    std::size_t numbers = 0;
    ForSeeds(20000, [&](RandomText& random) {
        const std::string text = (random.Below(3) == 0 ? random.AnyText(2) : "") +
                                 random.NumberText() + random.ValidText(1);
        const Position from = random.Below(2) == 0 ? 0 : AnyPosition(random, text);
        std::uint32_t value = 99;
        std::uint32_t expectedValue = 99;
        Position end = 99;
        Position expectedEnd = 99;
        const bool expected =
            test::reference::ParseUnsignedToken(text, expectedValue, expectedEnd, from);
        EXPECT_EQ(ParseUnsignedToken(text, value, end, from), expected)
            << testing::PrintToString(text) << " from " << from;
        EXPECT_EQ(value, expectedValue) << testing::PrintToString(text) << " from " << from;
        EXPECT_EQ(end, expectedEnd) << testing::PrintToString(text) << " from " << from;
        numbers += expected ? 1 : 0;
    });
    EXPECT_GT(numbers, 1000U);
}

TEST(TextUpToChar, DoesWhatItsSlowTwinDoes) {
    ForSeeds(20000, [](RandomText& random) {
        const std::string text = random.AnyText(6);
        const Position from = AnyPosition(random, text);
        const char ch = ":|@,()[]\";"[random.Below(10)];
        Position found = 99;
        Position expectedFound = 99;
        EXPECT_EQ(TextUpToChar(text, from, ch, found),
                  test::reference::TextUpToChar(text, from, ch, expectedFound))
            << testing::PrintToString(text) << " from " << from << " to " << ch;
        EXPECT_EQ(found, expectedFound)
            << testing::PrintToString(text) << " from " << from << " to " << ch;
    });
}

TEST(TrimmedRange, DoesWhatItsSlowTwinDoes) {
    ForSeeds(20000, [](RandomText& random) {
        const std::string text = random.AnyText(6);
        const Position from = AnyPosition(random, text);
        const Position to = AnyPosition(random, text);
        EXPECT_EQ(TrimmedRange(text, from, to), test::reference::TrimmedRange(text, from, to))
            << testing::PrintToString(text) << " from " << from << " to " << to;
        EXPECT_EQ(Trimmed(text), test::reference::Trimmed(text)) << testing::PrintToString(text);
    });
}

TEST(MakeCIdentifier, DoesWhatItsSlowTwinDoesAndGivesAnIdentifier) {
    ForSeeds(20000, [](RandomText& random) {
        const std::string text = random.ValidText(random.Below(40) + 1);
        const std::string identifier = MakeCIdentifier(text);
        EXPECT_EQ(identifier, test::reference::MakeCIdentifier(text))
            << testing::PrintToString(text);
        EXPECT_EQ(IsValidCIdentifier(text), test::reference::IsValidCIdentifier(text))
            << testing::PrintToString(text);
        EXPECT_EQ(IsValidCIdentifier(identifier), !text.empty()) << testing::PrintToString(text);
        EXPECT_EQ(MakeCIdentifier(identifier), identifier);
    });
}

// -- Numbers ----------------------------------------------------------------------------------

template <typename Number, typename Parse, typename Twin>
void ExpectSameNumber(const std::string& text, Parse parse, Twin twin) {
    Number value = 99;
    Number expectedValue = 99;
    const bool expected = twin(text, expectedValue);
    EXPECT_EQ(parse(text, value), expected) << testing::PrintToString(text);
    EXPECT_TRUE(value == expectedValue || (std::isnan(static_cast<double>(value)) &&
                                           std::isnan(static_cast<double>(expectedValue))))
        << testing::PrintToString(text) << " gave " << value << " and not " << expectedValue;
}

TEST(TryParse, DoesWhatItsSlowTwinDoes) {
    ForSeeds(20000, [](RandomText& random) {
        const std::string text = random.Below(4) == 0 ? random.AnyText(3) : random.NumberText();
        ExpectSameNumber<std::uint32_t>(text, TryParseU32, test::reference::TryParseU32);
        ExpectSameNumber<std::int32_t>(text, TryParseI32, test::reference::TryParseI32);
        ExpectSameNumber<std::int64_t>(text, TryParseI64, test::reference::TryParseI64);
        ExpectSameNumber<double>(text, TryParseDouble, test::reference::TryParseDouble);
    });
}

// To the bit, the sign of zero counted in.
TEST(TryParseDouble, DoesWhatItsSlowTwinDoesToDecimalsOfAnyLength) {
    ForSeeds(40000, [](RandomText& random) {
        std::string text(random.Below(3), ' ');
        text += std::array{"", "", "-", "+"}[random.Below(4)];
        text.append(random.Below(8) == 0 ? random.Below(20) : 0, '0');
        const std::size_t digits = random.Below(20);
        const std::size_t point = random.Below(24);
        for (std::size_t digit = 0; digit < digits; ++digit) {
            text += digit == point ? "." : "";
            text += static_cast<char>('0' + random.Below(10));
        }
        text += std::array{"", "", " ", "\n", ".", ";", "e3", "e-9", ".5", "x"}[random.Below(10)];
        double value = 99;
        double expectedValue = 99;
        const bool expected = test::reference::TryParseDouble(text, expectedValue);
        EXPECT_EQ(TryParseDouble(text, value), expected) << testing::PrintToString(text);
        EXPECT_EQ(std::bit_cast<std::uint64_t>(value), std::bit_cast<std::uint64_t>(expectedValue))
            << testing::PrintToString(text) << " gave " << value << " and not " << expectedValue;
    });
}

// -- Statements -------------------------------------------------------------------------------

class RandomFiles : public testing::Test {
  protected:
    void ExpectSameStatements(const std::string& bytes) {
        test::WriteBytes(path, bytes);
        StatementFile file;
        file.Open(path.c_str(), static_cast<std::uint32_t>(path.size() + 1), OpenMode::Read);
        std::vector<test::reference::Statement> statements;
        while (file.NextStatement()) {
            statements.push_back({std::string(file.statement), file.lineNumber, file.parseState});
        }
        const auto expected = test::reference::CutIntoStatements(test::ReadTextFile(path));
        EXPECT_EQ(statements, expected) << testing::PrintToString(bytes);
        count += expected.size();
    }

    test::TempFolder folder;
    std::string path = folder.File("net.dbc");
    std::size_t count = 0;
};

TEST_F(RandomFiles, AreCutAsTheSlowTwinCutsThem) {
    ForSeeds(800, [this](RandomText& random) {
        ExpectSameStatements(random.File(random.Below(4) == 0 ? 30 : 400));
    });
    EXPECT_GT(count, 5000U);
}

// Lines near to the limit of a statement, in files that are mostly keywords of free text.
TEST_F(RandomFiles, AreCutAsTheSlowTwinCutsThemNearTheLimit) {
    ForSeeds(500, [this](RandomText& random) {
        std::string bytes;
        for (std::size_t lines = 1 + random.Below(8); lines > 0; --lines) {
            bytes += std::array{"", "BO_ ", "CM_ ", "BA_ x; ", "x "}[random.Below(5)];
            const std::size_t size =
                std::array<std::size_t, 4>{1, 1000, 2040, 4080}[random.Below(4)];
            bytes += std::string(size + random.Below(16), 'x');
            bytes += std::array{"", ";", " BO_ ", " ; SG_ "}[random.Below(4)];
            bytes += random.Below(8) == 0 ? "\r\n" : "\n";
        }
        ExpectSameStatements(bytes);
    });
    EXPECT_GT(count, 700U);
}

TEST_F(RandomFiles, LoseNoByteInFrontOfTheLimit) {
    ForSeeds(200, [this](RandomText& random) {
        const std::string body = random.File(12);
        if (body.size() > 3000) {
            return;
        }
        test::WriteBytes(path, "BO_ \n" + body);
        const std::string text = test::ReadTextFile(path);
        std::string expected = test::reference::CleanLine(text + "\n");
        StatementFile file;
        file.Open(path.c_str(), static_cast<std::uint32_t>(path.size() + 1), OpenMode::Read);
        std::string all;
        while (file.NextStatement()) {
            all += file.statement;
        }
        if (text.back() == '\n') {
            expected.pop_back();
        }
        EXPECT_EQ(all, expected) << testing::PrintToString(body);
    });
}

}  // namespace
}  // namespace vexil
