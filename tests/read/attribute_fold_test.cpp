// Tests that the values of the reserved attributes reach messages, signals and the info.
// SPDX-License-Identifier: MIT
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
    // Reads the attribute statements after three messages, two of them of one id.
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

    // The results of describe for each message or signal, joined.
    template <typename Describe>
    static std::string OfMessages(Describe describe) {
        std::string text;
        for (std::size_t at = 0; at < database.messages.Size(); ++at) {
            text += Concat(describe(database.messages[at]), " ");
        }
        return text;
    }

    template <typename Describe>
    static std::string OfSignals(Describe describe) {
        return OfMessages([describe](const CANMessage& message) {
            std::string text;
            for (const CANSignal* signal : message.signals) {
                text += Concat(text.empty() ? "" : " ", describe(*signal));
            }
            return text;
        });
    }

    static std::string CycleTimes() {
        return OfMessages(
            [](const CANMessage& message) { return std::to_string(message.cycleTime); });
    }

    static std::string SendTypes() {
        return OfMessages([](const CANMessage& message) { return test::Quoted(message.sendType); });
    }

    static std::string Values(std::int32_t CANSignal::*member) {
        return OfSignals(
            [member](const CANSignal& signal) { return std::to_string(signal.*member); });
    }
};

struct Row {
    std::string_view statements;
    std::string_view expected;
};

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
              "2 'B' 8 'N' long='Long B' send='On_Event' cycle=20\n"
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

TEST_F(FoldReservedAttributes, TakesTheBusTypeOnlyFromATextAttributeOfTheNetwork) {
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
        "BA_ \"Marrowby_Msg_Name\" BO_ 1 \"With\ta;  comma, and \xC3\xA4\";\n");
    const auto names = [] {
        return OfMessages(
            [](const CANMessage& message) { return Concat(message.name, "|", message.longName); });
    };
    EXPECT_EQ(names(), "A|With a comma and \xC3\xA4 B|B C|With a comma and \xC3\xA4 ");
    ReadWithMessages("BA_ \"Marrowby_Msg_Name\" BO_ 1 \"No definition\";\n");
    EXPECT_EQ(names(), "A|A B|B C|C ");
    ReadWithMessages(
        "BA_DEF_ SG_ \"Marrowby_Msg_Name\" STRING ;\n"
        "BA_ \"Marrowby_Msg_Name\" SG_ 1 S \"Signal\";\n");
    EXPECT_EQ(names(), "A|A B|B C|C ");
}

TEST_F(FoldReservedAttributes, SetsTheLongNameOfSignalsThatHaveAValue) {
    ReadWithMessages(
        "BA_DEF_ SG_ \"Marrowby_Sig_Name\" STRING ;\n"
        "BA_DEF_DEF_ \"Marrowby_Sig_Name\" \"Default\";\n"
        "BA_ \"Marrowby_Sig_Name\" SG_ 1 S \"Long S\";\n"
        "BA_ \"Marrowby_Sig_Name\" SG_ 1 Two_Words \"Long words\";\n"
        "BA_ \"Marrowby_Sig_Name\" SG_ 2 T \"Nobody\";\n");
    EXPECT_EQ(OfSignals([](const CANSignal& signal) {
                  return Concat(signal.name, "|", signal.rawName, "|", signal.longName);
              }),
              "S|S|Long S Two_Words|Two Words|Long words S|S|S S|S|Long S ");
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

}  // namespace
}  // namespace vexil
