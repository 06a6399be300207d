// The database as a host sees it: records fetched through the functions of the library, and the
// text that tells them apart.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "vexil64.h"

namespace vexil::test {

struct PublicSignal {
    CanSignalRecord record{};
    std::vector<CanEnumRecord> enums;
};

struct PublicMessage {
    CanMessageRecord record{};
    std::vector<PublicSignal> signals;
};

struct PublicModel {
    DatabaseInfo info{};
    std::vector<PublicMessage> messages;
    std::vector<ParseError> errors;
};

struct CallResult {
    bool success = false;
    std::uint32_t code = 99;

    bool operator==(const CallResult&) const = default;
};

inline constexpr CallResult GoodCall{true, StateClosed};

// Call the library with a buffer that holds path and its NUL.
CallResult ReadFile(const std::string& path);
CallResult WriteFile(const std::string& path, std::uint32_t order);

// Fetches all that the library has. Throws std::runtime_error when a fetch inside the counts that
// the library gives is refused.
PublicModel FetchModel();

// What a host sees, on one line per record. What stands at its default is left out, but for the
// parts of a statement. Line feeds and other control characters in texts are shown as in C.
//
//   protocol 1, bus 1
//   message 291 "Engine", 8 bytes from "ECU1", cycle 100, comment "Main data"
//     signal "Speed" m3: 0|16@1+ (0.1,0) [0|6553.5] "km/h" to "ABS,ECU", comment "x"
//       0 "Off"
//   error 1 at line 5: "BO_ 1 x"
//
// Lines of a signal and its value descriptions have 2 and 4 blanks in front of them. The sign is +
// or - for integers, f or d for floats. Numbers are the shortest that read back as the same double.
std::vector<std::string> Describe(const PublicModel& model);

}  // namespace vexil::test
