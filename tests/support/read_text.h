// Text into the database: whole files through the read driver, with a database that starts empty.
// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <ostream>
#include <string>
#include <string_view>

#include "frame/can_database.h"
#include "read/read_driver.h"
#include "support/files.h"

namespace vexil::test {

// Gives the database the state that it has when the library is loaded.
inline void ClearDatabase() {
    database.Reset();
    database.info = {};
}

// A test that starts and ends with an empty database.
class DatabaseTest : public testing::Test {
  protected:
    void SetUp() override { ClearDatabase(); }
    void TearDown() override { ClearDatabase(); }
};

struct ReadResult {
    bool success = false;
    std::uint32_t code = 99;

    bool operator==(const ReadResult&) const = default;
};

inline void PrintTo(const ReadResult& result, std::ostream* out) {
    *out << (result.success ? "true" : "false") << " with code " << result.code;
}

inline constexpr ReadResult GoodRead{true, StateClosed};

// Reads the file at path, with a buffer that holds path and its NUL.
inline ReadResult ReadPath(const std::string& path) {
    ReadResult result;
    result.success =
        ReadDbcFile(path.c_str(), static_cast<std::uint32_t>(path.size() + 1), result.code);
    return result;
}

// Reads text as a file of exactly these bytes. What was in the database goes, as with every read.
inline ReadResult ReadText(std::string_view text) {
    static const TempFolder folder;
    const std::string file = folder.File("text.dbc");
    WriteBytes(file, text);
    return ReadPath(file);
}

}  // namespace vexil::test
