// Tests of write/write_order.h.
// SPDX-License-Identifier: MIT
#include "write/write_order.h"

#include <gtest/gtest.h>

#include "write/model.h"

namespace vexil {
namespace {

CANMessage NewMessage(std::uint32_t id, std::string_view name) {
    CANMessage message;
    message.id = id;
    message.name = name;
    return message;
}

TEST(CompareByIdDescending, ComparesUnsignedIds) {
    EXPECT_TRUE(CompareByIdDescending(NewMessage(2, "A"), NewMessage(1, "B")));
    EXPECT_FALSE(CompareByIdDescending(NewMessage(1, "A"), NewMessage(2, "B")));
    EXPECT_FALSE(CompareByIdDescending(NewMessage(1, "A"), NewMessage(1, "B")));
    EXPECT_TRUE(CompareByIdDescending(NewMessage(2147483648U, "A"), NewMessage(2147483647U, "A")));
    EXPECT_TRUE(CompareByIdDescending(NewMessage(4294967295U, "A"), NewMessage(0, "A")));
}

TEST(CompareByNameAscending, ComparesUnsignedBytesAndThenLengths) {
    const std::pair<std::string_view, std::string_view> ascending[] = {
        {"A", "B"},   {"Ab", "Abc"}, {"", "A"},         {"Z", "a"},
        {"A9", "A_"}, {"Abc", "Ac"}, {"z", "\xC3\xA4"}, {"\x7F", "\x80"},
    };
    for (const auto& [first, second] : ascending) {
        EXPECT_TRUE(CompareByNameAscending(NewMessage(9, first), NewMessage(1, second))) << first;
        EXPECT_FALSE(CompareByNameAscending(NewMessage(1, second), NewMessage(9, first))) << first;
    }
    EXPECT_FALSE(CompareByNameAscending(NewMessage(1, "A"), NewMessage(2, "A")));
}

TEST(CompareByNameAscending, IgnoresTheLongName) {
    CANMessage a = NewMessage(1, "A");
    CANMessage b = NewMessage(1, "B");
    a.longName = "last";
    b.longName = "first";
    EXPECT_TRUE(CompareByNameAscending(a, b));
}

class MessagesInOrder : public test::ModelTest {
  protected:
    // The order of the messages under an option, as a list of their transmitters.
    static std::string Order(std::uint32_t option) {
        std::string order;
        for (const CANMessage* message : vexil::MessagesInOrder(database.messages, option)) {
            order.append(message->transmitter).append(" ");
        }
        return order;
    }
};

TEST_F(MessagesInOrder, SortsByDescendingIdOrAscendingName) {
    AddMessage(5, "B", "b5");
    AddMessage(100, "C", "c100");
    AddMessage(7, "A", "a7");
    EXPECT_EQ(Order(0), "c100 a7 b5 ");
    EXPECT_EQ(Order(1), "a7 b5 c100 ");
    for (const std::uint32_t option : {2U, 3U, 7U, 4294967295U}) {
        EXPECT_EQ(Order(option), "b5 c100 a7 ") << option;
    }
}

TEST_F(MessagesInOrder, IsStableForManyEqualMessages) {
    std::string expected;
    for (int number = 0; number < 200; ++number) {
        const std::string mark = std::to_string(number);
        AddMessage(7, "Same", mark);
        expected += mark + ' ';
    }
    EXPECT_EQ(Order(0), expected);
    EXPECT_EQ(Order(1), expected);
}

TEST_F(MessagesInOrder, LeavesTheDatabaseUnchanged) {
    AddMessage(5, "B", "b5");
    AddMessage(100, "A", "a100");
    Order(0);
    Order(1);
    EXPECT_EQ(Order(2), "b5 a100 ");
}

}  // namespace
}  // namespace vexil
