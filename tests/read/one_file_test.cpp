// The road of one file: from its text into the model, from there into records, and back into text.
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "frame/can_database.h"
#include "support/dump.h"
#include "support/files.h"
#include "support/read_text.h"
#include "write/write_driver.h"

namespace vexil {
namespace {

class OneFile : public test::DatabaseTest {};

TEST_F(OneFile, GoesFromTextToRecordsToText) {
    ASSERT_EQ(test::ReadText("BO_ 291 Engine: 8 ECU1\n"
                             " SG_ Speed : 0|16@1+ (0.1,0) [0|6553.5] \"km/h\" ABS\n"
                             "\n"
                             "CM_ BO_ 291 \"Main data\";\n"
                             "BA_DEF_ BO_ \"GenMsgCycleTime\" INT 0 65535;\n"
                             "BA_ \"GenMsgCycleTime\" BO_ 291 100;\n"),
              test::GoodRead);
    EXPECT_EQ(test::DumpDatabase(),
              "291 'Engine' 8 'ECU1' cycle=100 comment='Main data'\n"
              "  'Speed' 0|16@1+ (0.1,0) [0|6553.5] 'km/h' ABS\n");

    CanMessageRecord message = {};
    ASSERT_TRUE(database.messages[0]->CopyToRecord(&message));
    EXPECT_EQ(message.id, 291U);
    EXPECT_STREQ(message.name, "Engine");
    EXPECT_EQ(message.dlc, 8U);
    EXPECT_STREQ(message.longName, "Engine");
    EXPECT_STREQ(message.transmitter, "ECU1");
    EXPECT_EQ(message.signalCount, 1U);
    EXPECT_STREQ(message.comment, "Main data");
    EXPECT_STREQ(message.sendType, "");
    EXPECT_EQ(message.cycleTime, 100);
    CanSignalRecord signal = {};
    ASSERT_TRUE(database.messages[0]->signals[0]->CopyToRecord(&signal));
    EXPECT_STREQ(signal.name, "Speed");
    EXPECT_STREQ(signal.unit, "km/h");
    EXPECT_STREQ(signal.receiverList, "ABS");
    EXPECT_EQ(signal.factor, 0.1);
    EXPECT_EQ(signal.maximum, 6553.5);

    const test::TempFolder folder;
    const std::string path = folder.File("written.dbc");
    std::uint32_t code = 99;
    ASSERT_TRUE(WriteDbcFile(path.c_str(), static_cast<std::uint32_t>(path.size() + 1),
                             OrderByIdDescending, code));
    EXPECT_EQ(code, StateClosed);
    EXPECT_EQ(test::ReadTextFile(path),
              "VERSION \"\"\n"
              "\n"
              "NS_ :\n"
              "    NS_DESC_\n"
              "    CM_\n"
              "    BA_DEF_\n"
              "    BA_\n"
              "    VAL_\n"
              "    CAT_DEF_\n"
              "    CAT_\n"
              "    FILTER\n"
              "    BA_DEF_DEF_\n"
              "    EV_DATA_\n"
              "    ENVVAR_DATA_\n"
              "    SGTYPE_\n"
              "    SGTYPE_VAL_\n"
              "    BA_DEF_SGTYPE_\n"
              "    BA_SGTYPE_\n"
              "    SIG_TYPE_REF_\n"
              "    VAL_TABLE_\n"
              "    SIG_GROUP_\n"
              "    SIG_VALTYPE_\n"
              "    SIGTYPE_VALTYPE_\n"
              "    BO_TX_BU_\n"
              "    BA_DEF_REL_\n"
              "    BA_REL_\n"
              "    BA_DEF_DEF_REL_\n"
              "    BU_SG_REL_\n"
              "    BU_EV_REL_\n"
              "    BU_BO_REL_\n"
              "    SG_MUL_VAL_\n"
              "\n"
              "BS_ :\n"
              "\n"
              "BU_ :  ECU1 ABS\n"
              "\n"
              "BO_ 291 Engine: 8 ECU1\n"
              " SG_ Speed : 0|16@1+ (0.1,0) [0|6553.5] \"km/h\" ABS\n"
              "\n"
              "CM_ BO_ 291 \"Main data\";\n");

    EXPECT_EQ(test::ReadPath(path), test::GoodRead);
    EXPECT_EQ(test::DumpDatabase(),
              "291 'Engine' 8 'ECU1' comment='Main data'\n"
              "  'Speed' 0|16@1+ (0.1,0) [0|6553.5] 'km/h' ABS\n");
}

}  // namespace
}  // namespace vexil
