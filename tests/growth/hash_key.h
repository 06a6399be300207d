// The key of the library's hash. An attacker who wants names that collide would have to know when
// the process was started and where its data is; these tests read the key from memory.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace vexil::growth {

struct HashKey {
    std::uint64_t start = 0;
    std::uint64_t factor = 0;
};

// Returns the key of this process. The clock is stopped when the key is drawn, and the program has
// its data at a fixed place, so that every run has the same key. Ends the program if the key is not
// found, which means that src/text/keyed_hash.cpp draws it in another way.
const HashKey& KnownHashKey();

}  // namespace vexil::growth
