// The values of a JSON document that are refused: how each is named, and what is left out with it.
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "document/read_network.h"
#include "support/record_dump.h"
#include "tool/small_documents.h"

namespace vexil::test {
namespace {

using tool::DocumentResult;
using tool::Remark;

constexpr std::size_t Most = 10;

struct Refusal {
    std::string document;
    std::string path;
    std::string text;
};

void PrintTo(const Refusal& row, std::ostream* stream) {
    *stream << row.document;
}

class RefusedValue : public testing::TestWithParam<Refusal> {};

TEST_P(RefusedValue, TheValueByItsPath) {
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
    WrongTypes, RefusedValue,
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
    NumbersOutOfRange, RefusedValue,
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
    Texts, RefusedValue,
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
    Fields, RefusedValue,
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

TEST(RefusedValues, NamesEachRefusedValueByItsPlaceInTheDocument) {
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

TEST(RefusedValues, LeavesOutTheRecordOfARefusedValueAlone) {
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

TEST(RefusedValues, HoldsTheFirstRefusalsOfAHostileDocument) {
    std::string document = R"({"messages":[0)";
    for (int count = 1; count < 5000; ++count) {
        document += ",0";
    }
    const DocumentResult result = tool::ReadNetwork(document + "]}", Most);
    EXPECT_EQ(result.refused.Count(), 5000U);
    EXPECT_EQ(result.refused.Held().size(), DocumentResult::MostRefused);
    EXPECT_EQ(result.refused.Held().back().path, "messages[999]");
}

TEST(RefusedValues, RefusesSignalsThatAMessageDoesNotTake) {
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

}  // namespace
}  // namespace vexil::test
