// Two networks of which the second one differs from the first one in a single thing.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "comparison/comparison.h"

namespace vexil::test {

struct SingleChange {
    tool::Snapshot before;
    tool::Snapshot after;
    tool::Comparison expected;  // what a comparison must find
};

// Changes one thing of a network at random. Returns false where it has chosen something that the
// network does not have.
//   change  receives the networks and the expectation
bool MakeSingleChange(const tool::Snapshot& network, std::uint32_t seed, SingleChange& change);

}  // namespace vexil::test
