// The works that are measured, of the library and of the bare loops that it is compared with. Each
// checks what comes out and ends the program with a message when that is wrong, since the time of a
// wrong result means nothing.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "generate.h"

namespace vexil::bench {

// Ends the program when ok is false.
void Check(bool ok, std::string_view what);

// A file that is not written to the disk: its flushes cost next to nothing.
inline constexpr std::string_view Sink = "/dev/null";

// -- The library --

void ReadDatabase(const std::string& path);

// Compares the database that was read with what it should be.
void CheckDatabase(const Database& expected);

// Fetches all records. Returns their number.
std::uint64_t FetchRecords();

// Fetches of each signal its record, the number of its value descriptions and the first of them, as
// a host does that shows a list. Returns the number of signals.
std::uint64_t FetchFirstDescriptions();

void WriteDatabase(const std::string& path);

// -- The bare loops --

// Takes the lines of a file one by one and looks at each as UTF-8, which is what a reader cannot do
// without. Returns the number of lines.
std::uint64_t ReadLines(const std::string& path);

// Writes lines with a flush behind each, which is what the writer cannot do without.
void WriteLines(const std::string& path, const std::vector<std::string_view>& lines);

// The lines of a text, without their ends.
std::vector<std::string_view> SplitLines(std::string_view text);

}  // namespace vexil::bench
