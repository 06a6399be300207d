// Names of one hash, found backwards, for hashes that mix eight bytes at a time into a state.
//
// Any eight bytes can be followed by eight others that lead to a wanted state. Those are taken that
// happen to be letters, digits and "_". Two such stages in a row, with some hundred ways through
// each, make as many names as the product of both.
// SPDX-License-Identifier: MIT
#pragma once

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

namespace vexil::growth {

inline constexpr std::size_t BlockSize = 8;
inline constexpr std::size_t StagesSize = 4 * BlockSize;

inline std::uint64_t ToBlock(std::string_view text) {
    std::uint64_t block = 0;
    std::memcpy(&block, text.data(), BlockSize);
    return block;
}

inline bool IsNameBlock(std::uint64_t block) {
    for (std::size_t at = 0; at < BlockSize; ++at, block >>= 8) {
        const auto ch = static_cast<unsigned char>(block);
        if (!((ch >= '0' && ch <= '9') || (ch >= 'A' && ch <= 'Z') || (ch >= 'a' && ch <= 'z') ||
              ch == '_')) {
            return false;
        }
    }
    return true;
}

// Eight letters that stand for a number.
inline std::uint64_t LetterBlock(std::uint64_t number) {
    std::uint64_t block = 0;
    for (std::size_t at = 0; at < BlockSize; ++at) {
        block = (block << 8) | ('a' + number % 26);
        number /= 26;
    }
    return block;
}

// Texts of two blocks that lead from a state to the wanted one.
//   mix        mix(state, block) is the state after a block.
//   blockFrom  blockFrom(state) is the block that leads from the state to the wanted one.
template <typename Mix, typename BlockFrom>
std::vector<std::string> FindStage(std::uint64_t state, std::size_t count, Mix mix,
                                   BlockFrom blockFrom) {
    std::vector<std::string> found;
    for (std::uint64_t number = 0; found.size() < count; ++number) {
        const std::uint64_t first = LetterBlock(number);
        const std::uint64_t second = blockFrom(mix(state, first));
        if (IsNameBlock(second)) {
            std::string text(2 * BlockSize, '\0');
            std::memcpy(text.data(), &first, BlockSize);
            std::memcpy(text.data() + BlockSize, &second, BlockSize);
            found.push_back(text);
        }
    }
    return found;
}

// Returns count names of StagesSize characters that lead from the state to the wanted one.
template <typename Mix, typename BlockFrom>
std::vector<std::string> FindNames(std::uint64_t state, std::uint64_t wanted, std::size_t count,
                                   Mix mix, BlockFrom blockFrom) {
    const auto ways = static_cast<std::size_t>(std::ceil(std::sqrt(static_cast<double>(count))));
    const std::vector<std::string> fronts = FindStage(state, ways, mix, blockFrom);
    const std::vector<std::string> backs = FindStage(wanted, ways, mix, blockFrom);
    std::vector<std::string> names;
    names.reserve(ways * ways);
    for (const std::string& front : fronts) {
        for (const std::string& back : backs) {
            names.push_back(front + back);
        }
    }
    names.resize(count);
    return names;
}

}  // namespace vexil::growth
