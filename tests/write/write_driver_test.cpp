// Tests of write/write_driver.h.
// SPDX-License-Identifier: MIT
#include "write/write_driver.h"

#ifdef __linux__
#include "support/file_size_limit.h"
#endif

#include <algorithm>

#include "write/model.h"
#include "write/sections.h"

namespace vexil {
namespace {

using test::ReadText;
using test::ReadTextFile;
using test::Text;
using test::WriteBytes;

// A file without its first 34 lines, by sections.
const std::string Messages =
    "BU_ :  Marrowby ECU1 ABS\n"
    "\n"
    "BO_ 291 Engine: 8 ECU1\n"
    " SG_ Speed : 0|16@1+ (0.1,0) [0|6553.5] \"km/h\" ABS\n"
    " SG_ Temp : 16|32@1- (1,0) [0|0] \"\" Marrowby\n"
    "\n";
const std::string Comments =
    "CM_ BO_ 291 \"Main data\";\n"
    "CM_ SG_ 291 Speed \"Vehicle speed\";\n";
const std::string Attributes =
    "BA_DEF_ \"BusType\" STRING ;\n"
    "BA_DEF_ BO_ \"Marrowby_Msg_Name\" STRING ;\n"
    "BA_DEF_DEF_ \"BusType\" \"CAN FD\";\n"
    "BA_DEF_DEF_ \"Marrowby_Msg_Name\" \"\";\n"
    "BA_ \"Marrowby_Msg_Name\" BO_ 291 \"Engine data\";\n";
const std::string Values = "VAL_ 291 Speed 0 \"Off\" 1 \"On\";\n";
const std::string Types = "SIG_VALTYPE_ 291 Temp : 1;\n";

class WriteDbcFile : public test::ModelTest {
  protected:
    // The first lines, the same in every file.
    std::string Head() const { return Written(WriteVersionAndSymbols) + Written(WriteBitTiming); }

    // A message whose two signals get suffixes when a write gets that far.
    static CANMessage& AddDuplicates() {
        CANMessage& message = AddMessage(1, "M");
        AddSignal(message, "A");
        AddSignal(message, "A");
        return message;
    }

    static bool HasSuffixes(const CANMessage& message) {
        return SignalNames(message) == std::vector<std::string>{"A_0000", "A_0001"};
    }

