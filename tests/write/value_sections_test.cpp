// Tests of write/value_sections.cpp.
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <algorithm>

#include "write/model.h"
#include "write/sections.h"
#include "write/write_order.h"

namespace vexil {
namespace {

using test::Descriptions;
using test::Text;

std::shared_ptr<CANSignal> Signal(std::uint32_t valueType, const Descriptions& descriptions) {
    auto signal = test::NewSignal("S");
    signal->valueType = valueType;
    test::Describe(*signal, descriptions);
    return signal;
}

TEST(FormatValueDescription, TellsValuesInAscendingOrder) {
    const std::pair<Descriptions, std::string_view> cases[] = {
        {{{1, "On"}, {0, "Off"}}, "VAL_ 5 S 0 \"Off\" 1 \"On\";"},
        {{{0, "zero"}, {-1, "none"}}, "VAL_ 5 S -1 \"none\" 0 \"zero\";"},
        {{{2147483647, "max"}, {-2147483647 - 1, "min"}},
         "VAL_ 5 S -2147483648 \"min\" 2147483647 \"max\";"},
        {{{0, ""}}, "VAL_ 5 S 0 \"\";"},
        {{{0, "a\"b\\; \xC3\xA4\n"}}, "VAL_ 5 S 0 \"a\"b\\; \xC3\xA4\n\";"},
    };
    for (const auto& [descriptions, line] : cases) {
        EXPECT_EQ(Signal(ValueUnsigned, descriptions)->FormatValueDescription(5), line);
    }
    EXPECT_EQ(Signal(ValueUnsigned, {{1, "x"}})->FormatValueDescription(4294967295U),
              "VAL_ 4294967295 S 1 \"x\";");
}

TEST(FormatValueDescription, IsThereForIntegersWithDescriptionsAlone) {
    const std::pair<std::uint32_t, std::string_view> cases[] = {
        {0, "VAL_ 5 S 1 \"x\";"}, {1, "VAL_ 5 S 1 \"x\";"},           {2, ""}, {3, ""},
        {4, "VAL_ 5 S 1 \"x\";"}, {4294967295U, "VAL_ 5 S 1 \"x\";"},
    };
    for (const auto& [valueType, line] : cases) {
        EXPECT_EQ(Signal(valueType, {{1, "x"}})->FormatValueDescription(5), line) << valueType;
        EXPECT_EQ(Signal(valueType, {})->FormatValueDescription(5), "") << valueType;
    }
}

TEST(FormatSignalValueType, IsThereForFloatsAlone) {
    const std::pair<std::uint32_t, std::string_view> cases[] = {
        {0, ""}, {1, ""},           {2, "SIG_VALTYPE_ 5 S : 1;"}, {3, "SIG_VALTYPE_ 5 S : 2;"},
        {4, ""}, {4294967295U, ""},
    };
    for (const auto& [valueType, line] : cases) {
        EXPECT_EQ(Signal(valueType, {})->FormatSignalValueType(5), line) << valueType;
    }
    EXPECT_EQ(Signal(ValueFloat32, {})->FormatSignalValueType(4294967295U),
              "SIG_VALTYPE_ 4294967295 S : 1;");
}

class ValueSections : public test::ModelTest {
  protected:
    // The lines in front of the first SIG_VALTYPE_, and those from there on.
    std::string ValueLines(std::uint32_t order = OrderAsStored) const {
        const std::string lines = Lines(order);
        return lines.substr(0, lines.find("SIG_VALTYPE_"));
    }

    std::string TypeLines(std::uint32_t order = OrderAsStored) const {
        const std::string lines = Lines(order);
        return lines.substr(std::min(lines.find("SIG_VALTYPE_"), lines.size()));
    }

    std::string Lines(std::uint32_t order) const {
        return Written([order](StatementFile& file) {
            WriteValueSections(file, MessagesInOrder(database.messages, order));
        });
    }

