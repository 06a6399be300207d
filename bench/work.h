// The operations that are measured, and the plain loops with which they are compared. Each checks
// its result, and ends the program with a message if it is wrong.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "generate.h"

namespace vexil::bench {

// Ends the program if ok is false.
void Check(bool ok, std::string_view what);

// A file that is not on a disk, so flushes cost next to nothing.
inline constexpr std::string_view Sink = "/dev/null";

// -- The library --

void ReadDatabase(const std::string& path);

// Compares the database with the expected results.
void CheckDatabase(const Database& expected);

// Fetches all records. Returns their number.
std::uint64_t FetchRecords();

// Fetches for each signal its record, the number of its value descriptions and the first of them,
// like a host that shows a list. Returns the number of signals.
std::uint64_t FetchFirstDescriptions();

void WriteDatabase(const std::string& path);

// -- The plain loops --

// Reads a file line by line and validates each line as UTF-8: the minimum that any reader does.
// Returns the number of lines.
std::uint64_t ReadLines(const std::string& path);

// Writes lines with a flush after each: the minimum that the writer does.
void WriteLines(const std::string& path, const std::vector<std::string_view>& lines);

// Returns the lines of a text, without line ends.
std::vector<std::string_view> SplitLines(std::string_view text);

}  // namespace vexil::bench
