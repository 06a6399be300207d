// Names of one hash of the GNU standard library, whose steps can all be undone.
// SPDX-License-Identifier: MIT
#include "colliding_names.h"

#include <cstdint>

#include "name_blocks.h"

namespace vexil::growth {
namespace {

constexpr std::uint64_t Factor = 0xc6a4a7935bd1e995U;
constexpr std::uint64_t Seed = 0xc70f6907U;
constexpr std::uint64_t Target = 0x5bd1e995c6a4a793U;  // any state will do

// The inverse of an odd number modulo 2^64, by Newton's method.
constexpr std::uint64_t Inverse(std::uint64_t odd) {
    std::uint64_t inverse = odd;
    for (int round = 0; round < 6; ++round) {
        inverse *= 2 - odd * inverse;
    }
    return inverse;
}

constexpr std::uint64_t InverseFactor = Inverse(Factor);
static_assert(Factor * InverseFactor == 1);

// Is its own inverse.
std::uint64_t ShiftMix(std::uint64_t value) {
    return value ^ (value >> 47);
}

std::uint64_t MixBlock(std::uint64_t block) {
    return ShiftMix(block * Factor) * Factor;
}

std::uint64_t UnmixBlock(std::uint64_t mixed) {
    return ShiftMix(mixed * InverseFactor) * InverseFactor;
}

std::uint64_t AddBlock(std::uint64_t state, std::uint64_t block) {
    return (state ^ MixBlock(block)) * Factor;
}

// The block that leads from a state to Target.
std::uint64_t BlockFrom(std::uint64_t state) {
    return UnmixBlock((Target * InverseFactor) ^ state);
}

}  // namespace

std::vector<std::string> CollidingNames(std::size_t count, std::string_view prefix,
                                        std::size_t suffixSize) {
    std::string head(prefix);
    head.resize((prefix.size() + BlockSize - 1) / BlockSize * BlockSize, 'p');
    std::uint64_t state = Seed ^ ((head.size() + StagesSize + suffixSize) * Factor);
    for (std::size_t at = 0; at < head.size(); at += BlockSize) {
        state = AddBlock(state, ToBlock(std::string_view(head).substr(at)));
    }
    const std::string padding = head.substr(prefix.size());
    std::vector<std::string> names = FindNames(state, Target, count, AddBlock, BlockFrom);
    for (std::string& name : names) {
        name.insert(0, padding);
    }
    return names;
}

}  // namespace vexil::growth
