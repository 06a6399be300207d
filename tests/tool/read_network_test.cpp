// A JSON document into the database: what is refused and how it is named, what the library changes,
// defaults, and text that is no JSON.
// SPDX-License-Identifier: MIT
#include "document/read_network.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "support/record_dump.h"

namespace vexil::test {
namespace {

using tool::DocumentResult;
using tool::Remark;

constexpr std::size_t Most = 10;

// A document of one message.
std::string WithMessage(const std::string& members) {
    return "{\"messages\":[{" + members + "}]}";
}

// A document of one message with one signal.
std::string WithSignal(const std::string& members) {
    return WithMessage(R"("id":1,"longName":"A","signals":[{)" + members + "}]");
}

std::string WithDescription(const std::string& members) {
    return WithSignal(R"("longName":"S","startBit":0,"bitLength":8,"valueDescriptions":[{)" +
                      members + "}]");
}

struct Refusal {
    std::string document;
    std::string path;
    std::string text;
};

void PrintTo(const Refusal& row, std::ostream* stream) {
    *stream << row.document;
}

class ReadNetworkRefuses : public testing::TestWithParam<Refusal> {};

TEST_P(ReadNetworkRefuses, TheValueByItsPath) {
    const DocumentResult result = tool::ReadNetwork(GetParam().document, Most);
    EXPECT_EQ(result.fault, "");
    EXPECT_EQ(result.refused.Held(), (std::vector<Remark>{{GetParam().path, GetParam().text}}));
}

constexpr std::string_view Any32 = "a whole number from 0 to 4294967295 is needed, not ";
constexpr std::string_view Any32Signed =
    "a whole number from -2147483648 to 2147483647 is needed, not ";
constexpr std::string_view AnyReal =
    R"(a number, "NaN", "-NaN", "Infinity" or "-Infinity" is needed, not )";

std::string Say(std::string_view what, std::string_view value) {
    return std::string(what) + std::string(value);
}

INSTANTIATE_TEST_SUITE_P(
    WrongTypes, ReadNetworkRefuses,
    testing::Values(Refusal{"5", "", "an object is needed"},
                    Refusal{"[]", "", "an object is needed"},
                    Refusal{R"({"messages":5})", "messages", "a list is needed"},
                    Refusal{R"({"messages":{"id":1}})", "messages", "a list is needed"},
                    Refusal{R"({"messages":[7]})", "messages[0]", "an object is needed"},
                    Refusal{R"({"messages":[[{}]]})", "messages[0]", "an object is needed"},
                    Refusal{R"({"info":[],"messages":[]})", "info", "an object is needed"},
                    Refusal{R"({"info":{"busType":"CAN FD"},"messages":[]})", "info.busType",
                            Say(Any32, R"("CAN FD")")},
                    Refusal{WithMessage(R"("id":"0x123","longName":"A")"), "messages[0].id",
                            Say(Any32, R"("0x123")")},
                    Refusal{WithMessage(R"("id":[1],"longName":"A")"), "messages[0].id",
                            "a number or a text is needed, neither an object nor a list"},
                    Refusal{WithMessage(R"("id":1,"longName":null)"), "messages[0].longName",
                            "a text is needed, not null"},
                    Refusal{WithMessage(R"("id":1,"longName":true)"), "messages[0].longName",
                            "a text is needed, not true"},
                    Refusal{WithSignal(R"("longName":"S","startBit":0,"bitLength":8,"factor":"1")"),
                            "messages[0].signals[0].factor", Say(AnyReal, R"("1")")},
                    Refusal{WithDescription(R"("value":1,"text":{"en":"on"})"),
                            "messages[0].signals[0].valueDescriptions[0].text",
                            "a number or a text is needed, neither an object nor a list"}));

INSTANTIATE_TEST_SUITE_P(
    NumbersOutOfRange, ReadNetworkRefuses,
    testing::Values(
        Refusal{WithMessage(R"("id":4294967296,"longName":"A")"), "messages[0].id",
                Say(Any32, "4294967296")},
        Refusal{WithMessage(R"("id":-1,"longName":"A")"), "messages[0].id", Say(Any32, "-1")},
        Refusal{WithMessage(R"("id":1.5,"longName":"A")"), "messages[0].id", Say(Any32, "1.5")},
        Refusal{WithMessage(R"("id":18446744073709551615,"longName":"A")"), "messages[0].id",
                Say(Any32, "18446744073709551615")},
        Refusal{WithMessage(R"("id":1e300,"longName":"A")"), "messages[0].id",
                Say(Any32, "1e+300")},
        Refusal{WithMessage(R"("id":1,"longName":"A","cycleTime":2147483648)"),
                "messages[0].cycleTime", Say(Any32Signed, "2147483648")},
        Refusal{WithDescription(R"("value":-2147483649,"text":"x")"),
                "messages[0].signals[0].valueDescriptions[0].value",
                Say(Any32Signed, "-2147483649")},
        Refusal{R"({"formatVersion":2,"messages":[]})", "formatVersion",
                "the number 1 is needed, not 2"}));

INSTANTIATE_TEST_SUITE_P(
    Texts, ReadNetworkRefuses,
    testing::Values(
        Refusal{WithMessage(R"("id":1,"longName":")" + std::string(256, 'a') + "\""),
                "messages[0].longName", "the text has 256 bytes, and the record takes 255"},
        Refusal{
            WithMessage(R"("id":1,"longName":"A","transmitter":")" + std::string(33, 'a') + "\""),
            "messages[0].transmitter", "the text has 33 bytes, and the record takes 32"},
        Refusal{WithMessage(R"("id":1,"longName":"a\u0000b")"), "messages[0].longName",
                "the text has the character U+0000, which ends it in the record"},
        Refusal{WithMessage(R"("id":1,"longName":"")"), "messages[0].longName",
                "a message needs a name"},
        Refusal{WithMessage(R"("id":1,"name":"")"), "messages[0].name", "a message needs a name"}));

