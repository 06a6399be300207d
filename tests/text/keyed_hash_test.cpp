// Tests of text/keyed_hash.h. The key is secret, so the tests compare hashes with each other.
// SPDX-License-Identifier: MIT
#include "text/keyed_hash.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#ifdef __linux__
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <ctime>
#include <iostream>
#include <iterator>
#include <sstream>
#include <vector>

#include "support/memory_sanitizer.h"

namespace {

bool isClockStopped = false;
constexpr timespec stoppedAt = {8123456789, 987654321};

}  // namespace

// Stands in for that of the C library, also for the runtime of C++.
extern "C" [[gnu::visibility("default")]] int clock_gettime(clockid_t clock,
                                                            timespec* time) noexcept {
    if (isClockStopped) {
        *time = stoppedAt;
        return 0;
    }
    vexil::test::MarkAsInitialised(time, sizeof(*time));
    return static_cast<int>(syscall(SYS_clock_gettime, clock, time));
}
#endif

namespace vexil {
namespace {

TEST(KeyedHash, IsEqualForEqualArguments) {
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
                ch = static_cast<char>(ch ^ (1 << bit));
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

// Tables use only the low bits.
TEST(KeyedHash, SpreadsItsLowBits) {
    std::set<std::size_t> ofNumbers;
    std::set<std::size_t> ofTexts;
    for (unsigned number = 0; number < 4096; ++number) {
        ofNumbers.insert(KeyedHash(std::uint64_t{number} << 20U, "") % 65536);
        ofTexts.insert(KeyedHash(0, std::to_string(number)) % 65536);
    }
    // About 3970 of so many random numbers are different.
    EXPECT_GT(ofNumbers.size(), 3850U);
    EXPECT_GT(ofTexts.size(), 3850U);
}

// Tries two calls with every pair of ascending or equal sizes.
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

TEST(PrefixHash, CanBeComputedInManySteps) {
    const std::string text(100, 'a');
    PrefixHash hash(7, text);
    for (std::size_t size = 0; size <= text.size(); ++size) {
        EXPECT_EQ(hash.UpTo(size), KeyedHash(7, std::string(size, 'a'))) << size;
    }
}

// -- The key --

// Whoever names the signals of a file may learn when a process started or where it has its data,
// but not both. So the key must depend on each of them. Windows starts no process as Linux
// does.
#ifdef __linux__

// Keeps what a process prints to standard error.
struct Keeps {
    using is_gtest_matcher = void;  // NOLINT(readability-identifier-naming): the name of gtest

    bool MatchAndExplain(const std::string& output, std::ostream* /*explanation*/) const {
        *printed = output;
        return true;
    }
    void DescribeTo(std::ostream* /*text*/) const {}
    void DescribeNegationTo(std::ostream* /*text*/) const {}

    std::string* printed;
};

class KeyedHashDeathTest : public testing::Test {
  protected:
    KeyedHashDeathTest() {
        GTEST_FLAG_SET(death_test_style, "threadsafe");  // starts the program anew
    }

    // Returns the words that a new process prints to standard error in print().
    template <typename Print>
    static std::vector<std::string> PrintedByANewProcess(Print print) {
        std::string printed;
        EXPECT_EXIT((print(), std::exit(0)), testing::ExitedWithCode(0), Keeps{&printed});
        std::istringstream words(printed);
        return {std::istream_iterator<std::string>(words), {}};
    }

    // The hash of an empty text depends on the key only.
    static void PrintHash() { std::cerr << KeyedHash(0, "") << ' '; }

    // Prints the hash of a copy of this process, which has its data at the same place.
    static void PrintHashOfACopy() {
        const pid_t copy = fork();
        if (copy == 0) {
            PrintHash();
            _exit(0);
        }
        waitpid(copy, nullptr, 0);
    }
};

TEST_F(KeyedHashDeathTest, KeyDiffersBetweenProcesses) {
    const auto first = PrintedByANewProcess(PrintHash);
    const auto second = PrintedByANewProcess(PrintHash);
    EXPECT_EQ(first.size(), 1U);
    EXPECT_EQ(second.size(), 1U);
    EXPECT_NE(first, second);
}

TEST_F(KeyedHashDeathTest, KeyDependsOnTheTime) {
    const auto hashes = PrintedByANewProcess([] {
        PrintHashOfACopy();
        PrintHashOfACopy();
    });
    ASSERT_EQ(hashes.size(), 2U);
    EXPECT_NE(hashes[0], hashes[1]);
}

// The hash of the first half of the key and no text is 0, for any second half.
TEST_F(KeyedHashDeathTest, KeyMixesTheTimeWithSplitmix64) {
    const auto hash = PrintedByANewProcess([] {
        isClockStopped = true;
        std::uint64_t number = std::uint64_t{stoppedAt.tv_sec} * 1000000000U + stoppedAt.tv_nsec;
        number = (number ^ (number >> 30U)) * 0xbf58476d1ce4e5b9U;
        number = (number ^ (number >> 27U)) * 0x94d049bb133111ebU;
        std::cerr << KeyedHash(number ^ (number >> 31U), "");
    });
    EXPECT_EQ(hash, std::vector<std::string>{"0"});
}

TEST_F(KeyedHashDeathTest, KeyDependsOnTheAddressOfTheData) {
    const auto print = [] {
        isClockStopped = true;
        std::cerr << std::chrono::steady_clock::now().time_since_epoch().count() << ' '
                  << &isClockStopped << ' ';
        PrintHash();
    };
    const auto first = PrintedByANewProcess(print);
    const auto second = PrintedByANewProcess(print);
    ASSERT_EQ(first.size(), 3U);
    ASSERT_EQ(second.size(), 3U);
    ASSERT_EQ(first[0], second[0]) << "the clock runs";
    if (first[1] == second[1]) {
        GTEST_SKIP() << "the system gives every process the same addresses";
    }
    EXPECT_NE(first[2], second[2]);
}

#endif

}  // namespace
}  // namespace vexil
