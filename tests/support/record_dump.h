// The whole database through the public header alone: fetched as records, and told as text with
// every field of every record.
// SPDX-License-Identifier: MIT
#pragma once

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

// Fetches everything. Throws std::runtime_error when a function refuses an index below its count,
// or when signalCount or enumCount of a record is not the count that its function gives.
DatabaseRecords FetchDatabase();

// The info, then message by message its fields, its signals and their value descriptions. A number
// is given by its shortest form that reads back the same, a text as QuotedText.
std::string RecordText(const DatabaseRecords& database);

// The refused statements, one line each.
std::string ErrorText(const DatabaseRecords& database);

// The text between double quotes, on one line: a quote and a backslash stand behind a backslash, a
// control character is \n, \r, \t or \x and two hexadecimal digits. Every other byte stands as it
// is.
std::string QuotedText(std::string_view text);

}  // namespace vexil::test
