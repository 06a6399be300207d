// vexil-dbc show: whole pages and lists, the choice of messages, and what cannot be shown.
// SPDX-License-Identifier: MIT
#include <fcntl.h>
#include <stdlib.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>

#include "tool/tool_process.h"

namespace vexil::test {
namespace {

// A message with everything, an extended one, and signals without a message.
constexpr std::string_view Network = R"(BU_: Tank Dash Pump

BO_ 291 Tank: 4 Tank
 SG_ Page M : 0|4@1+ (1,0) [0|15] "" Dash,Pump
 SG_ Level m0 : 8|12@1+ (0.25,0) [0|1023.75] "l" Dash,Pump
 SG_ Flow m1 : 15|12@0- (0.5,-10) [-1034|1013.5] "l/min" Dash
 SG_ Temperature m1 : 24|8@1- (1,0) [-40|85] "°C" Dash

BO_ 2564429808 Pump: 8 Pump
 SG_ Speed : 0|32@1- (1,0) [0|0] "rpm" Tank

BO_ 3221225472 INDEPENDENT_SIGNALS: 0 Dash
 SG_ Unused : 0|8@1+ (1,0) [0|0] "" Dash

CM_ BO_ 291 "What is in the tank";
CM_ SG_ 291 Level "The \"level\";
of the 温度 tank";
BA_DEF_ BO_ "GenMsgCycleTime" INT 0 65535;
BA_DEF_ BO_ "GenMsgSendType" ENUM "Cyclic","OnChange";
BA_DEF_ SG_ "GenSigStartValue" INT 0 65535;
BA_DEF_DEF_ "GenMsgCycleTime" 0;
BA_DEF_DEF_ "GenMsgSendType" "OnChange";
BA_ "GenMsgCycleTime" BO_ 291 100;
BA_ "GenMsgSendType" BO_ 291 0;
BA_ "GenSigStartValue" SG_ 291 Flow 20;
VAL_ 291 Page 0 "Level" 1 "Flow and temperature" ;
SIG_VALTYPE_ 2564429808 Speed : 1;
)";

class ShowCommand : public ToolTest {
  protected:
    Outcome Show(std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), {"show", network});
        return RunTool(arguments);
    }

    // What it prints, where all is well.
    std::string Shown(std::vector<std::string> arguments) {
        const Outcome outcome = Show(std::move(arguments));
        EXPECT_EQ(outcome, (Outcome{Success, outcome.out, ""}));
        return outcome.out;
    }

    std::string network = MakeFile("network.dbc", Network);
};

TEST_F(ShowCommand, ShowsAllFieldsOfAMessage) {
    EXPECT_EQ(
        Shown({"Tank"}),
        R"(── Tank ────────────────────────────────────────────────────────────────────────────────────────────
  id         291 (0x123), standard frame
  size       4 bytes
  sender     Tank
  sent       Cyclic, every 100 ms
  comment    What is in the tank

  signal       mux  start  bits  order   type  factor  offset  range            unit   receivers
  Page         M        0     4  little  uint       1       0  0 to 15                 Dash, Pump
  Level        m0       8    12  little  uint    0.25       0  0 to 1023.75     l      Dash, Pump
      The "level";
      of the 温度 tank
  Flow         m1      15    12  big     int      0.5     -10  -1034 to 1013.5  l/min  Dash
      start value 20, inactive value 0
  Temperature  m1      24     8  little  int        1       0  -40 to 85        °C     Dash

  multiplexing by Page
  ├─ 0 "Level": Level
  └─ 1 "Flow and temperature": Flow, Temperature

  values of Page
    0  Level
    1  Flow and temperature

  layout: a row for each byte, a column for each bit; 15..8 are bits of the signal, 0 is the lowest

  Page = 0 "Level"
          7     6     5     4     3     2     1     0
       ┌───────────────────────┬───────────────────────┐
     0 │                       │ Page             3..0 │
       ├───────────────────────┴───────────────────────┤
     1 │ Level                                    7..0 │
       ├───────────────────────┐                       │
     2 │                       │                 11..8 │
       │                       └───────────────────────┤
     3 │                                               │
       └───────────────────────────────────────────────┘

  Page = 1 "Flow and temperature"
          7     6     5     4     3     2     1     0
       ┌───────────────────────┬───────────────────────┐
     0 │                       │ Page             3..0 │
       ├───────────────────────┴───────────────────────┤
     1 │ Flow                                    11..4 │
       │                       ┌───────────────────────┤
     2 │                  3..0 │                       │
       ├───────────────────────┴───────────────────────┤
     3 │ Temperature                              7..0 │
       └───────────────────────────────────────────────┘
)");
}

