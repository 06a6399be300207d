// The table of causes: each row has a name of its own, and an example that has the cause.
// SPDX-License-Identifier: MIT
#include "account/cause.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <ostream>
#include <set>
#include <string>

#include "tool/experiment.h"

namespace vexil::tool {

void PrintTo(const CauseRow& row, std::ostream* stream) {
    *stream << row.name;
}

}  // namespace vexil::tool

namespace vexil::test {
namespace {

using tool::Cause;
using tool::CauseRow;

// The examples that are too long for a table, and the one that is no text.
std::string LongExample(Cause cause) {
    const std::string message = "BO_ 1 Engine: 8 ECU\n";
    switch (cause) {
        case Cause::Beyond4096Bytes:
            return message + "BA_DEF_ \"BusType\"\n" + std::string(5000, 'x') +
                   "\n \"BO_ BU_\" \n" + message;
        case Cause::Beyond10000Signals: {
            std::string text = message;
            for (int index = 0; index <= 10000; ++index) {
                text += " SG_ S : 0|8@1+ (1,0) [0|255] \"\" Dash\n";
            }
            return text;
        }
        case Cause::CutAt4096Bytes:
            return message + " SG_ S : 0|8@1+ (1,0) [0|255] \"\" Dash,\n" + std::string(5000, ' ') +
                   "\n Radio\nBU_ : Dash\n";
        default: {
            std::string text = "\xFF\xFE";
            for (const char ch : message) {
                text += ch;
                text += '\0';
            }
            return text;
        }
    }
}

template <typename List>
bool Has(const List& list, Cause cause) {
    return std::any_of(list.begin(), list.end(),
                       [cause](const auto& each) { return each.cause == cause; });
}

class CauseTable : public testing::TestWithParam<CauseRow> {};

TEST_P(CauseTable, HasAnExampleOfTheCause) {
    const CauseRow& row = GetParam();
    const std::string example =
        row.example.empty() ? LongExample(row.cause) : std::string(row.example);
    Experiment experiment;
    const tool::Snapshot snapshot = experiment.Read(example);
    const tool::SourceText source(example);
    const tool::Account account = MakeAccount(source, snapshot);
    switch (row.scope) {
        case tool::Scope::Statement:
            EXPECT_TRUE(Has(account.statements, row.cause)) << example.substr(0, 1000);
            break;
        case tool::Scope::File:
            EXPECT_TRUE(Has(account.fileFindings, row.cause));
            break;
        case tool::Scope::Layout:
            EXPECT_TRUE(Has(FindLayoutFaults(account, snapshot), row.cause));
            break;
        case tool::Scope::Rewrite:
            EXPECT_TRUE(Has(FindRewriteLosses(account, snapshot), row.cause));
            break;
    }
}

INSTANTIATE_TEST_SUITE_P(EachRow, CauseTable, testing::ValuesIn(tool::Causes()),
                         [](const auto& row) {
                             std::string name(row.param.name);
                             std::replace(name.begin(), name.end(), '-', '_');
                             return name;
                         });

TEST(Causes, AreInTheOrderOfTheEnumeration) {
    const auto rows = tool::Causes();
    for (std::size_t index = 0; index < rows.size(); ++index) {
        EXPECT_EQ(static_cast<std::size_t>(rows[index].cause), index) << rows[index].name;
    }
}

TEST(Causes, HaveNamesOfTheirOwn) {
    std::set<std::string_view> names;
    for (const CauseRow& row : tool::Causes()) {
        EXPECT_TRUE(names.insert(row.name).second) << row.name;
        EXPECT_EQ(tool::FindCause(row.name), &tool::RowOf(row.cause));
    }
    EXPECT_EQ(tool::FindCause("no-such-cause"), nullptr);
}

TEST(Causes, AreTheStepsOfTheLibraryInItsOrder) {
    const std::map<std::uint32_t, Cause> steps = {
        {StepMessageId, Cause::MessageId},       {StepMessageName, Cause::MessageName},
        {StepMessageSize, Cause::MessageSize},   {StepSignalName, Cause::SignalName},
        {StepSignalLayout, Cause::SignalLayout}, {StepSignalScaling, Cause::SignalScaling},
        {StepSignalRange, Cause::SignalRange}};
    for (const auto& [step, cause] : steps) {
        EXPECT_EQ(static_cast<std::uint32_t>(cause), step);
    }
}

}  // namespace
}  // namespace vexil::test
