// A JSON document into the database: defaults, what the library changes, and text that is no JSON.
// SPDX-License-Identifier: MIT
#include "document/read_network.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "support/record_dump.h"
#include "tool/small_documents.h"

namespace vexil::test {
namespace {

using tool::DocumentResult;
using tool::Remark;

constexpr std::size_t Most = 10;

TEST(ReadNetwork, HasDefaultsForMissingFields) {
    const DocumentResult result = tool::ReadNetwork(
        R"({"messages":[{"id":291,"name":"Tank level","signals":[)"
        R"({"name":"S","startBit":4,"bitLength":12,"valueDescriptions":[{"value":3}]}]}]})",
        Most);
    EXPECT_EQ(result.refused.Count(), 0U);
    EXPECT_EQ(RecordText(FetchDatabase()),
              "message 291 \"Tank_level\", 8 bytes from \"\", long name \"Tank level\"\n"
              "  signal \"S\": 4|12@1+ (1,0) [0|0] \"\" to \"\"\n"
              "    3 \"\"\n");
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

TEST(ReadNetwork, ReadsNumbersThatJsonDoesNotHaveFromTexts) {
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

TEST(ReadNetwork, ShowsLongTextsFromTheirFirstDifference) {
    const std::string front(100, 'f');
    const DocumentResult result = tool::ReadNetwork(
        WithMessage(R"("id":1,"longName":"A","comment":")" + front + R"(\"end")"), Most);
    ASSERT_EQ(result.changed.size(), 1U);
    EXPECT_EQ(result.changed.begin()->second.Held().front().text,
              "...\"" + std::string(20, 'f') + R"(\"end" became ...")" + std::string(20, 'f') +
                  R"(\\\"end")");
}

TEST(ReadNetwork, RemarksOnTextsThatMayBeCut) {
    const DocumentResult result = tool::ReadNetwork(
        R"({"messages":[{"id":1,"name":"A","cut":["comment"],"signals":[{"name":"S","startBit":0,)"
        R"("bitLength":8,"valueDescriptions":[{"value":0},{"cut":["text"],"value":1}],"cut":[]}]}]})",
        Most);
    EXPECT_EQ(result.refused.Count(), 0U);
    EXPECT_TRUE(result.changed.empty());
    EXPECT_EQ(
        result.cut.Held(),
        (std::vector<Remark>{
            {"messages[0]", "the texts that its member cut names"},
            {"messages[0].signals[0].valueDescriptions[1]", "the texts that its member cut names"},
            {"messages[0].signals[0]", "the texts that its member cut names"}}));
}

TEST(ReadNetwork, HoldsALimitedNumberOfRemarksAndCountsAll) {
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

TEST(ReadNetwork, EmptiesTheDatabaseFirst) {
    const DatabaseInfo info{ProtocolJ1939, BusCanFd};
    VexilSetDatabaseInfo(&info, sizeof info);
    CanMessageRecord message{};
    message.longName[0] = 'A';
    VexilAppendCanMessage(&message);
    tool::ReadNetwork(R"({"messages":[]})", Most);
    EXPECT_EQ(RecordText(FetchDatabase()), "");
}

struct Fault {
    std::string document;
    std::string fault;
};

TEST(ReadNetwork, ReportsLineAndColumnOfTextThatIsNotJson) {
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
