// Tests of write/unique_names.cpp.
// SPDX-License-Identifier: MIT
#include "write/model.h"

namespace vexil {
namespace {

using Names = std::vector<std::string>;

const std::string Base27 = "Abcdefghijklmnopqrstuvwxyz_";

class UniqueNamesTest : public test::ModelTest {
  protected:
    // A signal without a message in the database.
    static CANSignal& Signal(std::string_view name, bool hasNameSuffix = false) {
        CANMessage message;
        CANSignal& signal = AddSignal(message, name);
        signal.hasNameSuffix = hasNameSuffix;
        return signal;
    }

    static bool AddSuffix(CANSignal& signal, std::uint32_t index) {
        return signal.AddUniqueSuffix(database.arena, index);
    }
};

using AddUniqueSuffix = UniqueNamesTest;
using BaseName = UniqueNamesTest;

TEST_F(AddUniqueSuffix, AppendsTheIndexInFourDigits) {
    const std::pair<std::uint32_t, std::string_view> cases[] = {
        {0, "S_0000"},  {1, "S_0001"},   {9, "S_0009"},    {10, "S_0010"},
        {42, "S_0042"}, {999, "S_0999"}, {1000, "S_1000"}, {9999, "S_9999"},
    };
    for (const auto& [index, name] : cases) {
        CANSignal& signal = Signal("S");
        EXPECT_TRUE(AddSuffix(signal, index));
        EXPECT_EQ(signal.name, name);
        EXPECT_TRUE(signal.hasNameSuffix);
    }
}

TEST_F(AddUniqueSuffix, RefusesAnIndexOf10000AndMore) {
    for (const std::uint32_t index : {10000U, 10001U, 4294967295U}) {
        CANSignal& signal = Signal("S");
        EXPECT_FALSE(AddSuffix(signal, index));
        EXPECT_EQ(signal.name, "S");
        EXPECT_FALSE(signal.hasNameSuffix);
    }
}

TEST_F(AddUniqueSuffix, KeepsTheNameWithin32Characters) {
    const std::string letters = Base27 + "12345";
    for (std::size_t size = 26; size <= 32; ++size) {
        CANSignal& signal = Signal(letters.substr(0, size));
        EXPECT_TRUE(AddSuffix(signal, 7));
        EXPECT_EQ(signal.name, letters.substr(0, std::min<std::size_t>(size, 27)) + "_0007")
            << size;
    }
}

TEST_F(AddUniqueSuffix, MakesAnEmptyNameTheSuffix) {
    CANSignal& signal = Signal("");
    EXPECT_TRUE(AddSuffix(signal, 3));
    EXPECT_EQ(signal.name, "_0003");
}

TEST_F(AddUniqueSuffix, ReplacesItsOwnSuffix) {
    CANSignal& signal = Signal("S_0007", true);
    EXPECT_TRUE(AddSuffix(signal, 12));
    EXPECT_EQ(signal.name, "S_0012");
    CANSignal& longest = Signal(Base27 + "_0007", true);
    EXPECT_TRUE(AddSuffix(longest, 8));
    EXPECT_EQ(longest.name, Base27 + "_0008");
    // One that the name had from the start is part of the name.
    CANSignal& plain = Signal("S_0007");
    EXPECT_TRUE(AddSuffix(plain, 12));
    EXPECT_EQ(plain.name, "S_0007_0012");
}

TEST_F(BaseName, IsTheNameWithoutItsOwnSuffix) {
    EXPECT_EQ(Signal("S_0007", true).BaseName(), "S");
    EXPECT_EQ(Signal("S_0007", false).BaseName(), "S_0007");
    EXPECT_EQ(Signal("_0000", true).BaseName(), "");
    EXPECT_EQ(Signal("").BaseName(), "");
}

class MakeSignalNamesUnique : public UniqueNamesTest {
  protected:
    static CANMessage& MessageWith(const Names& names) {
        CANMessage& message = AddMessage(1, "M");
        for (const std::string& name : names) {
            AddSignal(message, name);
        }
        return message;
    }

    struct Pass {
        bool foundDuplicate;
        Names names;
    };

