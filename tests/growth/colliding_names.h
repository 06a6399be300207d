// Names that fall into one bucket of every hash table that hashes them with std::hash.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace vexil::growth {

// Returns count names of 32 to 39 letters, digits and "_", of equal length, for which prefix + name
// + suffix has one and the same hash.
//   suffixSize  number of bytes of the suffix, whatever they are.
// It computes the names backwards through the hash of the GNU standard library, which has a fixed
// seed. Precondition: that library, with 64 bits.
std::vector<std::string> CollidingNames(std::size_t count, std::string_view prefix,
                                        std::size_t suffixSize);

}  // namespace vexil::growth
