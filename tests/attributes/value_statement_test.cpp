// Tests of attributes/value_statement.cpp: statements to values.
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "attributes/attribute_lines.h"

namespace vexil {
namespace {

using test::Lines;
using test::LinesOf;
using test::ReadTable;

class TableWithDefinitions : public ReadTable {
  public:
    TableWithDefinitions(std::initializer_list<std::string_view> statements)
        : ReadTable({
              "BA_DEF_ BO_ \"GenMsgCycleTime\" INT 0 65535;",
              "BA_DEF_ SG_ \"GenSigStartValue\" INT 0 100;",
              "BA_DEF_ BO_ \"GenMsgSendType\" ENUM \"Cyclic\",\"Event\";",
              "BA_DEF_ \"BusType\" STRING ;",
              "BA_DEF_ \"J1939PGN\" INT 0 1;",
              "BA_DEF_ SG_ \"Marrowby_Sig_Name\" STRING ;",
          }) {
        Read(statements);
    }
};

struct StoredCase {
    std::string_view statement;
    std::string value;
};

TEST(ParseValueStatement, StoresTheValueWithItsOwner) {
    const StoredCase cases[] = {
        {"BA_ \"GenMsgCycleTime\" BO_ 256 100;",
         "Msg GenMsgCycleTime message 256 Int [0,65535] = 100"},
        {"BA_ \"GenMsgCycleTime\" BO_ 256 100000;",
         "Msg GenMsgCycleTime message 256 Int [0,65535] = 100000"},
        {"BA_ \"GenMsgCycleTime\" BO_ 256 -1;",
         "Msg GenMsgCycleTime message 256 Int [0,65535] = -1"},
        {"BA_ \"GenMsgCycleTime\" BO_ 256 1.5;",
         "Msg GenMsgCycleTime message 256 Int [0,65535] = 1"},
        {"BA_ \"GenMsgCycleTime\" BO_ 256 12abc;",
         "Msg GenMsgCycleTime message 256 Int [0,65535] = 12"},
        {"BA_ \"GenMsgCycleTime\" BO_ 256 100 200;",
         "Msg GenMsgCycleTime message 256 Int [0,65535] = 100"},
        {"BA_ \"GenSigStartValue\" SG_ 256 Speed 7;",
         "Sig GenSigStartValue message 256 signal Speed Int [0,100] = 7"},
        {"BA_ \"GenSigStartValue\" SG_ 256 Speed 7 8 \"x\";",
         "Sig GenSigStartValue message 256 signal Speed Int [0,100] = 7"},
        {"BA_ \"GenMsgSendType\" BO_ 256 1;",
         "Msg GenMsgSendType message 256 Enum of 'Cyclic','Event' = #1"},
        {"BA_ \"GenMsgSendType\" BO_ 256 0;",
         "Msg GenMsgSendType message 256 Enum of 'Cyclic','Event'"},
        {"BA_ \"BusType\" \"CAN FD\";", "Gen BusType Str = 'CAN FD'"},
        {"BA_ \"BusType\" \"CAN,;  FD\" x;", "Gen BusType Str = 'CAN FD'"},
        {"BA_ \"J1939PGN\" 1;", "Gen J1939PGN Int [0,1] = 1"},
        {"BA_,\"J1939PGN\";;1", "Gen J1939PGN Int [0,1] = 1"},
        {"BA_ \"Marrowby_Sig_Name\" SG_ 5 S \"a\\\"b\";",
         "Sig Marrowby_Sig_Name message 5 signal S Str = 'a\\\"b'"},
    };
    for (const StoredCase& row : cases) {
        EXPECT_EQ(LinesOf(TableWithDefinitions({row.statement}).values), (Lines{row.value}))
            << row.statement;
    }
}

TEST(ParseValueStatement, AcceptsAnyLeadingNumberAsTheId) {
    const StoredCase cases[] = {
        {"BA_ \"GenMsgCycleTime\" BO_ 4294967295 9;",
         "Msg GenMsgCycleTime message 4294967295 Int [0,65535] = 9"},
        {"BA_ \"GenMsgCycleTime\" BO_ 4294967296 9;", "Msg GenMsgCycleTime Int [0,65535] = 9"},
        {"BA_ \"GenMsgCycleTime\" BO_ 12abc 9;",
         "Msg GenMsgCycleTime message 12 Int [0,65535] = 9"},
        {"BA_ \"GenMsgCycleTime\" BO_ -1 9;",
         "Msg GenMsgCycleTime message 4294967295 Int [0,65535] = 9"},
        {"BA_ \"GenMsgCycleTime\" BO_ 007 9;", "Msg GenMsgCycleTime message 7 Int [0,65535] = 9"},
    };
    for (const StoredCase& row : cases) {
        EXPECT_EQ(LinesOf(TableWithDefinitions({row.statement}).values), (Lines{row.value}))
            << row.statement;
    }
}

TEST(ParseValueStatement, DropsStatementsThatDoNotFitTheDefinition) {
    for (const std::string_view statement : {
             // Values.
             "BA_ \"GenMsgCycleTime\" BO_ 256 5000000000;",
             "BA_ \"GenMsgCycleTime\" BO_ 256 \"100\";",
             "BA_ \"GenMsgCycleTime\" BO_ 256 +5;",
             "BA_ \"GenMsgCycleTime\" BO_ 256 x;",
             "BA_ \"GenMsgCycleTime\" BO_ 256 99999999999999999999;",
             "BA_ \"GenMsgSendType\" BO_ 256 2;",
             "BA_ \"GenMsgSendType\" BO_ 256 -1;",
             "BA_ \"GenMsgSendType\" BO_ 256 \"Event\";",
             "BA_ \"BusType\" \"\";",
             "BA_ \"BusType\" 1;",
             "BA_ \"BusType\" CAN;",
             "BA_ \"BusType\" \" CAN\";",
             // Owners.
             "BA_ \"GenMsgCycleTime\" 100;",
             "BA_ \"GenMsgCycleTime\" SG_ 256 Speed 100;",
             "BA_ \"GenMsgCycleTime\" SG_ 256 100;",
             "BA_ \"GenMsgCycleTime\" BU_ 256 100;",
             "BA_ \"GenMsgCycleTime\" BO_ x 100;",
             "BA_ \"GenMsgCycleTime\" BO_ +256 100;",
             "BA_ \"GenSigStartValue\" BO_ 256 7;",
             "BA_ \"GenSigStartValue\" BO_ 256 Speed 7;",
             "BA_ \"GenSigStartValue\" SG_ 256 7;",
             "BA_ \"GenSigStartValue\" SG_ 256 \"Speed\" 7;",
             "BA_ \"GenSigStartValue\" SG_ 256 5 7;",
             "BA_ \"J1939PGN\" BU_ Node 1;",
             "BA_ \"J1939PGN\" EV_ Variable 1;",
             "BA_ \"BusType\" BO_ 256 \"CAN FD\";",
             // Shapes.
             "BA_",
             "BA_ \"GenMsgCycleTime\" BO_ 256;",
             "BA_ \"GenMsgCycleTime\" BO_;",
             "BA_ \"GenMsgCycleTime\";",
             "BA_ GenMsgCycleTime BO_ 256 100;",
             "BA_ BO_ \"GenMsgCycleTime\" 256 100;",
             "BA_ \"\" 1;",
             "BA_ 1;",
             // Names.
             "BA_ \"Other\" BO_ 256 1;",
             "BA_ \"genmsgcycletime\" BO_ 256 1;",
             "BA_ \"GenSigInactiveValue\" SG_ 256 Speed 1;",
         }) {
        EXPECT_EQ(LinesOf(TableWithDefinitions({statement}).values), Lines{}) << statement;
    }
}

TEST(ParseValueStatement, DropsAValueOfANameThatIsDefinedButNotReserved) {
    ReadTable table({});
    table.AddDefinition(
        test::MakeAttribute(AttributeObjectKind::Gen, "Mine", AttributeValueType::Int));
    table.Read("BA_ \"Mine\" 1;");
    EXPECT_EQ(LinesOf(table.values), Lines{});
}

TEST(ParseValueStatement, KeepsTheFirstValueOfAnOwner) {
    const TableWithDefinitions table({
        "BA_ \"GenMsgCycleTime\" BO_ 256 100;",
        "BA_ \"GenMsgCycleTime\" BO_ 256 200;",
        "BA_ \"GenMsgCycleTime\" BO_ 257 300;",
        "BA_ \"BusType\" \"a\";",
        "BA_ \"BusType\" \"b\";",
        "BA_ \"GenSigStartValue\" SG_ 256 S 1;",
        "BA_ \"GenSigStartValue\" SG_ 256 S 2;",
        "BA_ \"GenSigStartValue\" SG_ 256 s 3;",
    });
    EXPECT_EQ(LinesOf(table.values),
              (Lines{"Msg GenMsgCycleTime message 256 Int [0,65535] = 100",
                     "Msg GenMsgCycleTime message 257 Int [0,65535] = 300", "Gen BusType Str = 'a'",
                     "Sig GenSigStartValue message 256 signal S Int [0,100] = 1",
                     "Sig GenSigStartValue message 256 signal s Int [0,100] = 3"}));
}

TEST(ParseValueStatement, IsDroppedBeforeItsDefinition) {
    const TableWithDefinitions table(
        {"BA_ \"GenSigInactiveValue\" SG_ 5 S 1;", "BA_DEF_ SG_ \"GenSigInactiveValue\" INT 0 9;"});
    EXPECT_EQ(LinesOf(table.values), Lines{});
}

TEST(ParseValueStatement, StartsFromTheDefaultOfTheDefinition) {
    const ReadTable table({
        "BA_DEF_ BO_ \"GenMsgSendType\" ENUM \"A\",\"B\",\"C\";",
        "BA_DEF_DEF_ \"GenMsgSendType\" \"C\";",
        "BA_ \"GenMsgSendType\" BO_ 1 9;",
        "BA_ \"GenMsgSendType\" BO_ 2 1;",
    });
    EXPECT_EQ(LinesOf(table.values),
              (Lines{"Msg GenMsgSendType message 2 Enum of 'A','B','C' = #1"}));
}

// The definition is searched kind by kind and in each type by type; the owner of the statement
// plays no part in that.
TEST(ParseValueStatement, UsesOnlyTheFirstDefinitionOfTheName) {
    const std::string_view message = "BA_DEF_ BO_ \"BusType\" INT 0 1;";
    const std::string_view signal = "BA_DEF_ SG_ \"BusType\" INT 0 2;";
    const std::string_view network = "BA_DEF_ \"BusType\" INT 0 3;";
    const std::string_view text = "BA_DEF_ \"BusType\" STRING ;";
    const std::string_view list = "BA_DEF_ \"BusType\" ENUM \"A\",\"B\";";
    const std::string_view ofMessage = "BA_ \"BusType\" BO_ 5 1;";
    const std::string_view ofSignal = "BA_ \"BusType\" SG_ 5 S 1;";
    const std::string_view ofNetwork = "BA_ \"BusType\" 1;";
    const std::string_view textOfNetwork = "BA_ \"BusType\" \"B\";";
    struct Case {
        std::vector<std::string_view> statements;
        Lines values;
    };
    const Case cases[] = {
        // Messages come before signals, whatever the order of the definitions.
        {{signal, message, ofSignal}, {}},
        {{signal, message, ofMessage}, {"Msg BusType message 5 Int [0,1] = 1"}},
        {{signal, ofSignal}, {"Sig BusType message 5 signal S Int [0,2] = 1"}},
        // The network comes before both.
        {{message, signal, network, ofMessage, ofSignal}, {}},
        {{message, signal, network, ofNetwork}, {"Gen BusType Int [0,3] = 1"}},
        // Numbers come before texts, and texts before enumerations.
        {{text, network, textOfNetwork}, {}},
        {{text, network, ofNetwork}, {"Gen BusType Int [0,3] = 1"}},
        {{list, text, ofNetwork}, {}},
        {{list, text, textOfNetwork}, {"Gen BusType Str = 'B'"}},
        {{list, ofNetwork}, {"Gen BusType Enum of 'A','B' = #1"}},
    };
    for (const Case& row : cases) {
        ReadTable table({});
        std::string statements;
        for (const std::string_view statement : row.statements) {
            table.Read(statement);
            statements.append(statement).append("\n");
        }
        EXPECT_EQ(LinesOf(table.values), row.values) << statements;
    }
}

// No statement defines an attribute without a type, but AddDefinition can.
TEST(ParseValueStatement, UsesADefinitionWithoutATypeLast) {
    Attribute untyped;
    untyped.name = "BusType";
    untyped.valueType = AttributeValueType::Unsup;
    ReadTable table({});
    table.AddDefinition(untyped);
    table.Read({"BA_ \"BusType\" 1;"});
    EXPECT_EQ(LinesOf(table.values), Lines{});
    table.Read({"BA_DEF_ \"BusType\" ENUM \"A\",\"B\";", "BA_ \"BusType\" 1;"});
    EXPECT_EQ(LinesOf(table.values), (Lines{"Gen BusType Enum of 'A','B' = #1"}));
}

}  // namespace
}  // namespace vexil
