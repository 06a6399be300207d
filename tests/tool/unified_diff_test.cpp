// UnifiedDiff: the format to the byte, and that its hunks turn one text into the other.
// SPDX-License-Identifier: MIT
#include "view/unified_diff.h"

#include <gtest/gtest.h>

#include <random>
#include <sstream>
#include <vector>

#include "view/line_matches.h"

namespace vexil::tool {
namespace {

std::string Diff(std::string_view before, std::string_view after) {
    return UnifiedDiff({"a", before}, {"b", after});
}

std::string Numbered(int first, int last) {
    std::string text;
    for (int number = first; number <= last; ++number) {
        text += std::to_string(number) + "\n";
    }
    return text;
}

TEST(UnifiedDiff, IsEmptyForEqualTexts) {
    EXPECT_EQ(Diff("", ""), "");
    EXPECT_EQ(Diff("one\ntwo", "one\ntwo"), "");
}

TEST(UnifiedDiff, HasThreeLinesOfContext) {
    EXPECT_EQ(Diff(Numbered(1, 9), "1\n2\n3\n4\nfive\n6\n7\n8\n9\n"),
              "--- a\n+++ b\n@@ -2,7 +2,7 @@\n 2\n 3\n 4\n-5\n+five\n 6\n 7\n 8\n");
}

TEST(UnifiedDiff, JoinsChangesWhoseContextsTouch) {
    EXPECT_EQ(Diff("a\n" + Numbered(1, 6) + "b\n", "A\n" + Numbered(1, 6) + "B\n"),
              "--- a\n+++ b\n@@ -1,8 +1,8 @@\n-a\n+A\n 1\n 2\n 3\n 4\n 5\n 6\n-b\n+B\n");
}

TEST(UnifiedDiff, SeparatesChangesWhoseContextsDoNotTouch) {
    EXPECT_EQ(Diff("a\n" + Numbered(1, 7) + "b\n", "A\n" + Numbered(1, 7) + "B\n"),
              "--- a\n+++ b\n@@ -1,4 +1,4 @@\n-a\n+A\n 1\n 2\n 3\n@@ -6,4 +6,4 @@\n 5\n 6\n 7\n"
              "-b\n+B\n");
}

TEST(UnifiedDiff, NumbersAnEmptyRangeByTheLineAbove) {
    EXPECT_EQ(Diff("", "1\n"), "--- a\n+++ b\n@@ -0,0 +1 @@\n+1\n");
    EXPECT_EQ(Diff("1\n2\n", ""), "--- a\n+++ b\n@@ -1,2 +0,0 @@\n-1\n-2\n");
}

TEST(UnifiedDiff, MarksALastLineWithoutALineFeed) {
    EXPECT_EQ(Diff("1\n2", "1\n2\n"),
              "--- a\n+++ b\n@@ -1,2 +1,2 @@\n 1\n-2\n\\ No newline at end of file\n+2\n");
    EXPECT_EQ(Diff("1\n2", "2"),
              "--- a\n+++ b\n@@ -1,2 +1 @@\n-1\n 2\n\\ No newline at end of file\n");
}

TEST(UnifiedDiff, EndsANameWithABlankByATab) {
    EXPECT_EQ(UnifiedDiff({"my a", "1\n"}, {"b", ""}), "--- my a\t\n+++ b\n@@ -1 +0,0 @@\n-1\n");
}

TEST(UnifiedDiff, FindsLinesThatMoved) {
    EXPECT_EQ(Diff("a\nb\nc\n", "b\nc\na\n"), "--- a\n+++ b\n@@ -1,3 +1,3 @@\n-a\n b\n c\n+a\n");
}

// Applies the hunks, whose headers give the numbers of their lines, to a text.
std::string Patched(std::string_view before, const std::string& diff) {
    const std::vector<std::string_view> lines = LinesOf(before);
    std::istringstream in(diff);
    std::string after;
    std::size_t at = 0;
    bool isAdded = false;
    for (std::string line; std::getline(in, line);) {
        if (line.starts_with("@@ -")) {
            const std::size_t first = std::stoul(line.substr(4));
            const std::size_t count = line[line.find_first_of(", ", 4)] == ','
                                          ? std::stoul(line.substr(line.find(',') + 1))
                                          : 1;
            for (const std::size_t start = count == 0 ? first : first - 1; at < start; ++at) {
                after += lines.at(at);
            }
        } else if (line.starts_with("\\") && isAdded) {
            after.pop_back();
        } else if (line.starts_with("+") && !line.starts_with("+++ ")) {
            after += line.substr(1) + "\n";
        } else if (line.starts_with(" ")) {
            after += lines.at(at++);
        } else if (line.starts_with("-") && !line.starts_with("--- ")) {
            EXPECT_EQ(std::string(lines.at(at)).substr(0, line.size() - 1), line.substr(1));
            ++at;
        }
        isAdded = line.starts_with("+");
    }
    for (; at < lines.size(); ++at) {
        after += lines[at];
    }
    return after;
}

std::string RandomLines(std::mt19937& random) {
    std::string text;
    for (auto count = random() % 30; count != 0; --count) {
        text += std::string(1, static_cast<char>('a' + random() % 6)) + "\n";
    }
    if (random() % 4 == 0 && !text.empty()) {
        text.pop_back();
    }
    return text;
}

TEST(UnifiedDiff, TurnsTheOneTextIntoTheOther) {
    std::mt19937 random(7);
    for (int round = 0; round < 3000; ++round) {
        const std::string before = RandomLines(random);
        const std::string after = RandomLines(random);
        ASSERT_EQ(Patched(before, Diff(before, after)), after) << before << "--\n" << after;
    }
}

// Beyond what dtl compares in one part, with the longer text on either side.
TEST(UnifiedDiff, TurnsALongTextIntoAReorderedOne) {
    std::vector<std::string> lines;
    for (int number = 0; number < 6000; ++number) {
        lines.push_back(std::to_string(number) + "\n");
    }
    std::string before;
    for (const std::string& line : lines) {
        before += line;
    }
    std::shuffle(lines.begin(), lines.end(), std::mt19937(7));
    std::string after;
    for (const std::string& line : lines) {
        after += line;
    }
    after += Numbered(0, 999);
    EXPECT_TRUE(Patched(before, Diff(before, after)) == after);
    EXPECT_TRUE(Patched(after, Diff(after, before)) == before);
}

}  // namespace
}  // namespace vexil::tool
