// The library's codes in words.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vexil::tool {

// Why a read failed, by its result code.
std::string_view ReadFailure(std::uint32_t resultCode);

// Why a write failed, by its result code.
std::string_view WriteFailure(std::uint32_t resultCode);

// What failed in a statement, by the code of its ParseError.
std::string_view FailedStep(std::uint32_t code);

// A text on one line: each run of white space made one blank, none at the ends.
std::string OneLine(std::string_view text);

}  // namespace vexil::tool
