// Tests of CANDatabase: what it holds when it is made, and its reset.
// SPDX-License-Identifier: MIT
#include "frame/can_database.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <memory>
#include <string_view>
#include <type_traits>

#include "attributes/attribute_statements.h"

namespace vexil {
namespace {

static_assert(std::has_virtual_destructor_v<CANDatabase>);
static_assert(!std::is_copy_constructible_v<CANDatabase>);

constexpr std::array<std::string_view, 9> ReservedNames = {
    "BusType",           "J1939PGN",         "IsNMEA",
    "Marrowby_Msg_Name", "GenMsgSendType",   "GenMsgCycleTime",
    "Marrowby_Sig_Name", "GenSigStartValue", "GenSigInactiveValue"};

void ExpectEmpty(const CANDatabase& empty) {
    EXPECT_EQ(empty.info.protocolType, 0U);
    EXPECT_TRUE(empty.messages.empty());
    EXPECT_TRUE(empty.parseErrors.empty());
    EXPECT_TRUE(empty.attributes.definitions.empty());
    EXPECT_TRUE(empty.attributes.values.empty());
    EXPECT_TRUE(std::ranges::equal(empty.attributes.reservedAttributeNames, ReservedNames));
}

TEST(CANDatabase, IsEmptyWhenMade) {
    const CANDatabase made;
    ExpectEmpty(made);
    EXPECT_EQ(made.info.busType, 0U);
    EXPECT_EQ(made.messagesById.Size(), 0U);
}

TEST(CANDatabase, OfTheLibraryKnowsTheReservedNames) {
    EXPECT_TRUE(std::ranges::equal(database.attributes.reservedAttributeNames, ReservedNames));
}

TEST(CANDatabase, ResetEmptiesAllButTheBusTypeAndTheTableOfIds) {
    CANDatabase filled;
    filled.info = {2, 1};
    const auto message = std::make_shared<CANMessage>();
    filled.messages = {message, std::make_shared<CANMessage>()};
    filled.parseErrors.resize(3);
    const auto addAttribute = [&filled] {
        ParseAttributeStatement(filled.attributes, "BA_DEF_ BO_ \"GenMsgCycleTime\" INT 0 9;\n");
        ParseAttributeStatement(filled.attributes, "BA_ \"GenMsgCycleTime\" BO_ 7 5;\n");
    };
    addAttribute();
    EXPECT_EQ(filled.attributes.definitions.size(), 1U);
    EXPECT_EQ(filled.attributes.values.size(), 1U);
    static constexpr std::array<std::string_view, 1> OtherNames = {"Other"};
    filled.attributes.reservedAttributeNames = OtherNames;
    filled.messagesById.Add(std::make_shared<CANMessage>());
    filled.Reset();
    ExpectEmpty(filled);
    EXPECT_EQ(filled.info.busType, 1U);
    EXPECT_EQ(filled.messagesById.Size(), 1U);
    EXPECT_EQ(message.use_count(), 1);
    // What went is not remembered: it may come again.
    addAttribute();
    EXPECT_EQ(filled.attributes.definitions.size(), 1U);
    EXPECT_EQ(filled.attributes.values.size(), 1U);
}

TEST(CANDatabase, ResetTwiceChangesNothingTheSecondTime) {
    CANDatabase filled;
    filled.info = {2, 7};
    filled.messages = {std::make_shared<CANMessage>()};
    filled.Reset();
    filled.Reset();
    ExpectEmpty(filled);
    EXPECT_EQ(filled.info.busType, 7U);
}

}  // namespace
}  // namespace vexil
