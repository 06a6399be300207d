// Tests of CANDatabase: what it holds when it is made, and its reset.
// SPDX-License-Identifier: MIT
#include "frame/can_database.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include "attributes/attribute_statements.h"

namespace vexil {
namespace {

static_assert(std::has_virtual_destructor_v<CANDatabase>);
static_assert(!std::is_copy_constructible_v<CANDatabase>);

const std::vector<std::string> reservedNames = {
    "BusType",           "J1939PGN",         "IsNMEA",
    "Marrowby_Msg_Name", "GenMsgSendType",   "GenMsgCycleTime",
    "Marrowby_Sig_Name", "GenSigStartValue", "GenSigInactiveValue"};

void ExpectEmpty(const CANDatabase& empty) {
    EXPECT_EQ(empty.info.protocolType, 0U);
    EXPECT_TRUE(empty.messages.empty());
    EXPECT_TRUE(empty.parseErrors.empty());
    EXPECT_TRUE(empty.attributes.definitions.empty());
    EXPECT_TRUE(empty.attributes.values.empty());
    EXPECT_EQ(empty.attributes.reservedAttributeNames, reservedNames);
}

TEST(CANDatabase, IsEmptyWhenMade) {
    const CANDatabase made;
    ExpectEmpty(made);
    EXPECT_EQ(made.info.busType, 0U);
    EXPECT_EQ(made.messagesById.Size(), 0U);
}

TEST(CANDatabase, OfTheLibraryKnowsTheReservedNames) {
    EXPECT_EQ(database.attributes.reservedAttributeNames, reservedNames);
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
    filled.attributes.reservedAttributeNames = {"Other"};
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
