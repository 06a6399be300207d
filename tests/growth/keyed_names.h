// Names and ids that collide under the library's own hash, for a key that is known.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "hash_key.h"

namespace vexil::growth {

// Returns count names of 32 letters, digits and "_" that have one hash together with the number.
std::vector<std::string> NamesOfOneKeyedHash(std::size_t count, std::uint64_t number,
                                             const HashKey& key);

// Returns count ids of messages whose hashes end in the same bits, so that they have one slot of a
// table that has 2 to the power of bits slots, or fewer.
std::vector<std::uint32_t> IdsOfOneSlot(std::size_t count, unsigned bits, const HashKey& key);

}  // namespace vexil::growth
