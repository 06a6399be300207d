// Experiments on files: what the library makes of a text, and of the text without one of its
// statements.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "account/account.h"
#include "support/files.h"

namespace vexil::test {

// Reads texts with the library, by way of a file.
class Experiment {
  public:
    // What the library has after it has read the text: every record, one after the other.
    std::string Records(std::string_view text);

    // Reads the text and returns the snapshot.
    tool::Snapshot Read(std::string_view text);

  private:
    TempFolder folder;
    std::string file = folder.File("experiment.dbc");
};

// What an experiment has found against an account.
struct Contradiction {
    tool::Cause cause;
    std::uint32_t line;
    std::string text;
    std::string what;
    std::string_view exception;  // why it is none after all; empty if it is one
};

// Takes out every statement of the text, or each one of a sample, and compares the records.
//   step  1: every statement; n: every n-th one
std::vector<Contradiction> FindContradictions(Experiment& experiment, const std::string& text,
                                              std::size_t step);

}  // namespace vexil::test
