// ReadInput: files, standard input and what cannot be read.
// SPDX-License-Identifier: MIT
#include "file/input_file.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include "support/files.h"

namespace vexil::tool {
namespace {

class ReadInputTest : public testing::Test {
  protected:
    test::TempFolder folder;
    std::string file = folder.File("a.dbc");
    InputFile input;
};

TEST_F(ReadInputTest, ReadsAFile) {
    const std::string text = "one\r\ntwo" + std::string(1, '\0') + "\xFF";
    test::WriteBytes(file, text);
    EXPECT_EQ(ReadInput(file, input), std::error_code());
    EXPECT_EQ(input.bytes, text);
    EXPECT_TRUE(input.isPlain);
}

TEST_F(ReadInputTest, ReadsAnEmptyFile) {
    test::WriteBytes(file, "");
    EXPECT_EQ(ReadInput(file, input), std::error_code());
    EXPECT_EQ(input.bytes, "");
}

// Sizes around those in which the room grows and the system reads.
TEST_F(ReadInputTest, ReadsALargeFile) {
    for (const std::size_t size : {65535U, 65536U, 65537U, 131073U, 3'000'001U}) {
        std::string text(size, 'x');
        text.back() = 'y';
        test::WriteBytes(file, text);
        EXPECT_EQ(ReadInput(file, input), std::error_code());
        EXPECT_TRUE(input.bytes == text) << size;
    }
}

TEST_F(ReadInputTest, ReadsAPathOfAnyLength) {
    test::WriteBytes(file, "text");
    std::string path = folder.File("");
    while (path.size() < 10'000) {
        path += "/./";
    }
    EXPECT_EQ(ReadInput(path + "a.dbc", input), std::error_code());
    EXPECT_EQ(input.bytes, "text");
    EXPECT_EQ(ReadInput(path + "none.dbc", input), std::errc::no_such_file_or_directory);
}

TEST_F(ReadInputTest, ReadsAPipe) {
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    const Descriptor reader(ends[0]);
    Descriptor writer(ends[1]);
    ASSERT_EQ(WriteAll(writer.Value(), "text"), std::error_code());
    ASSERT_EQ(writer.Close(), std::error_code());
    EXPECT_EQ(ReadInput("/dev/fd/" + std::to_string(reader.Value()), input), std::error_code());
    EXPECT_EQ(input.bytes, "text");
    EXPECT_FALSE(input.isPlain);
}

TEST_F(ReadInputTest, RefusesAFolder) {
    EXPECT_EQ(ReadInput(folder.File(""), input), std::errc::is_a_directory);
    EXPECT_EQ(ReadInput("/", input), std::errc::is_a_directory);
}

TEST_F(ReadInputTest, RefusesAMissingFile) {
    EXPECT_EQ(ReadInput(file, input), std::errc::no_such_file_or_directory);
    EXPECT_EQ(ReadInput("", input), std::errc::no_such_file_or_directory);
    EXPECT_EQ(ReadInput(file + "/none/a", input), std::errc::no_such_file_or_directory);
}

TEST_F(ReadInputTest, ReplacesThePreviousFile) {
    test::WriteBytes(file, "text");
    EXPECT_EQ(ReadInput(file, input), std::error_code());
    EXPECT_EQ(ReadInput(folder.File("none"), input), std::errc::no_such_file_or_directory);
    EXPECT_EQ(input.bytes, "");
    EXPECT_FALSE(input.isPlain);
}

}  // namespace
}  // namespace vexil::tool
