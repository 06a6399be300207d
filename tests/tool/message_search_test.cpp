// Names, ids and patterns of messages.
// SPDX-License-Identifier: MIT
#include "database/message_search.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace vexil::test {
namespace {

struct PatternCase {
    const char* text;
    const char* pattern;
    bool matches;
};

class Patterns : public testing::TestWithParam<PatternCase> {};

TEST_P(Patterns, AreCompared) {
    const PatternCase& each = GetParam();
    EXPECT_EQ(tool::MatchesPattern(each.text, each.pattern), each.matches)
        << each.text << " and " << each.pattern;
}

INSTANTIATE_TEST_SUITE_P(
    MatchesPattern, Patterns,
    testing::Values(PatternCase{"Engine", "Engine", true}, PatternCase{"Engine", "engine", false},
                    PatternCase{"Engine", "Engin", false}, PatternCase{"Engin", "Engine", false},
                    PatternCase{"Engine", "*", true}, PatternCase{"", "*", true},
                    PatternCase{"", "", true}, PatternCase{"", "?", false},
                    PatternCase{"Engine", "", false}, PatternCase{"Engine", "E*e", true},
                    PatternCase{"Engine", "E*x", false}, PatternCase{"Engine", "*gin*", true},
                    PatternCase{"Engine", "**E**", true}, PatternCase{"Engine", "Engin?", true},
                    PatternCase{"Engine", "Engine?", false}, PatternCase{"aXbXc", "*Xc", true},
                    PatternCase{"aXbXcd", "*X?", false}, PatternCase{"abab", "*ab", true},
                    PatternCase{"T\xC3\xBCr", "T?r", true},
                    PatternCase{"T\xC3\xBCr", "T??r", false},
                    PatternCase{"T\xC3\xBCr", "*\xBCr", false}));

// A search that tries every share for every star would not come to an end.
TEST(MatchesPattern, TakesQuadraticTimeAtMost) {
    std::string pattern;
    for (int star = 0; star < 100; ++star) {
        pattern += "*a";
    }
    EXPECT_FALSE(tool::MatchesPattern(std::string(250, 'a'), pattern + "b"));
}

class FindMessages : public testing::Test {
  protected:
    void Add(std::uint32_t id, const std::string& name, const std::string& longName) {
        tool::MessageFacts message;
        message.id = id;
        message.name = Text(name);
        message.longName = Text(longName);
        snapshot.messages.push_back(message);
    }

    tool::TextRef Text(const std::string& text) {
        const auto begin = static_cast<std::uint32_t>(snapshot.texts.size());
        snapshot.texts += text;
        return {begin, static_cast<std::uint32_t>(text.size())};
    }

    void SetUp() override {
        Add(0x100, "Engine", "Engine status");
        Add(0x80000100U, "Gear", "256");
        Add(0xFFFFFFFFU, "EngineTwo", "EngineTwo");
    }

    std::vector<std::uint32_t> Find(std::string_view word) {
        return tool::FindMessages(snapshot, word);
    }

    using Found = std::vector<std::uint32_t>;
    tool::Snapshot snapshot;
};

TEST_F(FindMessages, TakesBothNames) {
    EXPECT_EQ(Find("Engine"), Found{0});
    EXPECT_EQ(Find("Engine status"), Found{0});
    EXPECT_EQ(Find("Engine*"), (Found{0, 2}));
    EXPECT_EQ(Find("*status"), Found{0});
    EXPECT_EQ(Find("engine"), Found{});
}

TEST_F(FindMessages, TakesIdsInBothFormsAndWithoutTheBitOfExtendedFrames) {
    EXPECT_EQ(Find("0x100"), (Found{0, 1}));
    EXPECT_EQ(Find("0X100"), (Found{0, 1}));
    EXPECT_EQ(Find("256"), (Found{0, 1}));
    EXPECT_EQ(Find("2147483904"), Found{1});
    EXPECT_EQ(Find("0x80000100"), Found{1});
    EXPECT_EQ(Find("4294967295"), Found{2});
    EXPECT_EQ(Find("0x7fffffff"), Found{2});
}

TEST_F(FindMessages, TakesNoNumberThatIsNoId) {
    for (const char* const word :
         {"4294967296", "0x100000100", "0x", "256 ", "-256", "+256", "0x-1", "100", ""}) {
        EXPECT_EQ(Find(word), Found{}) << word;
    }
}

}  // namespace
}  // namespace vexil::test
