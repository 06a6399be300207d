// The whole database through the public header alone: fetched as records and described as text, one
// line for each record.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "vexil64.h"

namespace vexil::test {

struct SignalRecords {
    CanSignalRecord record{};
    std::vector<CanEnumRecord> enums;
};

struct MessageRecords {
    CanMessageRecord record{};
    std::vector<SignalRecords> signals;
};

struct DatabaseRecords {
    DatabaseInfo info{};
    std::vector<MessageRecords> messages;
    std::vector<ParseError> errors;
};

// The result of a read or write.
struct CallResult {
    bool success = false;
    std::uint32_t code = 99;

    bool operator==(const CallResult&) const = default;
};

inline constexpr CallResult GoodCall{true, StateClosed};

// Call the library with a buffer that holds path and its NUL.
CallResult ReadFile(const std::string& path);
CallResult WriteFile(const std::string& path, std::uint32_t order);

// Fetches everything. Throws std::runtime_error when a function refuses an index below its count,
// or when signalCount or enumCount of a record is not the count that its function gives.
DatabaseRecords FetchDatabase();

// The info and the messages with their signals and value descriptions, one line each. Fields that
// have their default are left out, except for those of the BO_ or SG_ statement. Control characters
// are escaped as in C. The sign of a signal is + or - for integers, f or d for floats. Numbers are
// the shortest that read back as the same double.
//
//   protocol 1, bus 1
//   message 291 "Engine", 8 bytes from "ECU1", cycle 100, comment "Main data"
//     signal "Speed" m3: 0|16@1+ (0.1,0) [0|6553.5] "km/h" to "ABS,ECU", comment "x"
//       0 "Off"
std::string RecordText(const DatabaseRecords& database);

// The refused statements, one line each: the code of the step, the line and the text.
//
//   error 1 at line 5: "BO_ 1 x"
std::string ErrorText(const DatabaseRecords& database);

// The text between double quotes, with its quotes, backslashes and control characters escaped as in
// C. Different texts have different results.
std::string QuotedText(std::string_view text);

}  // namespace vexil::test
