// Databases for measurements. Their text depends only on the arguments: it is the same on every
// machine and with every standard library.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace vexil::bench {

// A file and the expected results of reading it.
struct Database {
    std::string text;
    std::uint64_t messages = 0;
    std::uint64_t signals = 0;  // in all messages
    std::uint64_t enums = 0;    // value descriptions of all signals
    std::uint64_t errors = 0;
};

inline constexpr std::size_t MiB = 1024 * 1024;

// Messages of eight signals each, with comments, value descriptions, floats and attributes of each
// type. Ten megabytes contain about 4,000 messages.
Database WideDatabase(std::size_t size);

// One message with this many signals, each with a comment, a value description and an attribute.
Database TallDatabase(std::size_t signals);

// One message with this many signals, which all have the same name.
Database NamesDatabase(std::size_t signals);

}  // namespace vexil::bench