    static void ExpectPasses(const Names& names, const std::vector<Pass>& passes) {
        CANMessage& message = MessageWith(names);
        for (std::size_t at = 0; at < passes.size(); ++at) {
            EXPECT_EQ(message.MakeSignalNamesUnique(database.arena), passes[at].foundDuplicate)
                << "pass " << at;
            EXPECT_EQ(SignalNames(message), passes[at].names) << "pass " << at;
        }
    }
};

TEST_F(MakeSignalNamesUnique, LeavesUniqueNames) {
    ExpectPasses({}, {{false, {}}});
    ExpectPasses({"A"}, {{false, {"A"}}});
    ExpectPasses({"A", "B", ""}, {{false, {"A", "B", ""}}, {false, {"A", "B", ""}}});
}

TEST_F(MakeSignalNamesUnique, NumbersEqualNamesInTheirOrder) {
    const Names once = {"A_0000", "B", "A_0001", "A_0002"};
    ExpectPasses({"A", "B", "A", "A"}, {{true, once}, {true, once}, {true, once}});
}

TEST_F(MakeSignalNamesUnique, NumbersEachGroupSeparately) {
    const Names once = {"A_0000", "B_0000", "A_0001", "B_0001", "C"};
    ExpectPasses({"A", "B", "A", "B", "C"}, {{true, once}, {true, once}});
}

TEST_F(MakeSignalNamesUnique, TreatsASuffixInTheFileAsPartOfTheName) {
    ExpectPasses({"A_0000", "A_0000", "A_0000"},
                 {{true, {"A_0000_0000", "A_0000_0001", "A_0000_0002"}}});
    // So a name that looks like a suffixed one stays a duplicate.
    ExpectPasses({"A", "A", "A_0000"},
                 {{true, {"A_0000", "A_0001", "A_0000"}}, {true, {"A_0000", "A_0001", "A_0000"}}});
}

TEST_F(MakeSignalNamesUnique, KeepsLongNamesAndMarksTheSuffix) {
    CANMessage& message = MessageWith({"A", "A", "B"});
    message.MakeSignalNamesUnique(database.arena);
    EXPECT_EQ(message.signals[0]->longName, "A");
    EXPECT_EQ(message.signals[1]->rawName, "A");
    EXPECT_TRUE(message.signals[0]->hasNameSuffix);
    EXPECT_TRUE(message.signals[1]->hasNameSuffix);
    EXPECT_FALSE(message.signals[2]->hasNameSuffix);
}

TEST_F(MakeSignalNamesUnique, MergesGroupsThatDifferOnlyAfter27Characters) {
    const std::string b = Base27 + "B";
    const std::string c = Base27 + "C";
    const auto suffixed = [](std::initializer_list<const char*> numbers) {
        Names names;
        for (const char* number : numbers) {
            names.push_back(Base27 + "_" + number);
        }
        return names;
    };
    // The first pass numbers two groups, the second finds one of four and renumbers it.
    ExpectPasses({b, b, c, c}, {{true, suffixed({"0000", "0001", "0000", "0001"})},
                                {true, suffixed({"0000", "0001", "0002", "0003"})},
                                {true, suffixed({"0000", "0001", "0002", "0003"})}});
    ExpectPasses({b, c, b, c}, {{true, suffixed({"0000", "0000", "0001", "0001"})},
                                {true, suffixed({"0000", "0001", "0002", "0003"})}});
}

// A name of 27 characters joins a group that was truncated to it: in the same pass when it is
// between them, and in the next pass when it is after them.
TEST_F(MakeSignalNamesUnique, MergesATruncatedGroupWithANameOf27Characters) {
    const std::string longer = Base27 + "B";
    const std::string zero = Base27 + "_0000";
    const std::string one = Base27 + "_0001";
    const std::string two = Base27 + "_0002";
    ExpectPasses({longer, Base27, longer}, {{true, {zero, zero, one}}, {true, {zero, one, two}}});
    ExpectPasses({longer, longer, Base27}, {{true, {zero, one, Base27}}, {true, {zero, one, two}}});
    ExpectPasses({Base27, longer, longer}, {{true, {Base27, zero, one}}, {true, {zero, one, two}}});
}

TEST_F(MakeSignalNamesUnique, GivesALaterSignalTheNextNumber) {
    CANMessage& message = MessageWith({"A", "A"});
    message.MakeSignalNamesUnique(database.arena);
    AddSignal(message, "B");
    AddSignal(message, "A");
    EXPECT_TRUE(message.MakeSignalNamesUnique(database.arena));
    EXPECT_EQ(SignalNames(message), (Names{"A_0000", "A_0001", "B", "A_0002"}));
}

TEST_F(MakeSignalNamesUnique, RenumbersWhenASignalWasInserted) {
    CANMessage& message = MessageWith({"A", "A"});
    message.MakeSignalNamesUnique(database.arena);
    AddSignal(message, "A");
    std::swap(message.signals[0], message.signals[2]);
    EXPECT_TRUE(message.MakeSignalNamesUnique(database.arena));
    EXPECT_EQ(SignalNames(message), (Names{"A_0000", "A_0001", "A_0002"}));
    EXPECT_TRUE(message.signals[0]->hasNameSuffix);
}

TEST_F(MakeSignalNamesUnique, HasNoSuffixForMoreThan10000Signals) {
    CANMessage& message = MessageWith(Names(MaxSignalsPerMessage + 2, "A"));
    EXPECT_TRUE(message.MakeSignalNamesUnique(database.arena));
    EXPECT_EQ(message.signals[9999]->name, "A_9999");
    EXPECT_EQ(message.signals[10000]->name, "A");
    EXPECT_EQ(message.signals[10001]->name, "A");
    EXPECT_FALSE(message.signals[10001]->hasNameSuffix);
}

}  // namespace
}  // namespace vexil
