// Small networks with the faults that files have: missing semicolons and quotes, wrong ids and
// names, statements out of order, keywords in texts, stray text, attributes of all kinds. The same
// for the same seed on every platform.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

namespace vexil::test {

std::string RandomNetwork(std::uint32_t seed);

}  // namespace vexil::test
