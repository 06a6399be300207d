// The report of a check as text: what a terminal shows in colour. The whole text is tested with the
// tool.
// SPDX-License-Identifier: MIT
#include "view/text_report.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "view/progress.h"

namespace vexil::test {
namespace {

tool::AccountedStatement Statement(tool::Cause cause, std::string_view text) {
    return {cause, 1, 1, "BO_", text, ""};
}

std::string Print(const tool::Account& account, const tool::CheckView& view) {
    const std::vector<tool::Finding> layout;
    std::ostringstream out;
    PrintText(out, {"a.dbc", account, layout}, view);
    return out.str();
}

TEST(PrintText, ShowsTheFatesOfFindingsInColour) {
    tool::Account account;
    account.statements = {Statement(tool::Cause::MessageId, "BO_ x"),
                          Statement(tool::Cause::NameCut, "BO_ y"),
                          Statement(tool::Cause::Kept, "BO_ z")};
    EXPECT_EQ(
        Print(account, {.all = false, .colour = true}),
        "a.dbc: 3 statements: \x1B[31m1 refused\x1B[0m, \x1B[33m1 changed\x1B[0m, 1 kept\n"
        "\n"
        "\x1B[31mrefused, message-id\x1B[0m: 1 - the id of a message is not a plain number of "
        "32 bits\n"
        "  1:1: BO_ x\n"
        "\n"
        "\x1B[33mchanged, name-cut\x1B[0m: 1 - the name has more than 32 characters and is "
        "cut\n"
        "  1:1: BO_ y\n");
    EXPECT_EQ(Print(account, {.all = false, .colour = false}).find('\x1B'), std::string::npos);
}

TEST(PrintText, PutsALongStatementOnOneLineAndCutsItAtACharacter) {
    tool::Account account;
    const std::string text = "BO_ 1\n\tA:  8\r\n" + std::string(48, 'x') + "\xC3\xA4 and more";
    account.statements = {Statement(tool::Cause::NameCut, text)};
    const std::string printed = Print(account, {});
    EXPECT_NE(printed.find("  1:1: BO_ 1 A: 8 " + std::string(48, 'x') + "...\n"),
              std::string::npos)
        << printed;
}

TEST(Progress, IsSilentWithoutATerminalAndAtTheBeginning) {
    std::ostringstream out;
    tool::Progress elsewhere(out, 9, false);
    elsewhere.Show("a.dbc");
    elsewhere.Clear();
    tool::Progress early(out, 9, true, tool::Progress::Clock::now() + std::chrono::hours(1));
    early.Show("a.dbc");
    early.Clear();
    EXPECT_EQ(out.str(), "");
}

TEST(Progress, ShowsTheFileWhenTheWorkTakesLong) {
    std::ostringstream out;
    tool::Progress late(out, 9, true, tool::Progress::Clock::now() - std::chrono::hours(1));
    late.Show("a.dbc");
    late.Show("b.dbc");
    late.Clear();
    late.Clear();
    EXPECT_EQ(out.str(), "\r\x1B[K1 of 9: a.dbc\r\x1B[K2 of 9: b.dbc\r\x1B[K");
}

}  // namespace
}  // namespace vexil::test
