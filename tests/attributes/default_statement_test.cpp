// Tests of attributes/default_statement.cpp: statements to definitions with defaults.
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "attributes/attribute_lines.h"

namespace vexil {
namespace {

using test::Lines;
using test::LinesOf;
using test::ReadTable;

constexpr std::string_view CycleTime = "BA_DEF_ BO_ \"GenMsgCycleTime\" INT 0 50;";
constexpr std::string_view SendType =
    "BA_DEF_ BO_ \"GenMsgSendType\" ENUM \"Cyclic\",\"Event\",\"None\";";
constexpr std::string_view BusType = "BA_DEF_ \"BusType\" STRING ;";

struct DefaultCase {
    std::string_view definition;
    std::string_view statement;
    std::string result;
};

TEST(ParseDefaultStatement, SetsTheValueOfTheDefinition) {
    const std::string cycleTime = "Msg GenMsgCycleTime Int [0,50]";
    const std::string sendType = "Msg GenMsgSendType Enum of 'Cyclic','Event','None'";
    const DefaultCase cases[] = {
        {CycleTime, "BA_DEF_DEF_ \"GenMsgCycleTime\" 7;", cycleTime + " = 7"},
        {CycleTime, "BA_DEF_DEF_ \"GenMsgCycleTime\" 100;", cycleTime + " = 100"},
        {CycleTime, "BA_DEF_DEF_\n\"GenMsgCycleTime\",\n100", cycleTime + " = 100"},
        {CycleTime, "BA_DEF_DEF_ \"GenMsgCycleTime\" 1.5;", cycleTime + " = 1"},
        {CycleTime, "BA_DEF_DEF_ \"GenMsgCycleTime\" +5;", cycleTime + " = 5"},
        {CycleTime, "BA_DEF_DEF_ \"GenMsgCycleTime\" 7 8 9;", cycleTime + " = 7"},
        {CycleTime, "BA_DEF_DEF_ \"GenMsgCycleTime\" \"7\";", cycleTime},
        {CycleTime, "BA_DEF_DEF_ \"GenMsgCycleTime\" 4294967296;", cycleTime},
        {CycleTime, "BA_DEF_DEF_ \"GenMsgCycleTime\" seven;", cycleTime},
        {SendType, "BA_DEF_DEF_ \"GenMsgSendType\" \"Event\";", sendType + " = #1"},
        {SendType, "BA_DEF_DEF_ \"GenMsgSendType\" 2;", sendType + " = #2"},
        {SendType, "BA_DEF_DEF_ \"GenMsgSendType\" 3;", sendType},
        {SendType, "BA_DEF_DEF_ \"GenMsgSendType\" -1;", sendType},
        {SendType, "BA_DEF_DEF_ \"GenMsgSendType\" \"Missing\";", sendType},
        {SendType, "BA_DEF_DEF_ \"GenMsgSendType\" Event;", sendType},
        {BusType, "BA_DEF_DEF_ \"BusType\" \"CAN FD\";", "Gen BusType Str = 'CAN FD'"},
        {BusType, "BA_DEF_DEF_ \"BusType\" \"CAN;\n FD\";", "Gen BusType Str = 'CAN FD'"},
        {BusType, "BA_DEF_DEF_ \"BusType\" \"\";", "Gen BusType Str"},
        {BusType, "BA_DEF_DEF_ \"BusType\" CAN;", "Gen BusType Str"},
    };
    for (const DefaultCase& row : cases) {
        const ReadTable table({row.definition, row.statement});
        EXPECT_EQ(LinesOf(table.definitions), (Lines{row.result})) << row.statement;
        EXPECT_EQ(LinesOf(table.values), Lines{}) << row.statement;
    }
}

TEST(ParseDefaultStatement, IgnoresOtherTokensAndNames) {
    for (const std::string_view statement : {
             "BA_DEF_DEF_",
             "BA_DEF_DEF_ \"GenMsgCycleTime\";",
             "BA_DEF_DEF_ GenMsgCycleTime 100;",
             "BA_DEF_DEF_ BO_ \"GenMsgCycleTime\" 100;",
             "BA_DEF_DEF_ \"\" 100;",
             "BA_DEF_DEF_ 100;",
             "BA_DEF_DEF_ \"genmsgcycletime\" 100;",
             "BA_DEF_DEF_ \"GenMsgSendType\" 100;",
             "BA_DEF_DEF_ \"Mine\" 100;",
         }) {
        const ReadTable table({CycleTime, statement});
        EXPECT_EQ(LinesOf(table.definitions), (Lines{"Msg GenMsgCycleTime Int [0,50]"}))
            << statement;
    }
}

TEST(ParseDefaultStatement, EmptiesAnEarlierDefaultOfAStr) {
    const std::string_view earlier = "BA_DEF_DEF_ \"BusType\" \"CAN FD\";";
    for (const std::string_view statement :
         {"BA_DEF_DEF_ \"BusType\" \"\";", "BA_DEF_DEF_ \"BusType\" CAN;"}) {
        EXPECT_EQ(LinesOf(ReadTable({BusType, earlier, statement}).definitions),
                  (Lines{"Gen BusType Str"}))
            << statement;
    }
}

TEST(ParseDefaultStatement, OverwritesAnEarlierDefault) {
    const ReadTable table({CycleTime, "BA_DEF_DEF_ \"GenMsgCycleTime\" 1;",
                           "BA_DEF_DEF_ \"GenMsgCycleTime\" 2;",
                           "BA_DEF_DEF_ \"GenMsgCycleTime\" x;"});
    EXPECT_EQ(LinesOf(table.definitions), (Lines{"Msg GenMsgCycleTime Int [0,50] = 2"}));
}

TEST(ParseDefaultStatement, SetsEveryDefinitionOfTheNameByItsOwnType) {
    const ReadTable table({
        "BA_DEF_ BO_ \"BusType\" INT 0 5;",
        "BA_DEF_ SG_ \"BusType\" STRING ;",
        "BA_DEF_ \"BusType\" ENUM \"A\",\"B\";",
        "BA_DEF_ SG_ \"BusType\" INT 0 5;",
        "BA_DEF_ BO_ \"J1939PGN\" INT 0 5;",
        "BA_DEF_DEF_ \"BusType\" 1;",
        "BA_DEF_DEF_ \"BusType\" \"A\";",
    });
    EXPECT_EQ(
        LinesOf(table.definitions),
        (Lines{"Msg BusType Int [0,5] = 1", "Sig BusType Str = 'A'", "Gen BusType Enum of 'A','B'",
               "Sig BusType Int [0,5] = 1", "Msg J1939PGN Int [0,5]"}));
}

TEST(ParseDefaultStatement, IsDroppedBeforeItsDefinition) {
    const ReadTable table({"BA_DEF_DEF_ \"GenMsgCycleTime\" 5;", CycleTime});
    EXPECT_EQ(LinesOf(table.definitions), (Lines{"Msg GenMsgCycleTime Int [0,50]"}));
}

TEST(ParseDefaultStatement, LeavesStoredValuesUnchanged) {
    const ReadTable table(
        {CycleTime, "BA_ \"GenMsgCycleTime\" BO_ 256 3;", "BA_DEF_DEF_ \"GenMsgCycleTime\" 5;"});
    EXPECT_EQ(LinesOf(table.definitions), (Lines{"Msg GenMsgCycleTime Int [0,50] = 5"}));
    EXPECT_EQ(LinesOf(table.values), (Lines{"Msg GenMsgCycleTime message 256 Int [0,50] = 3"}));
}

TEST(ParseDefaultStatement, DropsADefaultOfANameThatIsDefinedButNotReserved) {
    ReadTable table({});
    table.AddDefinition(
        test::MakeAttribute(AttributeObjectKind::Gen, "Mine", AttributeValueType::Int));
    const Lines before = LinesOf(table.definitions);
    table.Read("BA_DEF_DEF_ \"Mine\" 1;");
    EXPECT_EQ(LinesOf(table.definitions), before);
}

}  // namespace
}  // namespace vexil
