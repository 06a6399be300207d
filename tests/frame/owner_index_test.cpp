// Tests of OwnerIndex: which messages and signals a statement reaches.
// SPDX-License-Identifier: MIT
#include "frame/owner_index.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vexil {
namespace {

using Texts = std::vector<std::string_view>;

Texts TextsFrom(const Note* note) {
    Texts texts;
    for (; note != nullptr; note = note->next) {
        texts.push_back(note->text);
    }
    return texts;
}

class OwnerIndexTest : public testing::Test {
  protected:
    CANMessage& AddMessage(std::uint32_t id) {
        auto* const message = arena.New<CANMessage>();
        message->id = id;
        index.AddMessage(*message);
        return *message;
    }

    CANSignal& AddSignal(std::uint32_t messageId, std::string_view name,
                         std::uint32_t bitLength = 0) {
        auto* const signal = arena.New<CANSignal>();
        signal->rawName = name;
        signal->bitLength = bitLength;
        index.AddSignal(messageId, *signal);
        return *signal;
    }

    void AddMessageComment(std::uint32_t id, std::string_view text) {
        index.AddComment(arena, *index.FindMessage(id), text);
    }

    void AddComment(std::uint32_t messageId, std::string_view name, std::string_view text) {
        index.AddComment(arena, *index.FindSignal(messageId, name), text);
    }

    void AddStatement(std::uint32_t messageId, std::string_view name, std::string_view text) {
        index.AddStatement(arena, *index.FindSignal(messageId, name), text);
    }

    // The names that text begins with.
    Texts NamesAt(std::uint32_t messageId, std::string_view text) {
        Texts names;
        index.ForEachSignalAt(messageId, text, [&](const Owner& owner, Position end) {
            EXPECT_EQ(owner.signal->rawName, text.substr(0, end));
            names.push_back(text.substr(0, end));
        });
        return names;
    }

