// vexil64.hpp: writes that fail after some lines.
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <string>

#include "support/file_size_limit.h"
#include "support/files.h"
#include "vexil64.hpp"

namespace vexil::test {
namespace {

class CppFailingWriteTest : public testing::Test {
  protected:
    CppFailingWriteTest() {
        vexil64::clear();
        vexil64::append(vexil64::NewMessage(1, "Engine").comment("the last line"));
        vexil64::write(file);
        size = ReadBytes(file).size();
    }
    ~CppFailingWriteTest() override { vexil64::clear(); }

    vexil64::Result WriteWithRoomFor(std::size_t bytes) const {
        const FileSizeLimit limit(bytes);
        return vexil64::try_write(file);
    }

    TempFolder folder;
    std::string file = folder.File("written.dbc");
    std::size_t size = 0;
};

TEST_F(CppFailingWriteTest, FailsOnTheLastLineAsOnAnyOther) {
    for (const std::size_t room : {size - 1, size / 2}) {
        const vexil64::Result result = WriteWithRoomFor(room);
        EXPECT_FALSE(result) << room;
        EXPECT_EQ(result.code, StateStreamError) << room;
    }
    EXPECT_TRUE(WriteWithRoomFor(size));
}

TEST_F(CppFailingWriteTest, NamesTheOperationAndTheReason) {
    const FileSizeLimit limit(size - 1);
    try {
        vexil64::write(file);
        FAIL() << "nothing was thrown";
    } catch (const vexil64::Error& error) {
        EXPECT_EQ(error.what(),
                  "cannot write \"" + file + "\": reading or writing failed (result code 8)");
    }
}

}  // namespace
}  // namespace vexil::test
