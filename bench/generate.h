// Databases to measure with. The text depends on the arguments alone: it is the same on every
// machine and with every standard library.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace vexil::bench {

// A file and what a read of it must give.
struct Database {
    std::string text;
    std::uint64_t messages = 0;
    std::uint64_t signals = 0;  // of all messages
    std::uint64_t enums = 0;    // of all signals
    std::uint64_t errors = 0;
};

inline constexpr std::size_t MiB = 1024 * 1024;

// Messages of eight signals each with all that a message and a signal can have: comments, value
// descriptions, floats and attributes of each type. Ten megabytes hold about 4,000 messages.
Database WideDatabase(std::size_t size);

// One message of that many signals, each with a comment, a value description and an attribute.
Database TallDatabase(std::size_t signals);

// One message of that many signals of one name.
Database NamesDatabase(std::size_t signals);

}  // namespace vexil::bench
