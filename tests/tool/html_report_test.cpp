// The page of a report, as a whole and with hostile files.
//
//   VEXIL64_CORPUS  a folder of real files
// SPDX-License-Identifier: MIT
#include "view/html_report.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <string>

#include "tool/experiment.h"
#include "view/report_assets.h"

namespace vexil::test {
namespace {

constexpr std::string_view Network =
    "VERSION \"1\"\n"
    "BO_ 256 Engine: 3 ECM\n"
    " SG_ Speed : 0|12@1+ (0.25,0) [0|1000] \"rpm\" ABS,Dash\n"
    " SG_ Torque : 15|12@0- (0.5,-10) [-1034|1013.5] \"Nm\" Dash\n"
    " SG_ Running : 20|2@1+ (1,0) [0|0] \"\" Dash\n"
    " SG_ Ready : 22|2@1+ (1,0) [0|0] \"\" Dash\n"
    "BO_ 2566834942 Pages: 2 Dash\n"
    " SG_ Page M : 0|8@1+ (1,0) [0|0] \"\" Vector\n"
    " SG_ Heat m0 : 8|8@1+ (1,0) [0|255] \"\xC2\xB0"
    "C\" ECM\n"
    " SG_ Fault m7 : 8|4@1+ (1,0) [0|0] \"\" ECM\n"
    "BO_ 3 Empty: 0 ECM\n"
    "BO_ 4x Bad: 8 ECM\n"
    "CM_ BO_ 256 \"State of the engine,\nsaid \"often\"\";\n"
    "CM_ SG_ 256 Speed \"<At> the & crankshaft\";\n"
    "BA_DEF_ BO_ \"GenMsgCycleTime\" INT 0 65535;\n"
    "BA_DEF_DEF_ \"GenMsgCycleTime\" 0;\n"
    "BA_ \"GenMsgCycleTime\" BO_ 256 10;\n"
    "VAL_ 256 Running 0 \"Off\" 1 \"On\" ;\n"
    "VAL_ 256 Ready 0 \"Off\" 1 \"On\" ;\n"
    "VAL_ 256 Torque -1 \"None\" ;\n";

std::string Replace(std::string text, std::string_view part, std::string_view by) {
    const std::size_t at = text.find(part);
    return at == std::string::npos ? text : text.replace(at, part.size(), by);
}

std::size_t Count(std::string_view text, std::string_view part) {
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != std::string_view::npos;
         at = text.find(part, at + 1)) {
        ++count;
    }
    return count;
}

class HtmlReportTest : public testing::Test {
  protected:
    void Add(std::string_view name, const std::string& text) {
        const tool::Snapshot snapshot = experiment.Read(text);
        const tool::SourceText source(text);
        const tool::Account account = MakeAccount(source, snapshot);
        report.Add({name, snapshot, account, FindLayoutFaults(account, snapshot)});
    }

    std::string PageOf(const std::string& text) {
        Add("a.dbc", text);
        return report.Page();
    }

    // The page without its style and script, which are the same in every page.
    std::string Content() const {
        std::string page = report.Page();
        page = Replace(page, tool::ReportStyle, "STYLE");
        page = Replace(page, tool::ReportScript, "SCRIPT");
        page = Replace(page, tool::ReportStyleHash, "STYLE HASH");
        return Replace(page, tool::ReportScriptHash, "SCRIPT HASH");
    }

