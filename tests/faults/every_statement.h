// A small file that executes all code of a read and a write.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace vexil::faults {

// Every keyword, every statement that reaches the model in its good and its refused forms, texts
// that outgrow the place that a string has in itself, ids and names that stand more than once, a
// message of many signals, a statement of many tokens, a line longer than the buffer of a stream
// and a statement longer than the library takes whole. It ends in a line end.
std::string EveryStatement();

}  // namespace vexil::faults