    Arena arena;
    OwnerIndex index;
};

TEST_F(OwnerIndexTest, IsEmptyWhenNew) {
    EXPECT_EQ(index.FindMessage(5), nullptr);
    EXPECT_EQ(index.FindSignal(5, "S"), nullptr);
    EXPECT_EQ(NamesAt(5, "S "), Texts{});
}

TEST_F(OwnerIndexTest, FindsTheLatestOwnerOfAKey) {
    AddMessage(5);
    AddSignal(5, "S");
    const CANMessage& message = AddMessage(5);
    const CANSignal& signal = AddSignal(5, "S");
    AddMessage(6);
    AddSignal(6, "S");
    AddSignal(5, "T");
    EXPECT_EQ(index.FindMessage(5)->notes, &message.notes);
    EXPECT_EQ(index.FindSignal(5, "S")->signal, &signal);
    EXPECT_EQ(index.FindMessage(7), nullptr);
    EXPECT_EQ(index.FindSignal(6, "T"), nullptr);
    EXPECT_EQ(index.FindSignal(7, "S"), nullptr);
}

TEST_F(OwnerIndexTest, DistinguishesAMessageFromASignalWithoutAName) {
    for (const std::uint32_t id : {0U, 5U, 0xFFFFFFFFU}) {
        const CANMessage& message = AddMessage(id);
        EXPECT_EQ(index.FindSignal(id, ""), nullptr);
        const CANSignal& signal = AddSignal(id, "");
        EXPECT_EQ(index.FindMessage(id)->notes, &message.notes);
        EXPECT_EQ(index.FindSignal(id, "")->signal, &signal);
        index.Clear();
        AddSignal(id, "");
        EXPECT_EQ(index.FindMessage(id), nullptr);
    }
}

TEST_F(OwnerIndexTest, OwnerHasTheNotesAddedAfterIt) {
    const CANSignal& first = AddSignal(5, "S");
    const CANSignal& second = AddSignal(5, "S");
    AddComment(5, "S", "a");
    AddComment(5, "S", "b");
    AddStatement(5, "S", "1");
    const CANSignal& third = AddSignal(5, "S");
    const CANSignal& fourth = AddSignal(5, "S");
    AddComment(5, "S", "c");
    AddStatement(5, "S", "2");
    AddStatement(5, "S", "3");
    const CANSignal& late = AddSignal(5, "S");
    for (const CANSignal* const signal : {&first, &second}) {
        EXPECT_EQ(TextsFrom(signal->notes.comments), (Texts{"a", "b", "c"}));
        EXPECT_EQ(TextsFrom(signal->notes.statements), (Texts{"1", "2", "3"}));
    }
    for (const CANSignal* const signal : {&third, &fourth}) {
        EXPECT_EQ(TextsFrom(signal->notes.comments), (Texts{"c"}));
        EXPECT_EQ(TextsFrom(signal->notes.statements), (Texts{"2", "3"}));
    }
    EXPECT_EQ(TextsFrom(late.notes.comments), Texts{});
    EXPECT_EQ(TextsFrom(late.notes.statements), Texts{});
}

TEST_F(OwnerIndexTest, NotesReachOnlyOwnersOfTheirKey) {
    const CANMessage& message = AddMessage(5);
    const CANSignal& nameless = AddSignal(5, "");
    const CANSignal& signal = AddSignal(5, "S");
    const CANSignal& other = AddSignal(6, "S");
    const CANMessage& second = AddMessage(5);
    AddMessageComment(5, "message");
    AddComment(5, "", "nameless");
    AddComment(5, "S", "signal");
    EXPECT_EQ(TextsFrom(message.notes.comments), (Texts{"message"}));
    EXPECT_EQ(TextsFrom(second.notes.comments), (Texts{"message"}));
    EXPECT_EQ(TextsFrom(nameless.notes.comments), (Texts{"nameless"}));
    EXPECT_EQ(TextsFrom(signal.notes.comments), (Texts{"signal"}));
    EXPECT_EQ(TextsFrom(other.notes.comments), Texts{});
}

TEST_F(OwnerIndexTest, VisitsEveryNameThatIsAPrefixOfTheText) {
    for (const char* const name : {"A", "A B", "A B C", "A  B", "A\tB", "AB", "B", "A B", ""}) {
        AddSignal(7, name);
    }
    AddSignal(8, "A B C D");
    AddSignal(8, "E F");
    EXPECT_EQ(NamesAt(7, "A B C 1"), (Texts{"A", "A B", "A B C"}));
    EXPECT_EQ(NamesAt(7, "A B C"), (Texts{"A", "A B"}));
    EXPECT_EQ(NamesAt(7, "A B\n"), (Texts{"A", "A B"}));
    EXPECT_EQ(NamesAt(7, "A BC "), (Texts{"A"}));
    EXPECT_EQ(NamesAt(7, "A  B "), (Texts{"A", "A  B"}));
    EXPECT_EQ(NamesAt(7, "A\tB\t"), (Texts{"A", "A\tB"}));
    EXPECT_EQ(NamesAt(7, "A \t"), (Texts{"A"}));
    EXPECT_EQ(NamesAt(7, "AB "), (Texts{"AB"}));
    EXPECT_EQ(NamesAt(7, "A B C D "), (Texts{"A", "A B", "A B C"}));
    EXPECT_EQ(NamesAt(8, "A B C D "), (Texts{"A B C D"}));
    for (const char* const text : {"A", "ABC ", "C A ", ""}) {
        EXPECT_EQ(NamesAt(7, text), Texts{}) << text;
    }
}

TEST_F(OwnerIndexTest, MakeFloatChangesOnlySignalsOfTheSize) {
    const CANSignal& single = AddSignal(5, "S", 32);
    const CANSignal& other = AddSignal(5, "S", 31);
    const CANSignal& twice = AddSignal(5, "S", 64);
    index.MakeFloat(*index.FindSignal(5, "S"), 32);
    EXPECT_EQ(single.valueType, ValueFloat32);
    EXPECT_EQ(twice.valueType, ValueUnsigned);
    index.MakeFloat(*index.FindSignal(5, "S"), 64);
    EXPECT_EQ(single.valueType, ValueFloat32);
    EXPECT_EQ(other.valueType, ValueUnsigned);
    EXPECT_EQ(twice.valueType, ValueFloat64);
}

TEST_F(OwnerIndexTest, MakeFloatChangesOnlyOwnersBeforeTheStatement) {
    for (const auto& [bits, type] : {std::pair{32U, ValueFloat32}, std::pair{64U, ValueFloat64}}) {
        const std::string name = std::to_string(bits);
        const CANSignal& first = AddSignal(5, name, bits);
        index.MakeFloat(*index.FindSignal(5, name), bits);
        const CANSignal& second = AddSignal(5, name, bits);
        const CANSignal& third = AddSignal(5, name, bits);
        EXPECT_EQ(first.valueType, type);
        EXPECT_EQ(third.valueType, ValueUnsigned);
        index.MakeFloat(*index.FindSignal(5, name), bits);
        EXPECT_EQ(second.valueType, type);
        EXPECT_EQ(third.valueType, type);
    }
}

TEST_F(OwnerIndexTest, ReachesManyOwnersOfManyKeys) {
    constexpr std::uint32_t Ids = 500;
    std::vector<const CANMessage*> messages;
    std::vector<const CANSignal*> signals;
    for (std::uint32_t round = 0; round < 2; ++round) {
        for (std::uint32_t id = 0; id < Ids; ++id) {
            messages.push_back(&AddMessage(id));
            signals.push_back(&AddSignal(id, arena.Keep("S" + std::to_string(id % 7))));
            signals.push_back(&AddSignal(1000, arena.Keep("T" + std::to_string(id % 5))));
        }
    }
    for (std::uint32_t id = 0; id < Ids; ++id) {
        const std::string_view text = arena.Keep(std::to_string(id));
        AddMessageComment(id, text);
        AddStatement(id, "S" + std::to_string(id % 7), text);
    }
    for (const char* const name : {"T0", "T1", "T2", "T3", "T4"}) {
        AddStatement(1000, name, name);
    }
    for (std::uint32_t at = 0; at < 2 * Ids; ++at) {
        const std::string text = std::to_string(at % Ids);
        EXPECT_EQ(TextsFrom(messages[at]->notes.comments), (Texts{text}));
        EXPECT_EQ(TextsFrom(signals[2 * at]->notes.statements), (Texts{text}));
        EXPECT_EQ(TextsFrom(signals[2 * at + 1]->notes.statements),
                  (Texts{signals[2 * at + 1]->rawName}));
    }
}

TEST_F(OwnerIndexTest, IsEmptyAfterClear) {
    AddMessage(5);
    const CANSignal& before = AddSignal(5, "A B");
    AddStatement(5, "A B", "1");
    index.Clear();
    EXPECT_EQ(index.FindMessage(5), nullptr);
    EXPECT_EQ(index.FindSignal(5, "A B"), nullptr);
    const CANSignal& after = AddSignal(5, "A B");
    EXPECT_EQ(NamesAt(5, "A B "), (Texts{"A B"}));
    AddStatement(5, "A B", "2");
    EXPECT_EQ(TextsFrom(before.notes.statements), (Texts{"1"}));
    EXPECT_EQ(TextsFrom(after.notes.statements), (Texts{"2"}));
}

}  // namespace
}  // namespace vexil
