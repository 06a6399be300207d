// vexil-dbc explain: one cause, all of them, and names that are none.
// SPDX-License-Identifier: MIT
#include "tool/tool_process.h"

namespace vexil::test {
namespace {

TEST(ExplainCommand, PrintsMeaningRemedyAndExample) {
    EXPECT_EQ(
        RunTool({"explain", "range-reversed"}),
        (Outcome{Success,
                 "changed, range-reversed: the minimum is larger than the maximum; the two are "
                 "exchanged\n"
                 "\n"
                 "Exchange them in the file.\n"
                 "\n"
                 "For example:\n"
                 "\n"
                 "    BO_ 1 Engine: 8 ECU\n"
                 "     SG_ Speed : 0|8@1+ (1,0) [255|0] \"\" Dash\n",
                 ""}));
}

TEST(ExplainCommand, ShowsBytesThatCannotBePrinted) {
    EXPECT_NE(RunTool({"explain", "invalid-utf8"}).out.find("\"\\xB0C\""), std::string::npos);
    EXPECT_NE(RunTool({"explain", "byte-order-mark"}).out.find("    \\xEF\\xBB\\xBFVERSION"),
              std::string::npos);
    EXPECT_NE(RunTool({"explain", "nul-bytes"}).out.find("ECU\\x00\n"), std::string::npos);
}

TEST(ExplainCommand, ListsAllCausesByKind) {
    const Outcome outcome = RunTool({"explain"});
    EXPECT_EQ(outcome.exitCode, Success);
    for (const char* const text :
         {"refused\n  message-id ", "\n\ndropped\n  signal-of-refused-message ",
          "\n\nchanged\n  invalid-utf8 ", "\n\nignored\n  version ", "\n\nkept\n  kept ",
          "\n\nfile\n  no-statement ", "\n\nlayout\n  signals-overlap ",
          "\n\nrewrite\n  more-than-ten-digits "}) {
        EXPECT_NE(outcome.out.find(text), std::string::npos) << text << "\n" << outcome.out;
    }
}

TEST(ExplainCommand, SuggestsTheCauseForAMistypedOne) {
    EXPECT_EQ(
        RunTool({"explain", "swalowed"}),
        (Outcome{Usage, "", "vexil-dbc: there is no cause 'swalowed'; did you mean swallowed?\n"}));
    EXPECT_EQ(
        RunTool({"explain", "xyz"}),
        (Outcome{Usage, "", "vexil-dbc: there is no cause 'xyz'; vexil-dbc explain lists them\n"}));
}

}  // namespace
}  // namespace vexil::test
