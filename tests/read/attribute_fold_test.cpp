// Tests of the fold of the reserved attributes: each one through whole files, from its
// statements to the model.
// SPDX-License-Identifier: MIT
#include "read/attribute_fold.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "frame/can_database.h"
#include "support/dump.h"
#include "support/read_text.h"

namespace vexil {
namespace {

using test::Concat;
using test::DumpDatabase;
using test::ReadText;

class FoldReservedAttributes : public test::DatabaseTest {
  protected:
    // Reads the attribute statements behind three messages, two of them of one id.
    static void ReadWithMessages(std::string_view attributes) {
        ReadText(
            Concat("BO_ 1 A: 8 N\n"
                   " SG_ S : 0|8@1+ (1,0) [0|1] \"\" N\n"
                   " SG_ Two Words : 0|8@1+ (1,0) [0|1] \"\" N\n"
                   "BO_ 2 B: 8 N\n"
                   " SG_ S : 0|8@1+ (1,0) [0|1] \"\" N\n"
                   "BO_ 1 C: 8 N\n"
                   " SG_ S : 0|8@1+ (1,0) [0|1] \"\" N\n",
                   attributes));
    }

    // One member of each message, joined: cycle times, send types, long names.
    static std::string CycleTimes() {
        std::string text;
        for (const auto& message : database.messages) {
            text += Concat(std::to_string(message->cycleTime), " ");
        }
        return text;
    }

    static std::string SendTypes() {
        std::string text;
        for (const auto& message : database.messages) {
            text += Concat(test::Quoted(message->sendType), " ");
        }
        return text;
    }