INSTANTIATE_TEST_SUITE_P(
    Fields, ReadNetworkRefuses,
    testing::Values(Refusal{"{}", "messages", "is missing"},
                    Refusal{WithMessage(R"("longName":"A")"), "messages[0].id", "is missing"},
                    Refusal{WithMessage(R"("id":1)"), "messages[0].longName", "is missing"},
                    Refusal{WithSignal(R"("startBit":0,"bitLength":8)"),
                            "messages[0].signals[0].longName", "is missing"},
                    Refusal{WithSignal(R"("longName":"S","bitLength":8)"),
                            "messages[0].signals[0].startBit", "is missing"},
                    Refusal{WithSignal(R"("longName":"S","startBit":8)"),
                            "messages[0].signals[0].bitLength", "is missing"},
                    Refusal{WithDescription(R"("text":"on")"),
                            "messages[0].signals[0].valueDescriptions[0].value", "is missing"},
                    Refusal{R"({"messages":[],"nodes":["N",{"a":[1]}]})", "nodes",
                            "there is no such field"},
                    Refusal{WithMessage(R"("id":1,"longName":"A","bit length":5)"),
                            R"(messages[0]["bit length"])", "there is no such field"},
                    Refusal{WithMessage(R"("id":1,"longName":"A","":5)"), R"(messages[0][""])",
                            "there is no such field"},
                    Refusal{WithMessage(R"("id":1,"longName":"A","\u001b[2J":{})"),
                            R"(messages[0]["\u001b[2J"])", "there is no such field"},
                    Refusal{WithMessage(R"("id":1,"longName":"A","id":2)"), "messages[0].id",
                            "the object has this field twice"},
                    Refusal{R"({"messages":[],"messages":[{"id":5}]})", "messages",
                            "the object has this field twice"}));

TEST(ReadNetwork, NamesEachRefusedValueByItsPlaceInTheDocument) {
    const DocumentResult result = tool::ReadNetwork(
        R"({"messages":[{"id":1,"name":"A"},{"id":2,"name":"B","signals":[)"
        R"({"name":"S","startBit":-1,"bitLength":"8"},5,{"name":"T","startBit":0,"bitLength":8,)"
        R"("valueDescriptions":[{"value":0},{"value":0.5}]}]},{"id":-3}]})",
        Most);
    EXPECT_EQ(result.refused.Held(),
              (std::vector<Remark>{
                  {"messages[1].signals[0].startBit", Say(Any32, "-1")},
                  {"messages[1].signals[0].bitLength", Say(Any32, R"("8")")},
                  {"messages[1].signals[1]", "an object is needed"},
                  {"messages[1].signals[2].valueDescriptions[1].value", Say(Any32Signed, "0.5")},
                  {"messages[2].id", Say(Any32, "-3")},
                  {"messages[2].longName", "is missing"}}));
}

TEST(ReadNetwork, LeavesOutTheRecordOfARefusedValueAlone) {
    const DocumentResult result = tool::ReadNetwork(
        R"({"messages":[{"id":-1,"name":"Gone"},{"id":2,"name":"B","note":1,"signals":[)"
        R"({"name":"Gone","startBit":-1,"bitLength":8},{"name":"T","startBit":0,"bitLength":8,)"
        R"("valueDescriptions":[{"value":0,"text":"off"},{"value":0.5}]}]}]})",
        Most);
    EXPECT_EQ(result.refused.Count(), 4U);
    EXPECT_EQ(result.messages, 1U);
    EXPECT_EQ(result.signals, 1U);
    EXPECT_EQ(result.descriptions, 1U);
    const DatabaseRecords database = FetchDatabase();
    ASSERT_EQ(database.messages.size(), 1U);
    EXPECT_EQ(database.messages[0].record.id, 2U);
    ASSERT_EQ(database.messages[0].signals.size(), 1U);
    EXPECT_STREQ(database.messages[0].signals[0].record.name, "T");
    ASSERT_EQ(database.messages[0].signals[0].enums.size(), 1U);
    EXPECT_STREQ(database.messages[0].signals[0].enums[0].text, "off");
}

TEST(ReadNetwork, HasDefaultsForMissingFields) {
    const DocumentResult result = tool::ReadNetwork(
        R"({"messages":[{"id":291,"name":"Tank level","signals":[)"
        R"({"name":"S","startBit":4,"bitLength":12,"valueDescriptions":[{"value":3}]}]}]})",
        Most);
    EXPECT_EQ(result.refused.Count(), 0U);
    EXPECT_EQ(RecordText(FetchDatabase()),
              R"(info: protocolType 0 busType 0
message 0: id 291 dlc 8 signalCount 1 cycleTime 0
  name "Tank_level"
  longName "Tank level"
  transmitter ""
  sendType ""
  comment ""
  signal 0: multiplexType 0 multiplexValue 0 startBit 4 bitLength 12 byteOrder 1 valueType 0
    factor 1 offset 0 minimum 0 maximum 0
    startValue 0 inactiveValue 0 enumCount 1
    name "S"
    longName "S"
    unit ""
    unitUtf8 ""
    receiverList ""
    comment ""
    enum: value 3 text ""
)");
}

TEST(ReadNetwork, StartsEachRecordFromTheDefaults) {
    tool::ReadNetwork(
        R"({"messages":[{"id":1,"name":"A","dlc":2,"comment":"c","signals":[)"
        R"({"name":"S","startBit":4,"bitLength":5,"factor":3,"unit":"m","valueDescriptions":[)"
        R"({"value":1,"text":"one"},{"value":2}]},{"name":"T","startBit":0,"bitLength":1}]},)"
        R"({"id":2,"name":"B"}]})",
        Most);
    const DatabaseRecords database = FetchDatabase();
    ASSERT_EQ(database.messages.size(), 2U);
    EXPECT_EQ(database.messages[1].record.dlc, 8U);
    EXPECT_STREQ(database.messages[1].record.comment, "");
    EXPECT_TRUE(database.messages[1].signals.empty());
    const std::vector<SignalRecords>& signals = database.messages[0].signals;
    ASSERT_EQ(signals.size(), 2U);
    ASSERT_EQ(signals[0].enums.size(), 2U);
    EXPECT_STREQ(signals[0].enums[1].text, "");
    EXPECT_EQ(signals[1].record.factor, 1);
    EXPECT_STREQ(signals[1].record.unit, "");
    EXPECT_TRUE(signals[1].enums.empty());
}

TEST(ReadNetwork, TakesFieldsInAnyOrderAndWholeNumbersInAnyForm) {
    const DocumentResult result = tool::ReadNetwork(
        "\xEF\xBB\xBF"
        R"( {"account":{"files":[[{"a":null}]]},"errors":7,"libraryVersion":"9","formatVersion":1.0,)"
        R"("messages":[{"cut":["x"],"signals":[{"valueDescriptions":[{"text":"on","value":1e0}],)"
        R"("bitLength":8.0,"startBit":1e1,"longName":"S"}],"longName":"A","id":5}],)"
        R"("info":{"busType":1,"protocolType":4294967295}} )",
        Most);
    EXPECT_EQ(result.fault, "");
    EXPECT_EQ(result.refused.Held(), std::vector<Remark>());
    const DatabaseRecords database = FetchDatabase();
    EXPECT_EQ(database.info.protocolType, 4294967295);
    EXPECT_EQ(database.info.busType, 1U);
    ASSERT_EQ(database.messages.size(), 1U);
    EXPECT_EQ(database.messages[0].signals[0].record.startBit, 10U);
    EXPECT_STREQ(database.messages[0].signals[0].enums[0].text, "on");
}

TEST(ReadNetwork, TakesNumbersThatJsonCannotSayAsTexts) {
    tool::ReadNetwork(
        WithSignal(R"("name":"S","startBit":0,"bitLength":8,"factor":"NaN","offset":"-NaN",)"
                   R"("minimum":"-Infinity","maximum":"Infinity")"),
        Most);
    CanSignalRecord signal{};
    ASSERT_EQ(VexilGetCanSignalData(0, 0, &signal), 1);
    EXPECT_TRUE(std::isnan(signal.factor) && !std::signbit(signal.factor));
    EXPECT_TRUE(std::isnan(signal.offset) && std::signbit(signal.offset));
    EXPECT_EQ(signal.minimum, -std::numeric_limits<double>::infinity());
    EXPECT_EQ(signal.maximum, std::numeric_limits<double>::infinity());
}

// What the functions that append do not take, and what they make of texts.
TEST(ReadNetwork, RemarksOnValuesThatTheLibraryChanges) {
    const DocumentResult result = tool::ReadNetwork(
        R"({"messages":[{"id":1,"name":"B","longName":"A b","transmitter":"No de","cycleTime":100,)"
        R"("sendType":"Cyclic","signalCount":2,"comment":"say \"hi\"","signals":[)"
        R"({"name":"S","startBit":0,"bitLength":8,"valueType":2,"unit":"°C","receiverList":"N, M",)"
        R"("enumCount":2,"valueDescriptions":[{"value":1,"text":"a"},{"value":1,"text":"b"}]}]}]})",
        Most);
    EXPECT_EQ(result.refused.Held(), std::vector<Remark>());
    std::vector<Remark> remarks;
    for (const auto& [field, each] : result.changed) {
        remarks.insert(remarks.end(), each.Held().begin(), each.Held().end());
    }
    EXPECT_EQ(remarks, (std::vector<Remark>{
                           {"messages[0].comment", R"("say \"hi\"" became "say \\\"hi\\\"")"},
                           {"messages[0].cycleTime", "100 became 0"},
                           {"messages[0].name", R"("B" became "A_b")"},
                           {"messages[0].sendType", R"("Cyclic" became "")"},
                           {"messages[0].signalCount", "2 became 1"},
                           {"messages[0].signals[0].enumCount", "2 became 1"},
                           {"messages[0].signals[0].receiverList", R"("N, M" became "N,M")"},
                           {"messages[0].signals[0].unit", "\"\xC2\xB0\x43\" became \"_C\""},
                           {"messages[0].signals[0].valueDescriptions[1].value",
                            "1 is described before; the two texts were joined"},
                           {"messages[0].signals[0].valueType", "2 became 1"},
                           {"messages[0].transmitter", R"("No de" became "No_de")"}}));
    EXPECT_EQ(result.descriptions, 1U);
}

TEST(ReadNetwork, TakesTheUnitInUtf8WhereThereIsOne) {
    const DocumentResult result = tool::ReadNetwork(
        WithSignal(R"("name":"S","startBit":0,"bitLength":8,"unit":"_C","unitUtf8":"°C")"), Most);
    EXPECT_TRUE(result.changed.empty());
    CanSignalRecord signal{};
    ASSERT_EQ(VexilGetCanSignalData(0, 0, &signal), 1);
    EXPECT_STREQ(signal.unit, "_C");
    EXPECT_STREQ(signal.unitUtf8, "\xC2\xB0\x43");
}

TEST(ReadNetwork, ShowsLongTextsWhereTheyPart) {
    const std::string front(100, 'f');
    const DocumentResult result = tool::ReadNetwork(
        WithMessage(R"("id":1,"longName":"A","comment":")" + front + R"(\"end")"), Most);
    ASSERT_EQ(result.changed.size(), 1U);
    EXPECT_EQ(result.changed.begin()->second.Held().front().text,
              "...\"" + std::string(20, 'f') + R"(\"end" became ...")" + std::string(20, 'f') +
                  R"(\\\"end")");
}

TEST(ReadNetwork, HoldsAsManyRemarksAsItIsToldAndCountsAll) {
    std::string document = R"({"messages":[)";
    for (int id = 0; id < 30; ++id) {
        document += (id == 0 ? "" : ",") + std::string(R"({"id":)") + std::to_string(id) +
                    R"(,"name":"A","cycleTime":5})";
    }
    const DocumentResult result = tool::ReadNetwork(document + "]}", 3);
    ASSERT_EQ(result.changed.size(), 1U);
    EXPECT_EQ(result.changed.begin()->first, "messages[].cycleTime");
    EXPECT_EQ(result.changed.begin()->second.Count(), 30U);
    EXPECT_EQ(result.changed.begin()->second.Held().size(), 3U);
}

TEST(ReadNetwork, HoldsTheFirstRefusalsOfAHostileDocument) {
    std::string document = R"({"messages":[0)";
    for (int count = 1; count < 5000; ++count) {
        document += ",0";
    }
    const DocumentResult result = tool::ReadNetwork(document + "]}", Most);
    EXPECT_EQ(result.refused.Count(), 5000U);
    EXPECT_EQ(result.refused.Held().size(), DocumentResult::MostRefused);
    EXPECT_EQ(result.refused.Held().back().path, "messages[999]");
}

TEST(ReadNetwork, RefusesSignalsThatAMessageDoesNotTake) {
    std::string signals;
    for (int index = 0; index <= MaxSignalsPerMessage + 1; ++index) {
        signals +=
            (index == 0 ? "" : ",") + std::string(R"({"name":"S","startBit":0,"bitLength":1})");
    }
    const DocumentResult result =
        tool::ReadNetwork(WithMessage(R"("id":1,"name":"A","signals":[)" + signals + "]"), Most);
    EXPECT_EQ(result.signals, std::size_t{MaxSignalsPerMessage});
    EXPECT_EQ(
        result.refused.Held(),
        (std::vector<Remark>{{"messages[0].signals[10000]", "a message takes 10000 signals"},
                             {"messages[0].signals[10001]", "a message takes 10000 signals"}}));
}

TEST(ReadNetwork, EmptiesTheDatabaseFirst) {
    const DatabaseInfo info{ProtocolJ1939, BusCanFd};
    VexilSetDatabaseInfo(&info, sizeof info);
    CanMessageRecord message{};
    message.longName[0] = 'A';
    VexilAppendCanMessage(&message);
    tool::ReadNetwork(R"({"messages":[]})", Most);
    EXPECT_EQ(RecordText(FetchDatabase()), "info: protocolType 0 busType 0\n");
}

struct Fault {
    std::string document;
    std::string fault;
};

TEST(ReadNetwork, NamesLineAndColumnWhereATextIsNoJson) {
    const std::vector<Fault> rows = {
        {"",
         "line 1, column 1: syntax error while parsing value - unexpected end of input; "
         "expected '[', '{', or a literal"},
        {"{\n \"messages\": [\n  {\"id\": 1,}\n]}",
         "line 3, column 12: syntax error while parsing object key - unexpected '}'; expected "
         "string literal"},
        {"{\"messages\": nul}",
         "line 1, column 17: syntax error while parsing value - invalid literal"},
        {"{\"messages\": []} x",
         "line 1, column 18: syntax error while parsing value - invalid literal; expected end of "
         "input"},
        {"{\"a\": \"\xB0\"}",
         "line 1, column 8: syntax error while parsing value - invalid string: ill-formed UTF-8 "
         "byte"},
        {"{\"a\": \"\\ud800\"}",
         "line 1, column 14: syntax error while parsing value - invalid string: surrogate "
         "U+D800..U+DBFF must be followed by U+DC00..U+DFFF"},
        {WithSignal("\"factor\": 1e999"),
         "line 1, column 63: messages[0].signals[0].factor: the number \"1e999\" is out of the "
         "range of numbers with double precision"},
        {"{\"a\": 01}",
         "line 1, column 8: syntax error while parsing object - unexpected number "
         "literal; expected '}'"},
    };
    for (const Fault& row : rows) {
        EXPECT_EQ(tool::ReadNetwork(row.document, Most).fault, row.fault) << row.document;
    }
}

TEST(ReadNetwork, EndsAtADepthThatNoDocumentHas) {
    constexpr std::size_t Depth = 1000000;
    const std::string lists(Depth, '[');
    EXPECT_EQ(tool::ReadNetwork(lists, Most).fault,
              "the document: objects and lists are inside one another more than 64 deep");
    EXPECT_EQ(tool::ReadNetwork("{\"account\":" + lists, Most).fault,
              "account: objects and lists are inside one another more than 64 deep");
    const std::string within = std::string(63, '[') + std::string(63, ']');
    EXPECT_EQ(tool::ReadNetwork("{\"messages\":[],\"account\":" + within + "}", Most).fault, "");
    EXPECT_EQ(tool::ReadNetwork("{\"messages\":[],\"account\":[" + within + "]}", Most).fault,
              "account: objects and lists are inside one another more than 64 deep");
}

}  // namespace
}  // namespace vexil::test
