// A plain search of the text of a DBC file, without any code of the library: which statements of
// the ordinary shape, one on each line, the file has.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vexil::test {

// A message, or a signal of it; a message has an empty name.
using Owner = std::pair<std::uint32_t, std::string>;

// The comment statements of one owner.
struct PlainComment {
    int statements = 0;
    int onOneLine = 0;
    std::string text;  // of the last one on one line
};

// The value descriptions of one signal.
struct PlainValues {
    int statements = 0;
    int onOneLine = 0;
    std::set<std::int64_t> values;
};

struct PlainScan {
    // Lines that begin with the word BO_. Not among them are the words BO_ after CM_, BA_DEF_ and
    // BA_, which name an owner, and those inside quotes, a quoted text of several lines included.
    std::size_t messageStatements = 0;

    // Those lines, each as "id name: size", and the lines that begin with the word SG_, each as its
    // name, with the multiplex indicator in <> if it has one, after two blanks.
    std::vector<std::string> outline;

    std::map<Owner, PlainComment> comments;
    std::map<Owner, PlainValues> values;

    // GenMsgCycleTime, as far as the file defines it as a whole number.
    bool hasCycleTimes = false;
    std::int32_t defaultCycleTime = 0;
    std::map<std::uint32_t, std::int32_t> cycleTimes;
};

PlainScan ScanPlainly(std::string_view text);

}  // namespace vexil::test
