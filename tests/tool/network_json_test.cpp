// The database as JSON: the whole document, and the marks of texts that may be cut.
// SPDX-License-Identifier: MIT
#include "view/network_json.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>

namespace vexil::test {
namespace {

using nlohmann::json;

template <std::size_t Size>
void Set(char (&field)[Size], std::string_view text) {
    text.copy(field, Size - 1);
}

TEST(NetworkJson, HasALineForEachRecordWithAllOfItsFields) {
    std::ostringstream out;
    tool::NetworkJson document(out, {ProtocolJ1939, BusCanFd});
    CanMessageRecord message{};
    message.id = 4294967295;
    message.dlc = 64;
    message.signalCount = 2;
    message.cycleTime = -1;
    Set(message.name, "A_b");
    Set(message.longName, "A b");
    Set(message.transmitter, "ECU");
    Set(message.comment, "say \\\"hi\\\"");
    Set(message.sendType, "Cyclic");
    document.Add(message);
    CanSignalRecord signal{};
    Set(signal.name, "S");
    Set(signal.longName, "S");
    Set(signal.unit, "_C");
    Set(signal.unitUtf8, "\xC2\xB0\x43");
    Set(signal.receiverList, "N,M");
    Set(signal.comment, "c");
    signal.multiplexType = MultiplexSelected;
    signal.multiplexValue = 3;
    signal.startBit = 4294967295;
    signal.bitLength = 16;
    signal.byteOrder = ByteOrderLittleEndian;
    signal.valueType = ValueSigned;
    signal.factor = 0.1;
    signal.offset = -0.0;
    signal.minimum = -std::numeric_limits<double>::infinity();
    signal.maximum = std::numeric_limits<double>::quiet_NaN();
    signal.enumCount = 2;
    signal.startValue = 7;
    signal.inactiveValue = -8;
    document.Add(signal);
    CanEnumRecord description{};
    description.value = -1;
    document.Add(description);
    description.value = 2;
    Set(description.text, "two");
    document.Add(description);
    document.Add(CanSignalRecord{});
    document.Add(CanMessageRecord{});
    ParseError error{};
    error.code = StepSignalName;
    error.line = 5;
    Set(error.text, "SG_ x\n");
    document.Add(error);
    document.Finish();
    EXPECT_EQ(
        out.str(),
        R"({"formatVersion":1,
"libraryVersion":"1.33",
"info":{"protocolType":1,"busType":1},
"messages":[
{"id":4294967295,"name":"A_b","dlc":64,"longName":"A b","transmitter":"ECU","signalCount":2,)"
        R"("comment":"say \\\"hi\\\"","sendType":"Cyclic","cycleTime":-1,"signals":[
{"name":"S","longName":"S","unit":"_C","receiverList":"N,M","comment":"c","multiplexType":2,)"
        R"("multiplexValue":3,"startBit":4294967295,"bitLength":16,"byteOrder":1,"valueType":1,)"
        R"("factor":0.1,"offset":-0.0,"minimum":"-Infinity","maximum":"NaN","enumCount":2,)"
        "\"startValue\":7,\"inactiveValue\":-8,\"unitUtf8\":\"\xC2\xB0\x43\",\"valueDescriptions\":"
        "["
        R"(
{"value":-1,"text":""},
{"value":2,"text":"two"}
]},
{"name":"","longName":"","unit":"","receiverList":"","comment":"","multiplexType":0,)"
        R"("multiplexValue":0,"startBit":0,"bitLength":0,"byteOrder":0,"valueType":0,"factor":0,)"
        R"("offset":0,"minimum":0,"maximum":0,"enumCount":0,"startValue":0,"inactiveValue":0,)"
        R"("unitUtf8":"","valueDescriptions":[]}
]},
{"id":0,"name":"","dlc":0,"longName":"","transmitter":"","signalCount":0,"comment":"",)"
        R"("sendType":"","cycleTime":0,"signals":[]}
],
"errors":[
{"code":3,"line":5,"text":"SG_ x\n"}
]}
)");
}

TEST(NetworkJson, HasEmptyListsForAnEmptyDatabase) {
    std::ostringstream out;
    tool::NetworkJson(out, {}).Finish();
    EXPECT_EQ(out.str(),
              "{\"formatVersion\":1,\n\"libraryVersion\":\"1.33\",\n"
              "\"info\":{\"protocolType\":0,\"busType\":0},\n"
              "\"messages\":[],\n\"errors\":[]}\n");
}

TEST(NetworkJson, LeavesItsLastMemberToTheCaller) {
    std::ostringstream out;
    tool::NetworkJson document(out, {});
    document.Add(CanMessageRecord{});
    document.BeginAccount();
    out << "{\"files\":[]}\n";
    document.Finish();
    const json parsed = json::parse(out.str());
    EXPECT_EQ(parsed["account"], json::parse(R"({"files":[]})"));
    EXPECT_EQ(parsed["messages"].size(), 1U);
    EXPECT_EQ(parsed["errors"], json::array());
}

// The record cuts at a character, so a text that is up to three bytes short may be cut.
TEST(NetworkJson, MarksTextsThatTheirRecordMayHaveCut) {
    const auto cut = [](std::size_t longSize, std::size_t shortSize) {
        CanSignalRecord signal{};
        Set(signal.longName, std::string(longSize, 'n'));
        Set(signal.comment, std::string(longSize, 'c'));
        Set(signal.unitUtf8, std::string(shortSize, 'u'));
        std::ostringstream out;
        tool::NetworkJson document(out, {});
        document.Add(CanMessageRecord{});
        document.Add(signal);
        document.Finish();
        const json parsed = json::parse(out.str())["messages"][0];
        EXPECT_FALSE(parsed.contains("cut"));
        return parsed["signals"][0].value("cut", json::array());
    };
    EXPECT_EQ(cut(251, 28), json::array());
    EXPECT_EQ(cut(252, 28), (json{"longName", "comment"}));
    EXPECT_EQ(cut(255, 28), (json{"longName", "comment"}));
    EXPECT_EQ(cut(251, 29), (json{"unitUtf8"}));
    EXPECT_EQ(cut(255, 32), (json{"longName", "comment", "unitUtf8"}));
}

// Statements of errors have at most 254 bytes.
TEST(NetworkJson, MarksStatementsThatTheirRecordMayHaveCut) {
    const auto isMarked = [](std::size_t size) {
        ParseError error{};
        Set(error.text, std::string(size, 'e'));
        std::ostringstream out;
        tool::NetworkJson document(out, {});
        document.Add(error);
        document.Finish();
        return json::parse(out.str())["errors"][0].contains("cut");
    };
    EXPECT_FALSE(isMarked(250));
    EXPECT_TRUE(isMarked(251));
    EXPECT_TRUE(isMarked(254));
}

TEST(NetworkJson, WritesWhatDoesNotFitItsBuffer) {
    constexpr std::size_t Count = 2000;
    std::ostringstream out;
    tool::NetworkJson document(out, {});
    for (std::uint32_t id = 0; id < Count; ++id) {
        CanMessageRecord message{};
        message.id = id;
        document.Add(message);
    }
    document.Finish();
    const json parsed = json::parse(out.str());
    ASSERT_EQ(parsed["messages"].size(), Count);
    EXPECT_EQ(parsed["messages"][Count - 1]["id"], Count - 1);
}

}  // namespace
}  // namespace vexil::test
