// Names of one hash, computed backwards.
//
// The hash is a state of 64 bits into which eight bytes at a time are mixed, by steps that can all
// be undone. So any eight bytes can be followed by eight others that lead to a wanted state; those
// are taken that happen to be letters, digits and "_". Two such steps in a row, with some hundred
// ways through each, make as many names as the product of both.
// SPDX-License-Identifier: MIT
#include "colliding_names.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>

namespace vexil::growth {
namespace {

constexpr std::size_t BlockSize = 8;
constexpr std::size_t StagesSize = 4 * BlockSize;
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

bool IsNameBlock(std::uint64_t block) {
    for (std::size_t at = 0; at < BlockSize; ++at, block >>= 8) {
        const auto ch = static_cast<unsigned char>(block);
        if (!((ch >= '0' && ch <= '9') || (ch >= 'A' && ch <= 'Z') || (ch >= 'a' && ch <= 'z') ||
              ch == '_')) {
            return false;
        }
    }
    return true;
}

std::uint64_t ToBlock(std::string_view text) {
    std::uint64_t block = 0;
    std::memcpy(&block, text.data(), BlockSize);
    return block;
}

// Eight letters that stand for a number.
std::string Letters(std::uint64_t number) {
    std::string text(BlockSize, 'a');
    for (char& ch : text) {
        ch = static_cast<char>('a' + number % 26);
        number /= 26;
    }
    return text;
}

// Texts of two blocks that lead from the state to Target.
std::vector<std::string> FindStage(std::uint64_t state, std::size_t count) {
    std::vector<std::string> found;
    for (std::uint64_t number = 0; found.size() < count; ++number) {
        const std::string first = Letters(number);
        const std::uint64_t middle = AddBlock(state, ToBlock(first));
        const std::uint64_t second = UnmixBlock((Target * InverseFactor) ^ middle);
        if (IsNameBlock(second)) {
            std::string text = first;
            text.resize(2 * BlockSize);
            std::memcpy(&text[BlockSize], &second, BlockSize);
            found.push_back(text);
        }
    }
    return found;
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
    const auto ways = static_cast<std::size_t>(std::ceil(std::sqrt(static_cast<double>(count))));
    const std::vector<std::string> fronts = FindStage(state, ways);
    const std::vector<std::string> backs = FindStage(Target, ways);
    const std::string padding = head.substr(prefix.size());
    std::vector<std::string> names;
    names.reserve(ways * ways);
    for (const std::string& front : fronts) {
        for (const std::string& back : backs) {
            names.push_back(padding + front + back);
        }
    }
    names.resize(count);
    return names;
}

}  // namespace vexil::growth
