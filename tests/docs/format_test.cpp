// The examples of docs/format.md, each read by the library and compared with what the document
// says.
//
// A fenced block of the document is marked by the words after its three backticks:
//
//   dbc          a file that is read
//   text         what a host then fetches, in the form of support/record_dump.h
//   dbc written  what is written, from the line that begins with BU_ on
//   text again   what a host fetches when the written file is read
//
// All but the first belong to the last file before them.
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "support/files.h"
#include "support/record_dump.h"

namespace vexil::test {
namespace {

struct Block {
    std::string words;  // after the backticks
    std::string text;
    int line = 0;
};

std::vector<Block> Blocks() {
    std::istringstream document(ReadBytes(VEXIL64_FORMAT_DOCUMENT));
    std::vector<Block> blocks;
    bool inside = false;
    int number = 0;
    for (std::string line; std::getline(document, line);) {
        ++number;
        if (line.starts_with("```")) {
            inside = !inside;
            if (inside) {
                blocks.push_back({line.substr(3), "", number});
            }
        } else if (inside) {
            blocks.back().text += line + "\n";
        }
    }
    EXPECT_FALSE(inside) << "the last block is not closed";
    return blocks;
}

std::string Described() {
    const DatabaseRecords database = FetchDatabase();
    return RecordText(database) + ErrorText(database);
}

template <std::size_t Size>
void Fill(char (&array)[Size], std::string_view text) {
    ASSERT_LT(text.size(), Size);
    text.copy(array, text.size());
}

class FormatDocument : public testing::Test {
  protected:
    // Reads a file without the info of an earlier one.
    static void Read(const std::string& file) {
        const DatabaseInfo none = {};
        VexilSetDatabaseInfo(&none, sizeof none);
        ASSERT_EQ(ReadFile(file), GoodCall);
    }

    void Load(const Block& block) {
        WriteBytes(file, block.text);
        Read(file);
    }

    // What the block should hold, for the file that was loaded.
    std::string Result(const Block& block) {
        if (block.words == "text") {
            return Described();
        }
        EXPECT_EQ(WriteFile(written, OrderAsStored), GoodCall);
        if (block.words == "dbc written") {
            const std::string text = ReadTextFile(written);
            return text.substr(text.find("\nBU_ ") + 1);
        }
        EXPECT_EQ(block.words, "text again");
        Read(written);
        return Described();
    }

    TempFolder folder;
    std::string file = folder.File("example.dbc");
    std::string written = folder.File("written.dbc");
};

TEST_F(FormatDocument, ExamplesHaveTheirResults) {
    int files = 0;
    bool hasResult = true;
    for (const Block& block : Blocks()) {
        SCOPED_TRACE("block at line " + std::to_string(block.line));
        if (block.words == "dbc") {
            EXPECT_TRUE(hasResult) << "the file before this has no result";
            hasResult = false;
            ++files;
            Load(block);
        } else {
            ASSERT_GT(files, 0) << "no file before this";
            hasResult = true;
            EXPECT_EQ(Result(block), block.text);
        }
    }
    EXPECT_TRUE(hasResult) << "the last file has no result";
    EXPECT_GE(files, 5);
}

TEST_F(FormatDocument, ShowsEachParseError) {
    std::set<std::uint32_t> shown;
    for (const Block& block : Blocks()) {
        if (block.words == "dbc") {
            Load(block);
            for (const ParseError& error : FetchDatabase().errors) {
                shown.insert(error.code);
            }
        }
    }
    EXPECT_EQ(shown, (std::set<std::uint32_t>{0, 1, 2, 3, 4, 5, 6}));
}

// What the table of changes says of a trip, beyond the examples.
TEST_F(FormatDocument, DescribesTheChangesOfARoundTrip) {
    struct Row {
        std::string_view text;
        std::string_view again;
    };
    const std::vector<Row> rows = {
        {"BO_ 1 A: 8 N\nBO_ 1 B: 8 N\nCM_ BO_ 1 \"c\";\n",
         "message 1 \"A\", 8 bytes from \"N\", comment \"cc\"\n"
         "message 1 \"B\", 8 bytes from \"N\", comment \"cc\"\n"},
        {"BO_ 1 A: 8 N\nBO_ 1 B b: 8 N\nBO_ 1 C c: 8 N\n",
         "message 1 \"A\", 8 bytes from \"N\", long name \"B b\"\n"
         "message 1 \"B_b\", 8 bytes from \"N\", long name \"B b\"\n"
         "message 1 \"C_c\", 8 bytes from \"N\", long name \"B b\"\n"},
        {"BO_ 1 a\" b: 8 N\n", "message 1 \"a__b\", 8 bytes from \"N\", long name \"a\"\n"},
        {"BO_ 1 A: 8 N\n SG_ S : 0|32@1- (1,0) [0|1] \"\" N\n"
         "VAL_ 1 S 0 \"zero\";\nSIG_VALTYPE_ 1 S : 1;\n",
         "message 1 \"A\", 8 bytes from \"N\"\n"
         "  signal \"S\": 0|32@1f (1,0) [0|1] \"\" to \"N\"\n"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.text);
        Load({"dbc", std::string(row.text), 0});
        EXPECT_EQ(Result({"text again", "", 0}), row.again);
    }
}

TEST_F(FormatDocument, DescribesTextsOfAppendedRecords) {
    VexilClearData();
    CanMessageRecord message = {};
    CanSignalRecord signal = {};
    message.id = 1;
    Fill(message.longName, "A");
    Fill(message.comment, "as BO_ 2\nor BO_ 3");
    Fill(signal.longName, "S");
    Fill(signal.unit, "a\"b");
    const CanEnumRecord entry = {7, "a\"b"};
    ASSERT_TRUE(VexilAppendCanMessage(&message));
    ASSERT_TRUE(VexilAppendCanSignalToCanMessage(0, &signal));
    signal = {};
    ASSERT_TRUE(VexilAppendCanSignalToCanMessage(0, &signal));
    ASSERT_TRUE(VexilAppendEnumToCanSignal(0, 0, &entry));
    ASSERT_TRUE(VexilAppendEnumToCanSignal(0, 1, &entry));
    EXPECT_EQ(Result({"text again", "", 0}),
              "message 1 \"A\", 0 bytes from \"Marrowby\"\n"
              "  signal \"S\": 0|0@0+ (0,0) [0|0] \"a\" to \"b__Marrowby\"\n"
              "    7 \"a\"\n"
              "  signal \"\": 0|0@0+ (0,0) [0|0] \"\" to \"Marrowby\"\n"
              "error 0 at line 42: \"BO_ 3\";\"\n");
}

TEST_F(FormatDocument, DescribesTheBusType) {
    Load({"dbc", "BO_ 1 A: 8 N\n", 0});
    ASSERT_EQ(WriteFile(written, OrderAsStored), GoodCall);
    const DatabaseInfo canFd = {ProtocolPlainCan, BusCanFd};
    VexilSetDatabaseInfo(&canFd, sizeof canFd);
    ASSERT_EQ(ReadFile(written), GoodCall);
    EXPECT_EQ(FetchDatabase().info.busType, BusCanFd);
}

}  // namespace
}  // namespace vexil::test
