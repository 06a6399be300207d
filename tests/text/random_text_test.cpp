// Rules that hold for every text, checked on random text: the valid characters of a text stay
// whole, and no byte of a file is lost.
// SPDX-License-Identifier: MIT
#include "support/random_text.h"

#include <gtest/gtest.h>
#include <utf8.h>

#include <array>
#include <bit>
#include <cerrno>
#include <cstdlib>
#include <string>

#include "support/files.h"
#include "support/reference_text.h"
#include "text/lexical.h"
#include "text/statement_file.h"
#include "text/utf8_text.h"

namespace vexil {
namespace {

using test::RandomText;

// Runs check(random) with each seed until one fails, and reports that seed.
template <typename Check>
void ForSeeds(std::uint32_t count, Check check) {
    for (std::uint32_t seed = 1; seed <= count && !testing::Test::HasFailure(); ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        RandomText random(seed);
        check(random);
    }
}

// The size of the valid character at a position, or 0.
std::size_t CharacterSize(const std::string& text, std::size_t at) {
    for (std::size_t size = 1; size <= 4 && at + size <= text.size(); ++size) {
        if (utf8::is_valid(text.begin() + static_cast<std::ptrdiff_t>(at),
                           text.begin() + static_cast<std::ptrdiff_t>(at + size))) {
            return size;
        }
    }
    return 0;
}

void ExpectOnlyInvalidBytesReplaced(const std::string& text) {
    std::string line = text;
    ReplaceInvalidUtf8(line);
    std::string expected = text;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t size = CharacterSize(text, at);
        if (size == 0) {
            expected[at] = '_';
        }
        at += size == 0 ? 1 : size;
    }
    ASSERT_EQ(line, expected) << testing::PrintToString(text);
}

TEST(ReplaceInvalidUtf8, ReplacesInvalidBytesAndNoOthers) {
    ForSeeds(20000, [](RandomText& random) { ExpectOnlyInvalidBytesReplaced(random.AnyText(10)); });
    for (int lead = 0x80; lead < 0x100; ++lead) {
        for (const char second : {'\x7f', '\x80', '\x8f', '\x90', '\x9f', '\xa0', '\xbf', '\xc0'}) {
            for (const char third : {'z', '\x80', '\xbf', '\xc2'}) {
                for (const char fourth : {'z', '\x80', '\xbf', '\xf0'}) {
                    ExpectOnlyInvalidBytesReplaced(
                        {static_cast<char>(lead), second, third, fourth});
                }
            }
        }
    }
}

TEST(Utf8FitLength, IsTheEndOfTheLastCharacterOfAValidTextThatFits) {
    ForSeeds(20000, [](RandomText& random) {
        const std::string text = random.ValidText(20);
        const std::size_t room = 1 + random.Below(text.size() + 1);
        std::size_t end = 0;
        while (end < text.size() && end + CharacterSize(text, end) <= room) {
            end += CharacterSize(text, end);
        }
        std::uint64_t length = 99;
        EXPECT_TRUE(Utf8FitLength(text, room + 1, length));
        EXPECT_EQ(length, room > text.size() ? room : end)
            << testing::PrintToString(text) << " into " << room;
    });
}

TEST(MakeCIdentifier, MakesAnIdentifierOfEveryTextButAnEmptyOne) {
    ForSeeds(20000, [](RandomText& random) {
        const std::string text = random.ValidText(random.Below(40) + 1);
        const std::string identifier = MakeCIdentifier(text);
        EXPECT_EQ(IsValidCIdentifier(identifier), !text.empty()) << testing::PrintToString(text);
        EXPECT_EQ(MakeCIdentifier(identifier), identifier);
    });
}

// The bits are equal, including the sign of zero.
TEST(TryParseDouble, EqualsStrtod) {
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
        char* end = nullptr;
        errno = 0;
        const double number = std::strtod(text.c_str(), &end);
        const bool isNumber = end != text.c_str() && errno != ERANGE;
        const double expected = isNumber ? number : 0;  // some runtimes read "-" as -0
        double value = 99;
        EXPECT_EQ(TryParseDouble(text, value), isNumber) << text;
        EXPECT_EQ(std::bit_cast<std::uint64_t>(value), std::bit_cast<std::uint64_t>(expected))
            << testing::PrintToString(text) << " gave " << value << " and not " << expected;
    });
}

TEST(StatementFile, LosesNoByteOfAFileOfShortStatements) {
    const test::TempFolder folder;
    const std::string path = folder.File("net.dbc");
    ForSeeds(400, [&](RandomText& random) {
        const std::string body = random.File(30);
        if (body.size() > 3000) {
            return;
        }
        test::WriteBytes(path, "BO_ \n" + body);
        const std::string text = test::ReadTextFile(path);
        std::string expected = test::reference::CleanLine(text);
        if (!text.ends_with('\n')) {
            expected += '\n';
        }
        StatementFile file;
        file.Open(path.c_str(), static_cast<std::uint32_t>(path.size() + 1), OpenMode::Read);
        std::string all;
        while (file.NextStatement()) {
            all += file.statement;
        }
        EXPECT_EQ(all, expected) << testing::PrintToString(body);
    });
}

}  // namespace
}  // namespace vexil
