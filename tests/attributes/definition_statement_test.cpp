// Tests of attributes/definition_statement.cpp: statements to definitions.
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "attributes/attribute_lines.h"

namespace vexil {
namespace {

using test::Lines;
using test::LinesOf;
using test::ReadTable;

struct StoredCase {
    std::string statement;
    std::string definition;
};

void ExpectStored(const std::vector<StoredCase>& cases) {
    for (const StoredCase& row : cases) {
        const ReadTable table({row.statement});
        EXPECT_EQ(LinesOf(table.definitions), (Lines{row.definition})) << row.statement;
        EXPECT_EQ(LinesOf(table.values), Lines{}) << row.statement;
    }
}

void ExpectNothingStored(const std::vector<std::string_view>& statements) {
    for (const std::string_view statement : statements) {
        const ReadTable table({statement});
        EXPECT_EQ(LinesOf(table.definitions), Lines{}) << statement;
        EXPECT_EQ(LinesOf(table.values), Lines{}) << statement;
    }
}

TEST(ParseDefinitionStatement, StoresEachKindAndType) {
    ExpectStored({
        {"BA_DEF_ BO_ \"GenMsgCycleTime\" INT 0 65535;", "Msg GenMsgCycleTime Int [0,65535]"},
        {"BA_DEF_ SG_ \"GenSigStartValue\" INT -5 5;", "Sig GenSigStartValue Int [-5,5]"},
        {"BA_DEF_ \"J1939PGN\" INT 0 1;", "Gen J1939PGN Int [0,1]"},
        {"BA_DEF_ \"BusType\" STRING ;", "Gen BusType Str"},
        {"BA_DEF_ \"BusType\" STRING;", "Gen BusType Str"},
        {"BA_DEF_,;\"BusType\"\t\f\v;STRING", "Gen BusType Str"},
        {"BA_DEF_ BO_ \"Marrowby_Msg_Name\" STRING ;", "Msg Marrowby_Msg_Name Str"},
        {"BA_DEF_ SG_ \"Marrowby_Sig_Name\" STRING ;", "Sig Marrowby_Sig_Name Str"},
        {"BA_DEF_ BO_ \"GenMsgSendType\" ENUM \"Cyclic\",\"Event\",\"None\";",
         "Msg GenMsgSendType Enum of 'Cyclic','Event','None'"},
        {"BA_DEF_ \"IsNMEA\" ENUM \"No\";", "Gen IsNMEA Enum of 'No'"},
    });
}

TEST(ParseDefinitionStatement, StoresAReservedNameUnderAnyKindAndType) {
    for (const std::string name :
         {"BusType", "J1939PGN", "IsNMEA", "Marrowby_Msg_Name", "GenMsgSendType", "GenMsgCycleTime",
          "Marrowby_Sig_Name", "GenSigStartValue", "GenSigInactiveValue"}) {
        ExpectStored({{"BA_DEF_ BO_ \"" + name + "\" STRING ;", "Msg " + name + " Str"}});
    }
    ExpectStored({
        {"BA_DEF_ SG_ \"BusType\" INT 0 1;", "Sig BusType Int [0,1]"},
        {"BA_DEF_ \"GenMsgCycleTime\" STRING ;", "Gen GenMsgCycleTime Str"},
    });
}

TEST(ParseDefinitionStatement, RefusesOwnersWithoutAKind) {
    ExpectNothingStored({
        "BA_DEF_ BU_ \"BusType\" STRING ;",
        "BA_DEF_ EV_ \"BusType\" STRING ;",
        "BA_DEF_ bo_ \"BusType\" STRING ;",
        "BA_DEF_ BO_x \"BusType\" STRING ;",
        "BA_DEF_ BO_ SG_ \"BusType\" STRING ;",
    });
}

TEST(ParseDefinitionStatement, RefusesOtherTypes) {
    ExpectNothingStored({
        "BA_DEF_ BO_ \"GenMsgCycleTime\" FLOAT 0 100;",
        "BA_DEF_ BO_ \"GenMsgCycleTime\" HEX 0 100;",
        "BA_DEF_ \"BusType\" string ;",
        "BA_DEF_ \"BusType\" STRINGS ;",
        "BA_DEF_ BO_ \"GenMsgCycleTime\" Int 0 1;",
        "BA_DEF_ BO_ \"GenMsgSendType\" enum \"A\";",
    });
}

TEST(ParseDefinitionStatement, RefusesOtherTokens) {
    ExpectNothingStored({
        "BA_DEF_",
        "BA_DEF_ \"BusType\";",
        "BA_DEF_ BO_ \"BusType\";",
        "BA_DEF_ BusType STRING ;",
        "BA_DEF_ BO_ BusType STRING ;",
        "BA_DEF_ \"\" STRING ;",
        "BA_DEF_ 5 \"BusType\" STRING ;",
        "BA_DEF_ \"BusType\" 5 ;",
        "BA_DEF_ \"BusType\" \"STRING\" ;",
        "BA_DEF_ BO_ \"BusType\" \"STRING\" ;",
        "BA_DEF_ \"BusType STRING ;",
    });
}

TEST(ParseDefinitionStatement, RefusesNamesThatAreNotReserved) {
    ExpectNothingStored({
        "BA_DEF_ BO_ \"MyAttribute\" INT 0 1;",
        "BA_DEF_ \"bustype\" STRING ;",
        "BA_DEF_ \"BusType \" STRING ;",
        "BA_DEF_ \"BusTypes\" STRING ;",
    });
}

TEST(ParseDefinitionStatement, NeedsTwoBoundsForAnInt) {
    ExpectNothingStored({
        "BA_DEF_ BO_ \"GenMsgCycleTime\" INT ;",
        "BA_DEF_ BO_ \"GenMsgCycleTime\" INT 0;",
        "BA_DEF_ BO_ \"GenMsgCycleTime\" INT 0 1 2;",
        "BA_DEF_ \"J1939PGN\" INT 0;",
        "BA_DEF_ \"J1939PGN\" INT 0 1 2;",
    });
}

TEST(ParseDefinitionStatement, NeedsANumberAsOneOfTheBounds) {
    ExpectStored({
        {"BA_DEF_ BO_ \"GenMsgCycleTime\" INT low 100;", "Msg GenMsgCycleTime Int [0,100]"},
        {"BA_DEF_ BO_ \"GenMsgCycleTime\" INT 100 high;", "Msg GenMsgCycleTime Int [100,0]"},
        {"BA_DEF_ BO_ \"GenMsgCycleTime\" INT \"5\" 100;", "Msg GenMsgCycleTime Int [0,100]"},
        // A sign makes a token none of class Number, but not one without a number.
        {"BA_DEF_ BO_ \"GenMsgCycleTime\" INT +5 100;", "Msg GenMsgCycleTime Int [5,100]"},
    });
    ExpectNothingStored({
        "BA_DEF_ BO_ \"GenMsgCycleTime\" INT low high;",
        "BA_DEF_ BO_ \"GenMsgCycleTime\" INT +5 +6;",
        "BA_DEF_ BO_ \"GenMsgCycleTime\" INT \"5\" \"6\";",
    });
}

TEST(ParseDefinitionStatement, AcceptsAnyBounds) {
    ExpectStored({
        {"BA_DEF_ BO_ \"GenMsgCycleTime\" INT 9 -9;", "Msg GenMsgCycleTime Int [9,-9]"},
        {"BA_DEF_ BO_ \"GenMsgCycleTime\" INT 1.9 0x20;", "Msg GenMsgCycleTime Int [1,0]"},
        {"BA_DEF_ BO_ \"GenMsgCycleTime\" INT -2147483648 2147483646;",
         "Msg GenMsgCycleTime Int [-2147483648,2147483646]"},
        // A bound beyond 32 bits becomes 0.
        {"BA_DEF_ BO_ \"GenMsgCycleTime\" INT -2147483649 7;", "Msg GenMsgCycleTime Int [0,7]"},
        {"BA_DEF_ BO_ \"GenMsgCycleTime\" INT 7 4294967295;", "Msg GenMsgCycleTime Int [7,0]"},
        {"BA_DEF_ BO_ \"GenMsgCycleTime\" INT 7 99999999999999999999;",
         "Msg GenMsgCycleTime Int [7,0]"},
    });
}

TEST(ParseDefinitionStatement, NeedsQuotedTextsForAnEnum) {
    ExpectStored({
        {"BA_DEF_ BO_ \"GenMsgSendType\" ENUM \"A,B\",\"C D\";",
         "Msg GenMsgSendType Enum of 'A B','C D'"},
        {"BA_DEF_ BO_ \"GenMsgSendType\" ENUM \"A\" \"A\";", "Msg GenMsgSendType Enum of 'A','A'"},
        {"BA_DEF_ BO_ \"GenMsgSendType\" ENUM \"A;\" ;", "Msg GenMsgSendType Enum of 'A '"},
    });
    ExpectNothingStored({
        "BA_DEF_ BO_ \"GenMsgSendType\" ENUM ;",
        "BA_DEF_ BO_ \"GenMsgSendType\" ENUM \"A\",\"\",\"B\";",
        "BA_DEF_ BO_ \"GenMsgSendType\" ENUM \"A\",B;",
        "BA_DEF_ BO_ \"GenMsgSendType\" ENUM 1;",
        "BA_DEF_ BO_ \"GenMsgSendType\" ENUM \" A\";",
    });
}

TEST(ParseDefinitionStatement, AcceptsNoTokenAfterString) {
    ExpectNothingStored({
        "BA_DEF_ \"BusType\" STRING \"x\";",
        "BA_DEF_ \"BusType\" STRING 0;",
        "BA_DEF_ BO_ \"BusType\" STRING \"\";",
    });
}

TEST(ParseDefinitionStatement, KeepsTheFirstDefinitionOfNameKindAndType) {
    const ReadTable table({
        "BA_DEF_ BO_ \"GenMsgCycleTime\" INT 0 10;",
        "BA_DEF_ BO_ \"GenMsgCycleTime\" INT 0 20;",
        "BA_DEF_ SG_ \"GenMsgCycleTime\" INT 0 30;",
        "BA_DEF_ BO_ \"GenMsgCycleTime\" STRING ;",
        "BA_DEF_ BO_ \"GenMsgSendType\" ENUM \"A\";",
        "BA_DEF_ BO_ \"GenMsgSendType\" ENUM \"B\";",
    });
    EXPECT_EQ(LinesOf(table.definitions),
              (Lines{"Msg GenMsgCycleTime Int [0,10]", "Sig GenMsgCycleTime Int [0,30]",
                     "Msg GenMsgCycleTime Str", "Msg GenMsgSendType Enum of 'A'"}));
}

TEST(ParseDefinitionStatement, KeepsTheDefaultOfTheFirstDefinition) {
    const ReadTable table({
        "BA_DEF_ BO_ \"GenMsgCycleTime\" INT 0 10;",
        "BA_DEF_DEF_ \"GenMsgCycleTime\" 5;",
        "BA_DEF_ BO_ \"GenMsgCycleTime\" INT 0 20;",
    });
    EXPECT_EQ(LinesOf(table.definitions), (Lines{"Msg GenMsgCycleTime Int [0,10] = 5"}));
}

}  // namespace
}  // namespace vexil
