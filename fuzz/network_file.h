// A network file as an input describes it, and larger files made of its statements.
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
    //   = and a word       repeat it so many times,
    //   x and a word       cut so many bytes off its end,
    //   i, a word and a text up to "|"   insert the text at a place in it.
    explicit NetworkFile(ByteSource& input);

    // The file. Its size is bounded, so that the whole model of it can be compared.
    const std::string& Text() const { return text; }

    // A file of about that many bytes: the statements before a position once, then those from it on
    // over and over, either in turn or each one many times before the next.
    std::string Grown(std::size_t from, bool inTurn, std::size_t size) const;

  private:
    std::vector<std::string_view> statements;  // as the input describes them
    std::string text;
};

}  // namespace vexil::fuzz