    Experiment experiment;
    tool::HtmlReport report;
};

TEST_F(HtmlReportTest, IsTheExpectedPage) {
    Add("net<work>.dbc", std::string(Network));
    EXPECT_EQ(Content(), ReadTextFile(VEXIL64_REPORT_PAGE));
}

TEST_F(HtmlReportTest, IsTheSameForTheSameFile) {
    const std::string page = PageOf(std::string(Network));
    tool::HtmlReport other;
    report = std::move(other);
    EXPECT_EQ(PageOf(std::string(Network)), page);
}

TEST_F(HtmlReportTest, HasASectionForEachFileAndLinksToThem) {
    Add("one.dbc", "BO_ 1 A: 8 N\n SG_ S : 0|8@1+ (1,0) [0|1] \"\" R\n");
    Add("two.dbc", "BO_ 1 B: 8 N\nBO_ 2 C: 8 N\n");
    report.AddFailure("three.dbc", "no <such> file");
    const std::string page = report.Page();
    EXPECT_EQ(Count(page, "<section "), 3U);
    EXPECT_NE(page.find("<title>3 networks - network report</title>"), std::string::npos);
    EXPECT_NE(page.find(">3 of 3 messages, 1 of 1 signals</p>"), std::string::npos);
    EXPECT_NE(page.find("<li><a href=\"#file2\">two.dbc</a></li>"), std::string::npos);
    EXPECT_NE(page.find("<h2 id=\"file3\">three.dbc</h2>\n<p class=\"failure\">The file cannot be "
                        "read: no &lt;such&gt; file</p>"),
              std::string::npos);
}

TEST_F(HtmlReportTest, AllowsNothingButItsOwnStyleAndScript) {
    const std::string page = PageOf("BO_ 1 A: 8 N\n");
    EXPECT_NE(
        page.find("content=\"default-src 'none'; style-src 'sha256-" +
                  std::string(tool::ReportStyleHash) + "'; script-src 'sha256-" +
                  std::string(tool::ReportScriptHash) + "'; base-uri 'none'; form-action 'none'\""),
        std::string::npos);
    EXPECT_EQ(tool::ReportStyleHash.size(), 44U);
    EXPECT_EQ(tool::ReportScriptHash.size(), 44U);
    EXPECT_EQ(Count(page, "<script"), 1U);
    EXPECT_EQ(Count(page, "<style"), 1U);
    for (const std::string_view part : {" style=", " onclick=", " src=", "http:", "https:"}) {
        EXPECT_EQ(Count(Content(), part), 0U) << part;
    }
}

TEST_F(HtmlReportTest, TakesNoMarkupFromAFile) {
    for (const std::string_view text :
         {"<script>alert(1)</script>", "</td><svg/onload=alert(1)>", "{{&script}}", "{{{a}}}",
          "--><img/src=x/onerror=alert(1)>", "javascript:alert(1)", "&lt;b&gt;", "</style><i>"}) {
        const std::string value(text);
        tool::HtmlReport fresh;
        report = std::move(fresh);
        Add(value, "VERSION \"" + value + "\"\nBU_: " + value + "\nBO_ 1 " + value + ": 8 " +
                       value + "\n SG_ " + value + " : 0|8@1+ (1,0) [0|0] \"" + value + "\" " +
                       value + "\nBO_ x " + value + ": 8 N\nCM_ BO_ 1 \"" + value + "\";\nCM_ \"" +
                       value + "\";\nVAL_ 1 S 0 \"" + value +
                       "\" ;\nBA_DEF_ BO_ \"Marrowby_Msg_Name\" STRING ;\n"
                       "BA_DEF_DEF_ \"Marrowby_Msg_Name\" \"\";\n"
                       "BA_ \"Marrowby_Msg_Name\" BO_ 1 \"" +
                       value + "\";\n");
        const std::string content = Content();
        const std::string escaped = tool::EscapeHtml(text);
        EXPECT_GE(Count(content, escaped), 8U) << text;
        if (escaped != text) {
            EXPECT_EQ(Count(content, text), 0U) << text;
        }
    }
}

TEST_F(HtmlReportTest, ListsAHundredPlacesOfACause) {
    std::string text;
    for (int id = 0; id < 103; ++id) {
        text += "BO_ x" + std::to_string(id) + " A: 8 N\n";
    }
    const std::string page = PageOf(text);
    EXPECT_NE(page.find(">BO_ x99 A: 8 N<"), std::string::npos);
    EXPECT_EQ(page.find(">BO_ x100 A: 8 N<"), std::string::npos);
    EXPECT_NE(page.find("<p>and 3 more; vexil-dbc check --all lists them</p>"), std::string::npos);
}

TEST_F(HtmlReportTest, ListsTwentyPlacesOfAnIgnoredCause) {
    std::string text = "BO_ 1 A: 8 N\n";
    for (int number = 0; number < 22; ++number) {
        text += "CM_ BU_ N" + std::to_string(number) + " \"a node\";\n";
    }
    const std::string page = PageOf(text);
    EXPECT_NE(page.find(">CM_ BU_ N19 "), std::string::npos);
    EXPECT_EQ(page.find(">CM_ BU_ N20 "), std::string::npos);
    EXPECT_NE(page.find("<p>and 2 more; vexil-dbc check --all lists them</p>"), std::string::npos);
}

TEST_F(HtmlReportTest, NamesFiftyOverlapsOfAMessage) {
    std::string text = "BO_ 1 A: 8 N\n";
    for (int number = 0; number < 53; ++number) {
        text += " SG_ S" + std::to_string(number) + " : 0|1@1+ (1,0) [0|0] \"\" R\n";
    }
    EXPECT_NE(PageOf(text).find("; S50 overlaps S0; and 2 more<p data-l=1a!63.>"),
              std::string::npos);
}

TEST_F(HtmlReportTest, ShowsTypesAndAttributes) {
    const std::string page = PageOf(
        "BO_ 1 A: 20 N\n"
        " SG_ F : 0|32@1- (1,0) [0|0] \"\" R\n"
        " SG_ D : 39|64@0- (2.5,1) [-1.5|1e9] \"\" R\n"
        " SG_ I : 96|9@1- (1,0) [0|0] \"\" R\n"
        "SIG_VALTYPE_ 1 F : 1;\nSIG_VALTYPE_ 1 D : 2;\n"
        "BA_DEF_ BO_ \"GenMsgSendType\" ENUM \"Cyclic\",\"OnChange\";\n"
        "BA_DEF_DEF_ \"GenMsgSendType\" \"Cyclic\";\n"
        "BA_DEF_ SG_ \"GenSigStartValue\" INT 0 9;\nBA_DEF_DEF_ \"GenSigStartValue\" 0;\n"
        "BA_DEF_ SG_ \"GenSigInactiveValue\" INT 0 9;\nBA_DEF_DEF_ \"GenSigInactiveValue\" 0;\n"
        "BA_ \"GenMsgSendType\" BO_ 1 1;\n"
        "BA_ \"GenSigStartValue\" SG_ 1 I 5;\nBA_ \"GenSigInactiveValue\" SG_ 1 I 7;\n"
        "CM_ SG_ 1 I \"An integer\";\n");
    EXPECT_NE(page.find("<p>Send type: OnChange<p data-l="), std::string::npos);
    EXPECT_NE(page.find("<tr><th>F<td>0 f32<td>1<td><td>R"
                        "<tr><th>D<td>39 f64 BE<td>2.5, 1<td>-1.5..1000000000<td>R"
                        "<tr><th>I<td>96 s9<td>1<td><td>R"
                        "<td>Start value 5\nInactive value 7\nAn integer</table>"),
              std::string::npos)
        << page.substr(page.find("<table><tr><th>F"), 300);
}

TEST_F(HtmlReportTest, LeavesOutEmptyCellsAtTheEndOfARow) {
    EXPECT_NE(PageOf("BO_ 1 A: 8 N\n SG_ S : 0|8@1+ (1,0) [0|0] \"\"\nCM_ SG_ 1 S \"\";\n")
                  .find("<tr><th>S<td>0 u8<td>1</table>"),
              std::string::npos);
}

TEST_F(HtmlReportTest, ShowsALimitedNumberOfLayouts) {
    std::string text = "BO_ 1 A: 2 N\n SG_ Page M : 0|8@1+ (1,0) [0|0] \"\" R\n";
    for (int value = 0; value < 300; ++value) {
        const std::string number = std::to_string(value);
        text += " SG_ S" + number + " m" + number + " : 8|8@1+ (1,0) [0|0] \"\" R\n";
    }
    const std::string page = PageOf(text);
    EXPECT_EQ(Count(page, "<p data-l="), 256U);
    EXPECT_NE(page.find("<p>and 44 more layouts"), std::string::npos);
}

TEST_F(HtmlReportTest, HasNoLayoutOfSignalsWithoutAMessage) {
    const std::string page = PageOf(
        "BO_ 3221225472 VECTOR__INDEPENDENT_SIG_MSG: 8 N\n"
        " SG_ S : 0|8@1+ (1,0) [0|0] \"\" R\n");
    EXPECT_EQ(page.find("<p data-l="), std::string::npos);
}

TEST_F(HtmlReportTest, ShowsTheLargestNumbers) {
    const std::string page = PageOf(
        "BO_ 4294967295 A: 4294967295 N\n"
        " SG_ S : 4294967295|4294967295@1+ (1e308,-1e-300) [-1e308|1e308] \"\" R\n"
        " SG_ T : 4294967295|4294967295@0- (1,0) [0|0] \"\" R\n");
    EXPECT_NE(page.find("<td>4294967295 u4294967295<td>1e+308, -1e-300<td>-1e+308..1e+308<td>R"),
              std::string::npos);
    EXPECT_NE(page.find("<p data-l=512.>"), std::string::npos);
}

TEST_F(HtmlReportTest, HoldsForRealFiles) {
    const char* const folder = std::getenv("VEXIL64_CORPUS");
    if (folder == nullptr || *folder == '\0') {
        GTEST_SKIP() << "VEXIL64_CORPUS is not set: set it to a folder of .dbc files to run "
                        "the tests with real files.";
    }
    std::size_t files = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
        if (entry.path().extension() != ".dbc") {
            continue;
        }
        SCOPED_TRACE(entry.path().string());
        ++files;
        tool::HtmlReport fresh;
        report = std::move(fresh);
        const std::string text = ReadBytes(entry.path().string());
        const std::string page = PageOf(text);
        const tool::Snapshot snapshot = experiment.Read(text);
        EXPECT_EQ(Count(page, "<tbody><tr><th>"), snapshot.messages.size());
        for (const tool::SignalFacts& signal : snapshot.signals) {
            const std::string cell = "<tr><th>" + std::string(snapshot.Text(signal.name));
            ASSERT_NE(page.find(cell), std::string::npos) << cell;
        }
        for (const tool::DescriptionFacts& each : snapshot.descriptions) {
            const std::string row = "<tr><th>" + std::to_string(each.value) + "<td>" +
                                    tool::EscapeHtml(snapshot.Text(each.text));
            ASSERT_NE(page.find(row), std::string::npos) << row;
        }
    }
    EXPECT_GT(files, 0U);
}

}  // namespace
}  // namespace vexil::test