TEST_F(ShowCommand, ShowsReceiversBelowTheirSignalWhereTheColumnWouldBreakWords) {
    EXPECT_EQ(Shown({"Tank", "--width", "70", "--ascii"}),
              R"(-- Tank --------------------------------------------------------------
  id         291 (0x123), standard frame
  size       4 bytes
  sender     Tank
  sent       Cyclic, every 100 ms
  comment    What is in the tank

  signal    mux  start  bits  order   type  factor  offset  range    unit
  Page      M        0     4  little  uint       1       0  0 to 15
      received by Dash, Pump
  Level     m0       8    12  little  uint    0.25       0  0 to     l
                                                            1023.75
      received by Dash, Pump
      The "level";
      of the 温度 tank
  Flow      m1      15    12  big     int      0.5     -10  -1034    l/min
                                                            to
                                                            1013.5
      start value 20, inactive value 0
      received by Dash
  Temperat  m1      24     8  little  int        1       0  -40 to   °C
  ure                                                       85
      received by Dash

  multiplexing by Page
  |- 0 "Level": Level
  `- 1 "Flow and temperature": Flow, Temperature

  values of Page
    0  Level
    1  Flow and temperature

  layout: a row for each byte, a column for each bit; 15..8 are bits
  of the signal, 0 is the lowest

  Page = 0 "Level"
          7     6     5     4     3     2     1     0
       +-----------------------+-----------------------+
     0 |                       | Page             3..0 |
       +-----------------------+-----------------------+
     1 | Level                                    7..0 |
       +-----------------------+                       |
     2 |                       |                 11..8 |
       |                       +-----------------------+
     3 |                                               |
       +-----------------------------------------------+

  Page = 1 "Flow and temperature"
          7     6     5     4     3     2     1     0
       +-----------------------+-----------------------+
     0 |                       | Page             3..0 |
       +-----------------------+-----------------------+
     1 | Flow                                    11..4 |
       |                       +-----------------------+
     2 |                  3..0 |                       |
       +-----------------------+-----------------------+
     3 | Temperature                              7..0 |
       +-----------------------------------------------+
)");
}

TEST_F(ShowCommand, ShowsTheJ1939PartsOfAnExtendedFrame) {
    EXPECT_EQ(Shown({"Pump", "--ascii", "--width", "80"}),
              R"(-- Pump ------------------------------------------------------------------------
  id         416946160 (0x18DA17F0), extended frame; 2564429808 in the file
  J1939      priority 6, PGN 55808 (0xDA00), source 240 (0xF0), destination 23
             (0x17)
  size       8 bytes
  sender     Pump
  sent       OnChange

  signal  start  bits  order   type   factor  offset  range  unit  receivers
  Speed       0    32  little  float       1       0  -      rpm   Tank

  layout: a row for each byte, a column for each bit; 15..8 are bits of the
  signal, 0 is the lowest
          7     6     5     4     3     2     1     0
       +-----------------------------------------------+
     0 | Speed                                    7..0 |
     1 |                                         15..8 |
     2 |                                        23..16 |
     3 |                                        31..24 |
       +-----------------------------------------------+
     4 |                                               |
     5 |                                               |
     6 |                                               |
     7 |                                               |
       +-----------------------------------------------+
)");
}

TEST_F(ShowCommand, ShowsSignalsWithoutAMessage) {
    EXPECT_EQ(
        Shown({"3221225472"}),
        R"(── INDEPENDENT_SIGNALS ─────────────────────────────────────────────────────────────────────────────
  id         3221225472 in the file, which holds the signals without a message
  size       0 bytes
  sender     Dash
  sent       OnChange

  signal  start  bits  order   type  factor  offset  range  unit  receivers
  Unused      0     8  little  uint       1       0  -            Dash

  no layout: these signals have no message
)");
}

TEST_F(ShowCommand, ListsMessages) {
    EXPECT_EQ(Shown({"--list"}),
              "        id         hex  frame  message              size  signals  sender   cycle  "
              "send type\n"
              "       291       0x123  std    Tank                    4        4  Tank    100 ms  "
              "Cyclic\n"
              " 416946160  0x18DA17F0  ext    Pump                    8        1  Pump            "
              "OnChange\n"
              "3221225472  0xC0000000  -      INDEPENDENT_SIGNALS     0        1  Dash            "
              "OnChange\n");
}

TEST_F(ShowCommand, ListsAsMuchOfACommentAsThereIsRoomFor) {
    EXPECT_EQ(Shown({"--list", "--width", "99", "Tank"}),
              " id    hex  frame  message  size  signals  sender   cycle  send type  comment\n"
              "291  0x123  std    Tank        4        4  Tank    100 ms  Cyclic     What is in "
              "the tank\n");
    EXPECT_EQ(
        Shown({"--list", "--width", "86", "Tank"}),
        " id    hex  frame  message  size  signals  sender   cycle  send type  comment\n"
        "291  0x123  std    Tank        4        4  Tank    100 ms  Cyclic     What is in the …\n");
    EXPECT_EQ(
        Shown({"--list", "--width", "85", "Tank", "--ascii"}),
        " id    hex  frame  message  size  signals  sender   cycle  send type  comment\n"
        "291  0x123  std    Tank        4        4  Tank    100 ms  Cyclic     What is in t...\n");
    EXPECT_EQ(
        Shown({"--list", "--width", "82", "Tank"}),
        " id    hex  frame  message  size  signals  sender   cycle  send type  comment\n"
        "291  0x123  std    Tank        4        4  Tank    100 ms  Cyclic     What is in …\n");
    EXPECT_EQ(Shown({"--list", "--width", "81", "Tank"}),
              " id    hex  frame  message  size  signals  sender   cycle  send type\n"
              "291  0x123  std    Tank        4        4  Tank    100 ms  Cyclic\n");
}

TEST_F(ShowCommand, ShowsEachChosenMessageOnceInTheOrderOfTheFile) {
    const Outcome chosen = Show({"Pump", "0x123", "?an?", "0x18DA17F0"});
    const Outcome one = Show({"Tank"});
    const Outcome other = Show({"Pump"});
    EXPECT_EQ(chosen, (Outcome{Success, one.out + "\n" + other.out, ""}));
    EXPECT_EQ(Show({"*"}), Show({}));
}

TEST_F(ShowCommand, ShowsNothingIfOneOfTheMessagesIsNotThere) {
    EXPECT_EQ(Show({"Tank", "Pumpe", "Engine", "E*", "292"}),
              (Outcome{Usage, "",
                       "vexil-dbc: there is no message 'Pumpe'; did you mean Pump?\n"
                       "vexil-dbc: there is no message 'Engine'; --list lists all messages\n"
                       "vexil-dbc: no message matches 'E*'\n"
                       "vexil-dbc: there is no message '292'; --list lists all messages\n"}));
}

TEST_F(ShowCommand, ReadsStandardInput) {
    EXPECT_EQ(RunTool({"show", "-", "Tank"}, {.standardInput = network}), Show({"Tank"}));
}

TEST_F(ShowCommand, CountsRefusedStatementsOnStandardError) {
    const std::string one = MakeFile("one.dbc", "BO_ 0x1 A: 8 N\nBO_ 2 B: 0 N\n");
    EXPECT_EQ(RunTool({"show", one, "--list"}),
              (Outcome{Success,
                       "id    hex  frame  message  size  signals  sender  cycle  send type  "
                       "comment\n"
                       " 2  0x002  std    B           0        0  N\n",
                       "vexil-dbc: '" + one +
                           "': 1 statement was refused; vexil-dbc check reports them\n"}));
    const std::string two = MakeFile("two.dbc", "BO_ 0x1 A: 8 N\nBO_ 0x2 B: 8 N\n");
    EXPECT_EQ(RunTool({"show", two}),
              (Outcome{Success, "",
                       "vexil-dbc: '" + two +
                           "': 2 statements were refused; vexil-dbc check reports them\n"}));
}

TEST_F(ShowCommand, ShowsANetworkWithoutMessages) {
    EXPECT_EQ(RunTool({"show", MakeFile("empty.dbc", "VERSION \"\"\n")}),
              (Outcome{Success, "", ""}));
}

TEST_F(ShowCommand, FailsOnAFileThatIsNoNetworkOrIsNotThere) {
    const std::string program = MakeFile("program.dbc", "int main() {}\n");
    EXPECT_EQ(RunTool({"show", program}),
              (Outcome{CannotRead, "",
                       "vexil-dbc: cannot read '" + program +
                           "': it has no statement, so it is not a DBC file\n"}));
    const std::string none = folder.File("none.dbc");
    const Outcome outcome = RunTool({"show", none});
    EXPECT_EQ(outcome.exitCode, CannotRead);
    EXPECT_TRUE(outcome.err.starts_with("vexil-dbc: cannot read '" + none + "': ")) << outcome.err;
}

TEST_F(ShowCommand, TakesWidthsThatADrawingFitsIn) {
    EXPECT_EQ(Show({"--list", "--width", "40"}).exitCode, Success);
    EXPECT_EQ(Show({"--list", "--width", "1000"}).exitCode, Success);
    for (const char* const width : {"39", "1001", "-1", "0", "wide", "4294967336"}) {
        EXPECT_EQ(Show({"--list", "--width", width}).exitCode, Usage) << width;
    }
}

TEST_F(ShowCommand, ShowsNetworksOfAnySize) {
    std::string text;
    constexpr int Messages = 65535;
    for (int id = 0; id < Messages; ++id) {
        text += "BO_ " + std::to_string(id) + " M" + std::to_string(id) + ": 4294967295 N\n";
    }
    const Outcome list = RunTool({"show", MakeFile("messages.dbc", text), "--list"});
    EXPECT_EQ(list.exitCode, Success);
    EXPECT_EQ(std::count(list.out.begin(), list.out.end(), '\n'), Messages + 1);

    text = "BO_ 1 M: 64 N\n";
    constexpr int Pairs = 4999;
    for (int pair = 0; pair < Pairs; ++pair) {
        const std::string number = std::to_string(pair);
        text += " SG_ A" + number + " : 0|4294967295@1+ (1,0) [0|0] \"\" N\n";
        text += " SG_ B" + number + " m" + number + " : 7|4294967295@0+ (1,0) [0|0] \"\" N\n";
    }
    const Outcome page = RunTool({"show", MakeFile("signals.dbc", text)});
    EXPECT_EQ(page.exitCode, Success);
    EXPECT_NE(page.out.find(" !1 A0, B0 and 4998 more overlap\n"), std::string::npos);
    EXPECT_TRUE(page.out.ends_with("not drawn: 4743 more multiplexer values\n"));
}

TEST_F(ShowCommand, ShowsEveryRealFile) {
    const char* const corpus = std::getenv("VEXIL64_CORPUS");
    if (corpus == nullptr || *corpus == '\0') {
        GTEST_SKIP() << "VEXIL64_CORPUS is not set: set it to a folder of .dbc files to run "
                        "the tests with real files.";
    }
    std::size_t files = 0;
    for (const auto& entry : std::filesystem::directory_iterator(corpus)) {
        if (entry.path().extension() != ".dbc") {
            continue;
        }
        const std::string file = entry.path().string();
        SCOPED_TRACE(file);
        const Outcome pages = RunTool({"show", file});
        const Outcome list = RunTool({"show", file, "--list"});
        EXPECT_EQ(pages.exitCode, Success);
        EXPECT_EQ(list.exitCode, Success);
        const auto lines = [](const std::string& text, std::string_view begin) {
            std::ptrdiff_t count = 0;
            for (std::size_t at = 0; at < text.size(); at = text.find('\n', at) + 1) {
                count += text.compare(at, begin.size(), begin) == 0 ? 1 : 0;
            }
            return count;
        };
        EXPECT_EQ(lines(pages.out, "── "), lines(list.out, "") - 1);
        ++files;
    }
    EXPECT_GT(files, 0U);
}

class ShowCommandOnLinux : public LinuxToolTest {};

TEST_F(ShowCommandOnLinux, TakesTextInOtherEncodings) {
    const std::string file = MakeFile("a.dbc",
                                      "BO_ 1 A: 1 N\n SG_ S : 0|8@1+ (1,0) [0|0] \"\xB0"
                                      "C\" N\n");
    const Outcome outcome = RunTool({"show", file, "--from", "windows-1252"});
    EXPECT_EQ(outcome.exitCode, Success);
    EXPECT_NE(outcome.out.find(" \xC2\xB0"
                               "C "),
              std::string::npos)
        << outcome.out;
}

// A terminal of some width, whose other end is in this process.
class Terminal {
  public:
    static bool IsAvailable() {
        const int tried = posix_openpt(O_RDWR | O_NOCTTY);
        return tried >= 0 && close(tried) == 0;
    }

    explicit Terminal(unsigned short columns) : master(posix_openpt(O_RDWR | O_NOCTTY)) {
        winsize size{};
        size.ws_row = 25;
        size.ws_col = columns;
        if (master < 0 || grantpt(master) != 0 || unlockpt(master) != 0) {
            throw std::runtime_error("could not make a terminal");
        }
        slave = open(ptsname(master), O_RDWR | O_NOCTTY);
        ioctl(slave, TIOCSWINSZ, &size);
    }
    Terminal(const Terminal&) = delete;
    Terminal& operator=(const Terminal&) = delete;
    ~Terminal() {
        close(slave);
        close(master);
    }

    int Descriptor() const { return slave; }

    // What was written to it, of which it holds 4 KB.
    std::string Read() const {
        std::string text(65536, '\0');
        const ssize_t size = read(master, text.data(), text.size());
        text.resize(size < 0 ? 0 : static_cast<std::size_t>(size));
        std::erase(text, '\r');
        return text;
    }

  private:
    int master;
    int slave = -1;
};

TEST_F(ShowCommandOnLinux, FollowsTheWidthOfTheTerminal) {
    if (!Terminal::IsAvailable()) {
        GTEST_SKIP() << "the system has no pseudo-terminals";
    }
    const std::string file = MakeFile("a.dbc", "BO_ 1 A: 0 N\n");
    const auto firstLine = [&](unsigned short columns) {
        const Terminal terminal(columns);
        const Outcome outcome =
            RunTool({"show", file, "--ascii"}, {.standardOutputDescriptor = terminal.Descriptor()});
        EXPECT_EQ(outcome.exitCode, Success);
        const std::string text = terminal.Read();
        return text.substr(0, text.find('\n'));
    };
    EXPECT_EQ(firstLine(60), "-- A " + std::string(55, '-'));
    EXPECT_EQ(firstLine(130), "-- A " + std::string(125, '-'));
    EXPECT_EQ(firstLine(20), "-- A " + std::string(35, '-'));
    EXPECT_EQ(firstLine(0), "-- A " + std::string(95, '-'));
}

}  // namespace
}  // namespace vexil::test
