// The report of a comparison as JSON: numbers that JSON does not have, and bytes that are no text.
// Whole documents are tested with the tool.
// SPDX-License-Identifier: MIT
#include "view/diff_json_report.h"

#include <gtest/gtest.h>

#include <limits>
#include <sstream>
#include <string>

#include "tool/experiment.h"

namespace vexil::test {
namespace {

std::string Print(const tool::Snapshot& before, const tool::Snapshot& after) {
    const tool::Comparison comparison = Compare(before, after);
    std::ostringstream out;
    tool::PrintDiffAsJson(out, {"a\xFF.dbc", "b.dbc", before, after, comparison});
    return out.str();
}

TEST(PrintDiffAsJson, NamesNumbersThatJsonDoesNotHave) {
    Experiment experiment;
    const tool::Snapshot before =
        experiment.Read("BO_ 1 A: 8 N\n SG_ S : 0|8@1+ (1,0) [0|1] \"\" N\n");
    tool::Snapshot after = before;
    after.signals[0].factor = std::numeric_limits<double>::quiet_NaN();
    after.signals[0].minimum = -std::numeric_limits<double>::infinity();
    after.signals[0].maximum = std::numeric_limits<double>::infinity();
    const std::string document = Print(before, after);
    EXPECT_NE(document.find(R"("after":{"factor":"nan","offset":0})"), std::string::npos)
        << document;
    EXPECT_NE(document.find(R"("after":{"minimum":"-inf","maximum":"inf"})"), std::string::npos)
        << document;
}

TEST(PrintDiffAsJson, HasLargeWholeNumbersInFull) {
    Experiment experiment;
    const tool::Snapshot before =
        experiment.Read("BO_ 1 A: 8 N\n SG_ S : 0|8@1+ (1,0) [0|1] \"\" N\n");
    tool::Snapshot after = before;
    after.signals[0].minimum = -9007199254740992.0;
    after.signals[0].maximum = 1e300;
    const std::string document = Print(before, after);
    EXPECT_NE(document.find(R"({"minimum":-9007199254740992,"maximum":1e+300})"), std::string::npos)
        << document;
}

TEST(PrintDiffAsJson, ReplacesBytesThatAreNoText) {
    EXPECT_TRUE(Print({}, {}).starts_with("{\"before\": \"a\xEF\xBF\xBD.dbc\",\n"));
}

}  // namespace
}  // namespace vexil::test
