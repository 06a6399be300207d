// Tests of WrittenPairs: it returns the pairs that the parser finds, or nothing.
// SPDX-License-Identifier: MIT
#include "write/written_pairs.h"

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <string>

#include "frame/enums_of.h"

namespace vexil {
namespace {

// The value descriptions of a statement as they are written when it is parsed.
std::string ParsedPairs(std::string_view statement) {
    Note note{statement};
    Notes notes;
    notes.statements = &note;
    std::string text;
    for (const auto& [value, description] : test::EnumsOf(notes)) {
        text.append(" ").append(std::to_string(value)).append(" \"");
        text.append(description).append("\"");
    }
    return text;
}

std::size_t Below(std::mt19937& random, std::size_t limit) {
    return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random);
}

TEST(WrittenPairs, EqualTheParsedPairsOrAreEmpty) {
    constexpr std::string_view Pieces[] = {
        " ",  " ",  " ", "\"", "\"", "\"",         "0",          "1",           "2",
        "12", "-1", "-", "+",  "0",  "2147483647", "2147483648", "-2147483649", ";",
        "a",  "\n", "m", "é",  "\t", " 0 \"a\"",   " 1 \"b\"",   " 2 \"\"",     " -7 \" c \""};
    std::mt19937 random(1);
    std::size_t found = 0;
    for (int round = 0; round < 100000; ++round) {
        std::string statement;
        for (std::size_t left = Below(random, 7); left > 0; --left) {
            statement += Pieces[Below(random, std::size(Pieces))];
        }
        const std::string_view pairs = WrittenPairs(statement);
        if (!pairs.empty()) {
            ++found;
            ASSERT_EQ(pairs, ParsedPairs(statement)) << statement;
        }
    }
    EXPECT_GT(found, 1000U);
}

TEST(WrittenPairs, AreFoundInEveryWrittenStatement) {
    std::mt19937 random(2);
    for (int round = 0; round < 2000; ++round) {
        std::map<std::int32_t, std::string> descriptions;
        for (std::size_t left = 1 + Below(random, 5); left > 0; --left) {
            // Values of each number of digits.
            const std::size_t bits = Below(random, 32);
            const auto value = static_cast<std::int32_t>(random() >> bits);
            descriptions[value] = std::string(Below(random, 4), "a 1;"[Below(random, 4)]);
        }
        std::string written;
        for (const auto& [value, description] : descriptions) {
            written.append(" ").append(std::to_string(value)).append(" \"");
            written.append(description).append("\"");
        }
        for (const std::string_view end : {"", ";", " ;\n", " 1 ;"}) {
            ASSERT_EQ(WrittenPairs(written + std::string(end)), written);
        }
    }
}

}  // namespace
}  // namespace vexil
