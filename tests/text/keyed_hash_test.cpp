// Tests of text/keyed_hash.h. The key is nobody's to know, so hashes are compared with each other.
// SPDX-License-Identifier: MIT
#include "text/keyed_hash.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <set>
#include <string>

namespace vexil {
namespace {

TEST(KeyedHash, IsTheSameForTheSame) {
    const std::string text = "a name of 24 characters.";
    EXPECT_EQ(KeyedHash(7, text), KeyedHash(7, std::string(text)));
}

TEST(KeyedHash, DependsOnEachBitOfTheNumber) {
    std::set<std::size_t> hashes = {KeyedHash(0, "name")};
    for (unsigned bit = 0; bit < 64; ++bit) {
        hashes.insert(KeyedHash(std::uint64_t{1} << bit, "name"));
    }
    EXPECT_EQ(hashes.size(), 65U);
}

TEST(KeyedHash, DependsOnEachBitOfTheText) {
    for (std::size_t size = 0; size <= 24; ++size) {
        std::string text(size, 'a');
        std::set<std::size_t> hashes = {KeyedHash(0, text)};
        for (char& ch : text) {
            for (unsigned bit = 0; bit < 8; ++bit) {
                ch = static_cast<char>(ch ^ (1U << bit));
                hashes.insert(KeyedHash(0, text));
                ch = 'a';
            }
        }
        EXPECT_EQ(hashes.size(), 1 + size * 8) << size << " bytes";
    }
}

TEST(KeyedHash, DependsOnTheLength) {
    for (const char ch : {'\0', '\xff'}) {
        std::set<std::size_t> hashes;
        for (std::size_t size = 0; size <= 24; ++size) {
            hashes.insert(KeyedHash(0, std::string(size, ch)));
        }
        EXPECT_EQ(hashes.size(), 25U);
    }
}

TEST(KeyedHash, DependsOnTheOrderOfItsWords) {
    EXPECT_NE(KeyedHash(0, "firstwrdsecondwd"), KeyedHash(0, "secondwdfirstwrd"));
}

// Tables use the low bits alone.
TEST(KeyedHash, SpreadsItsLowBits) {
    std::set<std::size_t> ofNumbers;
    std::set<std::size_t> ofTexts;
    for (unsigned number = 0; number < 4096; ++number) {
        ofNumbers.insert(KeyedHash(std::uint64_t{number} << 20U, "") % 65536);
        ofTexts.insert(KeyedHash(0, std::to_string(number)) % 65536);
    }
    // Of so many random numbers 3970 are different, give or take ten.
    EXPECT_GT(ofNumbers.size(), 3850U);
    EXPECT_GT(ofTexts.size(), 3850U);
}

// Two calls of any sizes in ascending order, the same size twice included.
TEST(PrefixHash, IsTheHashOfThePrefixAlone) {
    const std::string text = "0123456789abcdef0123456789abcdef01\xff";
    for (std::size_t first = 0; first <= text.size(); ++first) {
        for (std::size_t second = first; second <= text.size(); ++second) {
            PrefixHash hash(7, text);
            EXPECT_EQ(hash.UpTo(first), KeyedHash(7, text.substr(0, first))) << first;
            EXPECT_EQ(hash.UpTo(second), KeyedHash(7, text.substr(0, second)))
                << second << " after " << first;
        }
    }
}

TEST(PrefixHash, GoesOverTheTextInManySteps) {
    const std::string text(100, 'a');
    PrefixHash hash(7, text);
    for (std::size_t size = 0; size <= text.size(); ++size) {
        EXPECT_EQ(hash.UpTo(size), KeyedHash(7, std::string(size, 'a'))) << size;
    }
}

// The environment tells the second process what the first one found. Windows has no setenv.
#ifndef _WIN32
TEST(KeyedHashDeathTest, HasAnotherKeyInEachProcess) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");  // starts the program anew
    const std::string hash = std::to_string(KeyedHash(7, "name"));
    setenv("VEXIL64_TEST_HASH", hash.c_str(), 0);
    EXPECT_EXIT(std::exit(hash == std::getenv("VEXIL64_TEST_HASH") ? 1 : 0),
                testing::ExitedWithCode(0), "");
    unsetenv("VEXIL64_TEST_HASH");
}
#endif

}  // namespace
}  // namespace vexil
