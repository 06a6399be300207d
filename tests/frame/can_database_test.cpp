// Tests of CANDatabase: its reset, the end of a read, and the descriptions that it keeps.
// SPDX-License-Identifier: MIT
#include "frame/can_database.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <string_view>
#include <type_traits>

#include "attributes/attribute_statements.h"
#include "frame/enums_of.h"

namespace vexil {
namespace {

using test::EnumPairs;
using test::EnumsOf;

static_assert(!std::is_copy_constructible_v<CANDatabase>);

// Puts a message with a described signal, an error and an attribute into the database, as a read
// does. Returns the signal.
CANSignal& Fill(CANDatabase& filled, std::string_view description) {
    CANMessage message;
    message.id = 7;
    CANMessage& added = filled.messages.Add(filled.arena, message);
    CANSignal& signal = *added.AddSignal(filled.arena, CANSignal());
    signal.notes.added = filled.arena.New<AddedDescription>(1, filled.arena.Keep(description));
    filled.owners.AddMessage(added);
    filled.parseErrors.Add(filled.arena, {});
    ParseDefinitionStatement(filled.attributes, filled.arena,
                             "BA_DEF_ BO_ \"GenMsgCycleTime\" INT 0 9;\n");
    ParseValueStatement(filled.attributes, filled.arena, "BA_ \"GenMsgCycleTime\" BO_ 7 5;\n");
    EXPECT_EQ(filled.attributes.definitions.size(), 1U);
    EXPECT_EQ(filled.attributes.values.Size(), 1U);
    return signal;
}

void ExpectNothingOfARead(CANDatabase& empty) {
    EXPECT_EQ(empty.owners.FindMessage(7), nullptr);
    EXPECT_TRUE(empty.attributes.definitions.empty());
    EXPECT_EQ(empty.attributes.values.Size(), 0U);
}

void ExpectEmpty(CANDatabase& empty) {
    EXPECT_EQ(empty.info.protocolType, 0U);
    EXPECT_EQ(empty.messages.Size(), 0U);
    EXPECT_EQ(empty.parseErrors.Size(), 0U);
    ExpectNothingOfARead(empty);
}

TEST(CANDatabase, IsEmptyWhenNew) {
    CANDatabase fresh;
    ExpectEmpty(fresh);
    EXPECT_EQ(fresh.info.busType, 0U);
}

TEST(CANDatabase, ResetKeepsOnlyTheBusType) {
    CANDatabase filled;
    for (int round = 0; round < 2; ++round) {
        filled.info = {2, 1};
        Fill(filled, "on");
        filled.Reset();
        ExpectEmpty(filled);
        EXPECT_EQ(filled.info.busType, 1U);
        filled.Reset();
        ExpectEmpty(filled);
        EXPECT_EQ(filled.info.busType, 1U);
    }
}

// Signals with a VAL_ statement each: one signal more than the database keeps descriptions of.
class ManyLooks {
  public:
    explicit ManyLooks(CANDatabase& looked) : owner(looked) {
        for (std::size_t at = 0; at < Count; ++at) {
            signals[at].notes.statements = &notes[at];
        }
        SetTexts("1 \"a\"");
    }

    // Replaces the text of each statement. This does not change the descriptions that are kept.
    void SetTexts(std::string_view text) {
        for (Note& note : notes) {
            note.text = text;
        }
    }

    void ExpectAll(const EnumPairs& expected) {
        for (std::size_t at = 0; at < Count; ++at) {
            Expect(at, expected);
        }
    }

    void Expect(std::size_t at, const EnumPairs& expected) {
        EXPECT_EQ(EnumsOf(owner.DescriptionsOf(signals[at])), expected) << "signal " << at;
    }

    void Append(std::size_t at, std::int32_t value, std::string_view text) {
        Notes& to = signals[at].notes;
        to.added = owner.arena.New<AddedDescription>(value, owner.arena.Keep(text), to.added);
    }

    static constexpr std::size_t Count = 5;

  private:
    CANDatabase& owner;
    std::array<Note, Count> notes;
    std::array<CANSignal, Count> signals;
};

TEST(CANDatabase, CachesTheDescriptionsOfFourSignals) {
    CANDatabase filled;
    ManyLooks looks(filled);
    looks.ExpectAll({{1, "a"}});
    looks.SetTexts("1 \"b\"");
    for (int round = 0; round < 2; ++round) {
        for (std::size_t at = ManyLooks::Count; --at > 0;) {
            looks.Expect(at, {{1, "a"}});
        }
    }
    looks.Expect(0, {{1, "b"}});  // takes the place of signal 1
    for (const std::size_t at : {4U, 3U, 2U}) {
        looks.Expect(at, {{1, "a"}});
    }
    looks.Expect(1, {{1, "b"}});
    looks.Expect(0, {{1, "b"}});
}

TEST(CANDatabase, AddsAppendedDescriptionsToCachedOnes) {
    CANDatabase filled;
    ManyLooks looks(filled);
    looks.ExpectAll({{1, "a"}});
    EnumPairs expected = {{1, "a"}};
    for (const char* const text : {"b", "c"}) {
        for (std::size_t at = 0; at < ManyLooks::Count; ++at) {
            looks.Append(at, 1, text);
        }
        expected[0].second += std::string(" - ") + text;
        looks.ExpectAll(expected);
    }
    for (std::size_t at = 0; at < ManyLooks::Count; ++at) {
        looks.Append(at, 1, "d");
        looks.Expect(at, {{1, "a - b - c - d"}});
        looks.Append(at, 0, "e");
        looks.Expect(at, {{0, "e"}, {1, "a - b - c - d"}});
    }
    looks.ExpectAll({{0, "e"}, {1, "a - b - c - d"}});
}

TEST(CANDatabase, ResetDropsAllCachedDescriptions) {
    CANDatabase filled;
    ManyLooks looks(filled);
    looks.ExpectAll({{1, "a"}});
    looks.SetTexts("1 \"b\"");
    filled.Reset();
    for (std::size_t at = ManyLooks::Count; at-- > 0;) {
        looks.Expect(at, {{1, "b"}});
    }
}

TEST(CANDatabase, EndReadKeepsMessagesAndErrors) {
    CANDatabase filled;
    filled.info = {2, 1};
    const CANSignal& signal = Fill(filled, "on");
    filled.EndRead();
    ExpectNothingOfARead(filled);
    EXPECT_EQ(filled.info.protocolType, 2U);
    ASSERT_EQ(filled.messages.Size(), 1U);
    EXPECT_EQ(filled.messages[0].signals[0], &signal);
    EXPECT_EQ(EnumsOf(filled.DescriptionsOf(signal)), (EnumPairs{{1, "on"}}));
    EXPECT_EQ(filled.parseErrors.Size(), 1U);
    // Nothing of the read is remembered: the next one may bring the same.
    Fill(filled, "on");
    EXPECT_NE(filled.owners.FindMessage(7), nullptr);
}

}  // namespace
}  // namespace vexil