    static std::string Values(std::int32_t CANSignal::*member) {
        std::string text;
        for (const auto& message : database.messages) {
            for (const auto& signal : message->signals) {
                text += Concat(std::to_string((*signal).*member), " ");
            }
        }
        return text;
    }
};

struct Row {
    std::string_view statements;
    std::string_view expected;
};

TEST_F(FoldReservedAttributes, LeavesAllAtItsDefaultWithoutAttributes) {
    database.info = {ProtocolNmea, 7};
    ReadWithMessages("");
    EXPECT_EQ(DumpDatabase(),
              "info 0/7\n"
              "1 'A' 8 'N'\n"
              "  'S' 0|8@1+ (1,0) [0|1] '' N\n"
              "  'Two_Words' 0|8@1+ (1,0) [0|1] '' N long='Two Words'\n"
              "2 'B' 8 'N'\n"
              "  'S' 0|8@1+ (1,0) [0|1] '' N\n"
              "1 'C' 8 'N'\n"
              "  'S' 0|8@1+ (1,0) [0|1] '' N\n");
}

TEST_F(FoldReservedAttributes, CarriesAllNineIntoTheModel) {
    ReadWithMessages(
        "BA_DEF_ \"BusType\" STRING ;\n"
        "BA_DEF_ \"J1939PGN\" INT 0 1;\n"
        "BA_DEF_ \"IsNMEA\" INT 0 1;\n"
        "BA_DEF_ BO_ \"Marrowby_Msg_Name\" STRING ;\n"
        "BA_DEF_ BO_ \"GenMsgSendType\" ENUM \"Cyclic\",\"On Event\";\n"
        "BA_DEF_ BO_ \"GenMsgCycleTime\" INT 0 65535;\n"
        "BA_DEF_ SG_ \"Marrowby_Sig_Name\" STRING ;\n"
        "BA_DEF_ SG_ \"GenSigStartValue\" INT 0 100;\n"
        "BA_DEF_ SG_ \"GenSigInactiveValue\" INT 0 100;\n"
        "BA_ \"BusType\" \"CAN FD\";\n"
        "BA_ \"J1939PGN\" 1;\n"
        "BA_ \"Marrowby_Msg_Name\" BO_ 2 \"Long B\";\n"
        "BA_ \"GenMsgSendType\" BO_ 2 1;\n"
        "BA_ \"GenMsgCycleTime\" BO_ 2 20;\n"
        "BA_ \"Marrowby_Sig_Name\" SG_ 2 S \"Long S\";\n"
        "BA_ \"GenSigStartValue\" SG_ 2 S -3;\n"
        "BA_ \"GenSigInactiveValue\" SG_ 2 S 4;\n");
    EXPECT_EQ(DumpDatabase(),
              "info 1/1\n"
              "1 'A' 8 'N' send='Cyclic'\n"
              "  'S' 0|8@1+ (1,0) [0|1] '' N\n"
              "  'Two_Words' 0|8@1+ (1,0) [0|1] '' N long='Two Words'\n"
              "2 'B' 8 'N' long='Long B' raw='B' send='On_Event' cycle=20\n"
              "  'S' 0|8@1+ (1,0) [0|1] '' N long='Long S' raw='S' start=-3 inactive=4\n"
              "1 'C' 8 'N' send='Cyclic'\n"
              "  'S' 0|8@1+ (1,0) [0|1] '' N\n");
}

TEST_F(FoldReservedAttributes, SetsTheBusTypeFromTheValueElseTheDefault) {
    constexpr std::string_view Definition = "BA_DEF_ \"BusType\" STRING ;\n";
    const std::vector<Row> rows = {
        {"", "1"},  // the file before has left CAN FD
        {"BA_DEF_DEF_ \"BusType\" \"CAN FD\";\n", "1"},
        {"BA_DEF_DEF_ \"BusType\" \"CAN\";\n", "0"},
        {"BA_DEF_DEF_ \"BusType\" \"\";\n", "0"},
        {"BA_DEF_DEF_ \"BusType\" \"can fd\";\n", "0"},
        {"BA_DEF_DEF_ \"BusType\" \"CAN FD2\";\n", "0"},
        {"BA_DEF_DEF_ \"BusType\" \"CAN F\";\n", "0"},
        {"BA_DEF_DEF_ \"BusType\" \"CAN  FD\";\n", "1"},
        {"BA_DEF_DEF_ \"BusType\" \"CANFD\";\n", "0"},
        {"BA_DEF_DEF_ \"BusType\" \"CAN FD\";\nBA_ \"BusType\" \"CAN\";\n", "0"},
        {"BA_DEF_DEF_ \"BusType\" \"CAN\";\nBA_ \"BusType\" \"CAN FD\";\n", "1"},
        {"BA_ \"BusType\" \"CAN FD\";\n", "1"},
        {"BA_ \"BusType\" \"CAN\";\nBA_ \"BusType\" \"CAN FD\";\n", "0"},
    };
    for (const Row& row : rows) {
        database.info.busType = BusCanFd;
        const std::string definition(row.statements.empty() ? "" : Definition);
        ReadText(Concat(definition, row.statements));
        EXPECT_EQ(std::to_string(database.info.busType), row.expected) << row.statements;
        database.info.busType = BusClassicCan;
        ReadText(Concat(definition, row.statements));
        EXPECT_EQ(std::to_string(database.info.busType),
                  row.statements.empty() ? "0" : row.expected)
            << row.statements;
    }
    database.info.busType = BusCanFd;
    ReadText(Definition);
    EXPECT_EQ(database.info.busType, BusClassicCan);
}

TEST_F(FoldReservedAttributes, LooksForTheBusTypeAsATextOfTheNetworkAlone) {
    for (const std::string_view definition :
         {"BA_DEF_ BO_ \"BusType\" STRING ;\n", "BA_DEF_ SG_ \"BusType\" STRING ;\n",
          "BA_DEF_ \"BusType\" ENUM \"CAN FD\",\"CAN\";\n", "BA_DEF_ \"BusType\" INT 0 1;\n",
          "BA_DEF_ BU_ \"BusType\" STRING ;\n"}) {
        ReadText(Concat(definition, "BA_DEF_DEF_ \"BusType\" \"CAN FD\";\n"));
        EXPECT_EQ(database.info.busType, BusClassicCan) << definition;
    }
}

TEST_F(FoldReservedAttributes, SetsTheProtocolFromAValueOf1ElseADefaultOf1) {
    const std::vector<Row> rows = {
        {"BA_DEF_ \"J1939PGN\" INT 0 1;\n", "0"},
        {"BA_DEF_ \"J1939PGN\" INT 0 1;\nBA_DEF_DEF_ \"J1939PGN\" 1;\n", "1"},
        {"BA_DEF_ \"J1939PGN\" INT 0 1;\nBA_DEF_DEF_ \"J1939PGN\" 2;\n", "0"},
        {"BA_DEF_ \"J1939PGN\" INT 0 1;\nBA_ \"J1939PGN\" 1;\n", "1"},
        {"BA_DEF_ \"J1939PGN\" INT 0 1;\nBA_ \"J1939PGN\" -1;\n", "0"},
        {"BA_DEF_ \"J1939PGN\" INT 0 1;\nBA_DEF_DEF_ \"J1939PGN\" 1;\nBA_ \"J1939PGN\" 0;\n", "0"},
        {"BA_DEF_ \"J1939PGN\" INT 0 1;\nBA_DEF_DEF_ \"J1939PGN\" 0;\nBA_ \"J1939PGN\" 1;\n", "1"},
        {"BA_ \"J1939PGN\" 1;\n", "0"},
        {"BA_DEF_ \"J1939PGN\" STRING ;\nBA_ \"J1939PGN\" \"1\";\n", "0"},
        {"BA_DEF_ BO_ \"J1939PGN\" INT 0 1;\nBA_DEF_DEF_ \"J1939PGN\" 1;\n", "0"},
        {"BA_DEF_ \"IsNMEA\" INT 0 1;\n", "0"},
        {"BA_DEF_ \"IsNMEA\" INT 0 1;\nBA_DEF_DEF_ \"IsNMEA\" 1;\n", "2"},
        {"BA_DEF_ \"IsNMEA\" INT 0 1;\nBA_ \"IsNMEA\" 1;\n", "2"},
        {"BA_DEF_ \"IsNMEA\" INT 0 1;\nBA_DEF_DEF_ \"IsNMEA\" 1;\nBA_ \"IsNMEA\" 0;\n", "0"},
        {"BA_DEF_ \"IsNMEA\" INT 0 1;\nBA_ \"IsNMEA\" 1;\n"
         "BA_DEF_ \"J1939PGN\" INT 0 1;\nBA_ \"J1939PGN\" 1;\n",
         "2"},
        {"BA_DEF_ \"IsNMEA\" INT 0 1;\nBA_ \"IsNMEA\" 0;\n"
         "BA_DEF_ \"J1939PGN\" INT 0 1;\nBA_ \"J1939PGN\" 1;\n",
         "1"},
    };
    for (const Row& row : rows) {
        database.info.protocolType = ProtocolNmea;
        ReadText(row.statements);
        EXPECT_EQ(std::to_string(database.info.protocolType), row.expected) << row.statements;
    }
}

TEST_F(FoldReservedAttributes, SetsTheLongNameOfMessagesThatHaveAValue) {
    ReadWithMessages(
        "BA_DEF_ BO_ \"Marrowby_Msg_Name\" STRING ;\n"
        "BA_DEF_DEF_ \"Marrowby_Msg_Name\" \"Default\";\n"
        "BA_ \"Marrowby_Msg_Name\" BO_ 1 \"With a;  comma, and \xC3\xA4\";\n");
    std::vector<std::string> names;
    for (const auto& message : database.messages) {
        names.push_back(Concat(message->name, "|", message->rawName, "|", message->longName));
    }
    EXPECT_EQ(names, (std::vector<std::string>{"A|A|With a comma and \xC3\xA4", "B|B|B",
                                               "C|C|With a comma and \xC3\xA4"}));
    ReadWithMessages("BA_ \"Marrowby_Msg_Name\" BO_ 1 \"No definition\";\n");
    EXPECT_EQ(database.messages[0]->longName, "A");
    ReadWithMessages(
        "BA_DEF_ SG_ \"Marrowby_Msg_Name\" STRING ;\n"
        "BA_ \"Marrowby_Msg_Name\" SG_ 1 S \"Signal\";\n");
    EXPECT_EQ(database.messages[0]->longName, "A");
}

TEST_F(FoldReservedAttributes, SetsTheLongNameOfSignalsThatHaveAValue) {
    ReadWithMessages(
        "BA_DEF_ SG_ \"Marrowby_Sig_Name\" STRING ;\n"
        "BA_DEF_DEF_ \"Marrowby_Sig_Name\" \"Default\";\n"
        "BA_ \"Marrowby_Sig_Name\" SG_ 1 S \"Long S\";\n"
        "BA_ \"Marrowby_Sig_Name\" SG_ 1 Two_Words \"Long words\";\n"
        "BA_ \"Marrowby_Sig_Name\" SG_ 2 T \"Nobody\";\n");
    std::vector<std::string> names;
    for (const auto& message : database.messages) {
        for (const auto& signal : message->signals) {
            names.push_back(Concat(signal->name, "|", signal->rawName, "|", signal->longName));
        }
    }
    EXPECT_EQ(names, (std::vector<std::string>{"S|S|Long S", "Two_Words|Two Words|Long words",
                                               "S|S|S", "S|S|Long S"}));
}

// Delimiters of a text are gone when it leaves its statement, so a control character reaches the
// fold only from the table.
TEST_F(FoldReservedAttributes, TakesControlCharactersOutOfLongNames) {
    ReadWithMessages(
        "BA_DEF_ BO_ \"Marrowby_Msg_Name\" STRING ;\n"
        "BA_ \"Marrowby_Msg_Name\" BO_ 2 \"a\tb\";\n");
    EXPECT_EQ(database.messages[1]->longName, "a b");
    test::Feed({"BA_DEF_ BO_ \"Marrowby_Msg_Name\" STRING ;\n",
                "BA_DEF_ SG_ \"Marrowby_Sig_Name\" STRING ;\n"});
    ASSERT_EQ(database.attributes.definitions.size(), 2U);
    AttributeValue value;
    value.definition = &database.attributes.definitions.front();
    value.messageId = 2;
    value.content.stringValue = "a\tb\n\v\f\rc";
    database.attributes.AddValue(value);
    value.definition = &database.attributes.definitions.back();
    value.signalName = "S";
    database.attributes.AddValue(value);
    vexil::FoldReservedAttributes();
    EXPECT_EQ(database.messages[1]->longName, "a b    c");
    EXPECT_EQ(database.messages[1]->signals[0]->longName, "a b    c");
    EXPECT_EQ(database.messages[0]->longName, "A");
}

TEST_F(FoldReservedAttributes, SetsTheSendTypeToTheTextOfTheListAsAnIdentifier) {
    constexpr std::string_view Definition =
        "BA_DEF_ BO_ \"GenMsgSendType\" ENUM \"Cyclic\",\"On Event\",\"3rd\";\n";
    const std::vector<Row> rows = {
        {"", "'Cyclic' 'Cyclic' 'Cyclic' "},
        {"BA_DEF_DEF_ \"GenMsgSendType\" \"On Event\";\n", "'On_Event' 'On_Event' 'On_Event' "},
        {"BA_DEF_DEF_ \"GenMsgSendType\" 2;\nBA_ \"GenMsgSendType\" BO_ 1 1;\n",
         "'On_Event' '_rd' 'On_Event' "},
        {"BA_ \"GenMsgSendType\" BO_ 2 0;\nBA_DEF_DEF_ \"GenMsgSendType\" 2;\n",
         "'_rd' 'Cyclic' '_rd' "},
        {"BA_ \"GenMsgSendType\" BO_ 2 7;\n", "'Cyclic' 'Cyclic' 'Cyclic' "},
        {"BA_ \"GenMsgSendType\" BO_ 2 \"On Event\";\n", "'Cyclic' 'Cyclic' 'Cyclic' "},
    };
    for (const Row& row : rows) {
        ReadWithMessages(Concat(Definition, row.statements));
        EXPECT_EQ(SendTypes(), row.expected) << row.statements;
    }
    ReadWithMessages("BA_ \"GenMsgSendType\" BO_ 1 1;\n");
    EXPECT_EQ(SendTypes(), "'' '' '' ");
    ReadWithMessages(
        "BA_DEF_ BO_ \"GenMsgSendType\" STRING ;\n"
        "BA_ \"GenMsgSendType\" BO_ 1 \"Cyclic\";\n");
    EXPECT_EQ(SendTypes(), "'' '' '' ");
}

// An index outside the list cannot come from a file: the statements refuse it.
TEST_F(FoldReservedAttributes, EmptiesTheSendTypeForAnIndexOutsideTheList) {
    struct IndexRow {
        std::int32_t index;
        std::string_view sendType;
    };
    for (const IndexRow& row :
         {IndexRow{0, "A"}, IndexRow{2, "C"}, IndexRow{3, ""}, IndexRow{7, ""}, IndexRow{-1, ""}}) {
        ReadWithMessages("");
        database.messages[0]->sendType = "before";
        test::Feed({"BA_DEF_ BO_ \"GenMsgSendType\" ENUM \"A\",\"B\",\"C\";\n"});
        ASSERT_EQ(database.attributes.definitions.size(), 1U);
        database.attributes.definitions.front().defaultContent.enumIndex = row.index;
        vexil::FoldReservedAttributes();
        EXPECT_EQ(database.messages[0]->sendType, row.sendType) << row.index;
    }
}

TEST_F(FoldReservedAttributes, SetsTheCycleTimeFromTheValueElseTheDefault) {
    constexpr std::string_view Definition = "BA_DEF_ BO_ \"GenMsgCycleTime\" INT 0 1000;\n";
    const std::vector<Row> rows = {
        {"", "0 0 0 "},
        {"BA_DEF_DEF_ \"GenMsgCycleTime\" 100;\n", "100 100 100 "},
        {"BA_DEF_DEF_ \"GenMsgCycleTime\" 100;\nBA_ \"GenMsgCycleTime\" BO_ 2 20;\n",
         "100 20 100 "},
        {"BA_ \"GenMsgCycleTime\" BO_ 1 20;\n", "20 0 20 "},
        {"BA_ \"GenMsgCycleTime\" BO_ 2 -20;\n", "0 -20 0 "},
        {"BA_ \"GenMsgCycleTime\" BO_ 2 20.9;\n", "0 20 0 "},
        {"BA_ \"GenMsgCycleTime\" BO_ 3 20;\n", "0 0 0 "},
        {"BA_ \"GenMsgCycleTime\" BO_ 2 1;\nBA_ \"GenMsgCycleTime\" BO_ 2 2;\n", "0 1 0 "},
    };
    for (const Row& row : rows) {
        ReadWithMessages(Concat(Definition, row.statements));
        EXPECT_EQ(CycleTimes(), row.expected) << row.statements;
    }
    for (const std::string_view statements :
         {"BA_ \"GenMsgCycleTime\" BO_ 2 20;\n",
          "BA_DEF_ BO_ \"GenMsgCycleTime\" FLOAT 0 1000;\nBA_ \"GenMsgCycleTime\" BO_ 2 20;\n",
          "BA_DEF_ BO_ \"GenMsgCycleTime\" STRING ;\nBA_ \"GenMsgCycleTime\" BO_ 2 \"20\";\n",
          "BA_DEF_ SG_ \"GenMsgCycleTime\" INT 0 9;\nBA_ \"GenMsgCycleTime\" SG_ 2 S 20;\n",
          "BA_DEF_ \"GenMsgCycleTime\" INT 0 1000;\nBA_ \"GenMsgCycleTime\" 20;\n"}) {
        ReadWithMessages(statements);
        EXPECT_EQ(CycleTimes(), "0 0 0 ") << statements;
    }
}

TEST_F(FoldReservedAttributes, SetsStartAndInactiveValuesOfSignalsByTheirIdentifier) {
    struct Attribute {
        std::string_view name;
        std::int32_t CANSignal::*member;
        std::int32_t CANSignal::*other;
    };
    for (const Attribute& attribute :
         {Attribute{"GenSigStartValue", &CANSignal::startValue, &CANSignal::inactiveValue},
          Attribute{"GenSigInactiveValue", &CANSignal::inactiveValue, &CANSignal::startValue}}) {
        const std::string definition = Concat("BA_DEF_ SG_ \"", attribute.name, "\" INT 0 1;\n");
        const std::vector<Row> rows = {
            {"", "0 0 0 0 "},
            {" SG_ 1 S 7;\n", "7 0 0 7 "},
            {" SG_ 2 S -7;\n", "0 0 -7 0 "},
            {" SG_ 1 Two_Words 7;\n", "0 7 0 0 "},
            {" SG_ 1 Two Words 7;\n", "0 0 0 0 "},
            {" SG_ 3 S 7;\n", "0 0 0 0 "},
            {" SG_ 1 T 7;\n", "0 0 0 0 "},
            {" BO_ 1 7;\n", "0 0 0 0 "},
        };
        for (const Row& row : rows) {
            const std::string value = row.statements.empty()
                                          ? ""
                                          : Concat("BA_ \"", attribute.name, "\"", row.statements);
            ReadWithMessages(Concat(definition, value));
            EXPECT_EQ(Values(attribute.member), row.expected) << value;
            EXPECT_EQ(Values(attribute.other), "0 0 0 0 ") << value;
        }
        const std::string values = Concat("BA_DEF_DEF_ \"", attribute.name, "\" 5;\nBA_ \"",
                                          attribute.name, "\" SG_ 2 S 6;\n");
        ReadWithMessages(Concat(definition, values));
        EXPECT_EQ(Values(attribute.member), "5 5 6 5 ");
        ReadWithMessages(values);
        EXPECT_EQ(Values(attribute.member), "0 0 0 0 ");
    }
}

TEST_F(FoldReservedAttributes, LeavesMessagesAndSignalsAloneWithoutADefinition) {
    ReadWithMessages("");
    CANMessage& message = *database.messages[1];
    CANSignal& signal = *message.signals[0];
    message.cycleTime = 1;
    message.sendType = std::string("before");
    message.longName = std::string("message");
    signal.startValue = 2;
    signal.inactiveValue = 3;
    signal.longName = std::string("signal");
    const std::string before = DumpDatabase();
    vexil::FoldReservedAttributes();
    EXPECT_EQ(DumpDatabase(), before);
}

TEST_F(FoldReservedAttributes, DropsTheAttributesThatAreNotReserved) {
    ReadWithMessages(
        "BA_DEF_ BO_ \"GenMsgDelayTime\" INT 0 9;\nBA_ \"GenMsgDelayTime\" BO_ 1 5;\n"
        "BA_DEF_ \"ProtocolType\" STRING ;\nBA_ \"ProtocolType\" \"J1939\";\n");
    EXPECT_EQ(CycleTimes(), "0 0 0 ");
    EXPECT_EQ(database.info.protocolType, ProtocolPlainCan);
}

}  // namespace
}  // namespace vexil