    static WriteResult WriteBuffer(const char* path, std::uint32_t size) {
        WriteResult result{true, 99};
        result.succeeded = vexil::WriteDbcFile(path, size, OrderAsStored, result.code);
        return result;
    }
};

TEST_F(WriteDbcFile, WritesEachSectionInItsPlaceAndSkipsEmptyOnes) {
    const std::string head = Head();
    EXPECT_EQ(std::count(head.begin(), head.end(), '\n'), 34);
    for (const std::string& body : {Messages, Messages + Comments + Values + Types,
                                    Messages + Comments + Attributes + Values + Types}) {
        ReadText(body);
        EXPECT_EQ(WrittenFile(), head + body);
    }
}

TEST_F(WriteDbcFile, UsesTheWriteOrderInEverySectionAfterTheNodeList) {
    const auto file = [](std::initializer_list<std::pair<int, char>> order) {
        std::string blocks;
        std::string comments;
        std::string names;
        std::string values;
        std::string types;
        for (const auto& [number, letter] : order) {
            const std::string id = std::to_string(number);
            blocks += "BO_ " + id + ' ' + letter + ": 0 N" + letter +
                      "\n SG_ S : 0|0@1+ (0,0) [0|0] \"\" N\n"
                      " SG_ F : 0|32@1- (0,0) [0|0] \"\" N\n\n";
            comments += "\nCM_ SG_ " + id + " F \"" + letter + "\";\n";
            names += "BA_ \"Marrowby_Msg_Name\" BO_ " + id + " \"long " + letter + "\";\n";
            values += "VAL_ " + id + " S 0 \"" + letter + "\";\n";
            types += "SIG_VALTYPE_ " + id + " F : 1;\n";
        }
        return "BU_ :  NC NB NA N\n\n" + blocks + comments +
               "BA_DEF_ BO_ \"Marrowby_Msg_Name\" STRING ;\n"
               "BA_DEF_DEF_ \"Marrowby_Msg_Name\" \"\";\n" +
               names + values + types;
    };
    const std::string stored = file({{5, 'B'}, {100, 'C'}, {7, 'A'}});
    ReadText(stored);
    EXPECT_EQ(WrittenFile(0), Head() + file({{100, 'C'}, {7, 'A'}, {5, 'B'}}));
    EXPECT_EQ(WrittenFile(1), Head() + file({{7, 'A'}, {5, 'B'}, {100, 'C'}}));
    EXPECT_EQ(WrittenFile(2), Head() + stored);
    EXPECT_EQ(WrittenFile(7), Head() + stored);
}

TEST_F(WriteDbcFile, MakesSignalNamesUniqueInFileAndDatabase) {
    CANMessage& message = AddDuplicates();
    const std::string expected = Head() + Text({
                                              "BU_ :  Marrowby",
                                              "",
                                              "BO_ 1 M: 0 Marrowby",
                                              " SG_ A_0000 : 0|0@1+ (0,0) [0|0] \"\" Marrowby",
                                              " SG_ A_0001 : 0|0@1+ (0,0) [0|0] \"\" Marrowby",
                                              "",
                                              "BA_DEF_ SG_ \"Marrowby_Sig_Name\" STRING ;",
                                              "BA_DEF_DEF_ \"Marrowby_Sig_Name\" \"\";",
                                              "BA_ \"Marrowby_Sig_Name\" SG_ 1 A_0000 \"A\";",
                                              "BA_ \"Marrowby_Sig_Name\" SG_ 1 A_0001 \"A\";",
                                          });
    EXPECT_EQ(WrittenFile(), expected);
    EXPECT_TRUE(HasSuffixes(message));
    EXPECT_EQ(WrittenFile(), expected);
    EXPECT_TRUE(HasSuffixes(message));
}

TEST_F(WriteDbcFile, MakesTheNamesOfEveryMessageUniqueUnderEveryOrder) {
    for (const std::uint32_t order : {0U, 1U, 2U}) {
        test::ClearDatabase();
        const CANMessage& first = AddDuplicates();
        const CANMessage& second = AddDuplicates();
        WrittenFile(order);
        EXPECT_TRUE(HasSuffixes(first));
        EXPECT_TRUE(HasSuffixes(second));
    }
}

TEST_F(WriteDbcFile, RefusesAnEmptyDatabaseWithoutTouchingAFile) {
    const std::string path = folder.File("kept.dbc");
    WriteBytes(path, "kept");
    EXPECT_EQ(Write(path), (WriteResult{false, 2}));
    EXPECT_EQ(ReadTextFile(path), "kept");
    const std::string fresh = folder.File("fresh.dbc");
    EXPECT_EQ(Write(fresh), (WriteResult{false, 2}));
    EXPECT_FALSE(std::filesystem::exists(fresh));
}

TEST_F(WriteDbcFile, RefusesAnEmptyDatabaseBeforeCheckingThePath) {
    EXPECT_EQ(WriteBuffer("", 0), (WriteResult{false, 2}));
    EXPECT_EQ(WriteBuffer("x", 261), (WriteResult{false, 2}));
    EXPECT_EQ(WriteBuffer(nullptr, 5), (WriteResult{false, 2}));
}

#ifdef __linux__

using WriteDbcFileToAFullDisk = WriteDbcFile;

TEST_F(WriteDbcFileToAFullDisk, FailsAndKeepsTheNewNames) {
    const CANMessage& message = AddDuplicates();
    EXPECT_EQ(Write("/dev/full"), (WriteResult{false, 8}));
    EXPECT_TRUE(HasSuffixes(message));
}

TEST_F(WriteDbcFileToAFullDisk, SucceedsWithAStreamErrorWhenTheAttributesFailAsTheLastLine) {
    AddMessage(1, "M", "A");
    database.info = {ProtocolNmea, BusCanFd};
    const std::string whole = WrittenFile();
    // The attributes are written in one call, so no later line reports the failure.
    const std::size_t attributes = whole.find("BA_DEF_ \"BusType\"");
    ASSERT_NE(attributes, std::string::npos);
    const test::FileSizeLimit limit(attributes);
    EXPECT_EQ(Write(folder.File("cut.dbc")), (WriteResult{true, 8}));
}

#endif

}  // namespace
}  // namespace vexil