    static void AddSignalOf(CANMessage& message, std::string_view name, std::uint32_t valueType,
                            const Descriptions& descriptions = {}) {
        CANSignal& signal = AddSignal(message, name);
        signal.valueType = valueType;
        test::Describe(signal, descriptions);
    }
};

TEST_F(ValueSections, AreEmptyForPlainSignals) {
    AddSignalOf(AddMessage(1, "A"), "S", ValueUnsigned);
    AddSignalOf(AddMessage(2, "B"), "S", ValueSigned);
    EXPECT_EQ(ValueLines(), "");
    EXPECT_EQ(TypeLines(), "");
}

TEST_F(ValueSections, HoldASignalInOneOfThemAtMost) {
    CANMessage& first = AddMessage(1, "A");
    AddSignalOf(first, "F", ValueFloat32, {{0, "lost"}});
    AddSignalOf(first, "N", ValueUnsigned, {{0, "n"}});
    AddSignalOf(first, "P", ValueUnsigned);
    CANMessage& second = AddMessage(2, "B");
    AddSignalOf(second, "G", ValueFloat64);
    AddSignalOf(second, "O", ValueSigned, {{-1, "o"}});
    EXPECT_EQ(ValueLines(), Text({"VAL_ 1 N 0 \"n\";", "VAL_ 2 O -1 \"o\";"}));
    EXPECT_EQ(TypeLines(), Text({"SIG_VALTYPE_ 1 F : 1;", "SIG_VALTYPE_ 2 G : 2;"}));
    // The file loses the descriptions of a float, the model keeps them.
    EXPECT_EQ(first.signals[0]->enums.Sorted(), (Descriptions{{0, "lost"}}));
}

TEST_F(ValueSections, StandBehindEachOtherAtTheEndOfTheFile) {
    CANMessage& first = AddMessage(1, "A", "N");
    AddSignalOf(first, "F", ValueFloat32);
    AddSignalOf(AddMessage(2, "B", "N"), "V", ValueUnsigned, {{0, "v"}});
    const std::string file = WrittenFile();
    const std::string tail = Text({"VAL_ 2 V 0 \"v\";", "SIG_VALTYPE_ 1 F : 1;"});
    ASSERT_GE(file.size(), tail.size());
    EXPECT_EQ(file.substr(file.size() - tail.size()), tail);
}

TEST_F(ValueSections, DoNotAskWhetherASignalIsEmpty) {
    CANMessage& message = AddMessage(1, "A");
    AddSignalOf(message, "V", ValueUnsigned, {{0, "v"}});
    AddSignalOf(message, "F", ValueFloat32);
    message.signals[0]->isEmpty = true;
    message.signals[1]->isEmpty = true;
    EXPECT_EQ(ValueLines(), "VAL_ 1 V 0 \"v\";\n");
    EXPECT_EQ(TypeLines(), "SIG_VALTYPE_ 1 F : 1;\n");
}

TEST_F(ValueSections, FollowTheWriteOrder) {
    for (const auto& [id, name] : {std::pair{1U, "B"}, std::pair{2U, "C"}, std::pair{3U, "A"}}) {
        CANMessage& message = AddMessage(id, name);
        AddSignalOf(message, "Z", ValueUnsigned, {{0, name}});
        AddSignalOf(message, "Y", ValueFloat64);
    }
    const auto descriptions = [](std::initializer_list<int> ids, const std::string& names) {
        std::string text;
        std::size_t at = 0;
        for (const int id : ids) {
            text += "VAL_ " + std::to_string(id) + " Z 0 \"" + names[at++] + "\";\n";
        }
        return text;
    };
    const auto types = [](std::initializer_list<int> ids) {
        std::string text;
        for (const int id : ids) {
            text += "SIG_VALTYPE_ " + std::to_string(id) + " Y : 2;\n";
        }
        return text;
    };
    EXPECT_EQ(ValueLines(OrderByIdDescending), descriptions({3, 2, 1}, "ACB"));
    EXPECT_EQ(ValueLines(OrderByNameAscending), descriptions({3, 1, 2}, "ABC"));
    EXPECT_EQ(ValueLines(OrderAsStored), descriptions({1, 2, 3}, "BCA"));
    EXPECT_EQ(TypeLines(OrderByIdDescending), types({3, 2, 1}));
    EXPECT_EQ(TypeLines(OrderByNameAscending), types({3, 1, 2}));
    EXPECT_EQ(TypeLines(OrderAsStored), types({1, 2, 3}));
}

}  // namespace
}  // namespace vexil
