// Texts for the codes of the library.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vexil::tool {

// Returns the reason why a read failed, by its result code.
std::string_view ReadFailure(std::uint32_t resultCode);

// Returns the reason why a write failed, by its result code.
std::string_view WriteFailure(std::uint32_t resultCode);

// Returns the step of a statement that failed, by the code of its ParseError.
std::string_view FailedStep(std::uint32_t code);

// Returns a text on one line: each run of white space becomes a blank, and none is at the ends.
std::string OneLine(std::string_view text);

}  // namespace vexil::tool
