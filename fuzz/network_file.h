// A network file that an input describes, and larger files that repeat its statements.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "byte_source.h"

namespace vexil::fuzz {

class NetworkFile {
  public:
    // Takes the statements up to "~" or the end of the input. Line feeds between statements have
    // no meaning. Before a statement,
    //   = and a word                     repeats it this many times,
    //   x and a word                     removes this many bytes from its end,
    //   i, a word and a text up to "|"   inserts the text at this position.
    explicit NetworkFile(ByteSource& input);

    // The file. Its size is limited, so that its whole model can be compared.
    const std::string& Text() const { return text; }

    // A file of about this many bytes: the statements before a position once, then the others
    // repeatedly, either all in turn or each one many times before the next.
    std::string Grown(std::size_t from, bool inTurn, std::size_t size) const;

  private:
    std::vector<std::string_view> statements;  // as the input describes them
    std::string text;
};

}  // namespace vexil::fuzz
