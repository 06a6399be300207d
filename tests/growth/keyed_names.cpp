// The steps of src/text/keyed_hash.cpp, with a key that is known.
// SPDX-License-Identifier: MIT
#include "keyed_names.h"

#include "name_blocks.h"

namespace vexil::growth {
namespace {

std::uint64_t Fold(std::uint64_t a, std::uint64_t b) {
    __extension__ using Product = unsigned __int128;
    const Product product = static_cast<Product>(a) * b;
    return static_cast<std::uint64_t>(product) ^ static_cast<std::uint64_t>(product >> 64U);
}

}  // namespace

std::vector<std::string> NamesOfOneKeyedHash(std::size_t count, std::uint64_t number,
                                             const HashKey& key) {
    // No fold has to be undone: the last block of a stage replaces the state with a fixed number
    // before the fold, so every stage ends in the same state.
    constexpr std::uint64_t Replacement = 0x5bd1e995c6a4a793U;  // any number will do
    const auto mix = [&](std::uint64_t state, std::uint64_t block) {
        return Fold(state ^ block, key.factor);
    };
    const auto blockFrom = [](std::uint64_t state) { return state ^ Replacement; };
    return FindNames(Fold(key.start ^ number, key.factor), Fold(Replacement, key.factor), count,
                     mix, blockFrom);
}

std::vector<std::uint32_t> IdsOfOneSlot(std::size_t count, unsigned bits, const HashKey& key) {
    const std::uint64_t mask = (std::uint64_t{1} << bits) - 1;
    std::vector<std::uint32_t> ids;
    for (std::uint32_t id = 0; ids.size() < count; ++id) {
        std::uint64_t hash = key.start ^ (std::uint64_t{id} << 32U);
        for (int step = 0; step < 3; ++step) {  // the id, the rest of no name, its size
            hash = Fold(hash, key.factor);
        }
        if ((hash & mask) == 0) {
            ids.push_back(id);
        }
    }
    return ids;
}

}  // namespace vexil::growth
