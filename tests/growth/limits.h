// How fast a cost may grow.
// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>

#include "steps.h"

namespace vexil::growth {

// Twice the input may cost this many times as much: a logarithm is no harm.
inline constexpr double MaxRatio = 2.3;

// What a byte of the input may cost.
inline constexpr std::uint64_t MaxStepsPerByte = 250;
inline constexpr std::uint64_t MaxMemoryPerByte = 128;

// A work that exceeds its steps so far need not be seen to its end.
inline constexpr std::uint64_t Patience = 10;

// Compares what an input costs with what a smaller one costs. Some kilobytes are the price of being
// called at all, and a few bytes of memory for each of the input come and go with the steps by
// which strings and vectors grow.
//   smallerSize  of the smaller input, in bytes or in records.
//   ratio        how many times as much the input may cost.
inline void ExpectGrowth(const Cost& cost, const Cost& smaller, std::uint64_t smallerSize,
                         double ratio) {
    constexpr std::uint64_t Negligible = 4096;
    const std::uint64_t steps = std::max(smaller.steps, Negligible);
    const std::uint64_t memory = std::max(smaller.peakBytes, Negligible + 4 * smallerSize);
    EXPECT_LE(static_cast<double>(cost.steps), ratio * static_cast<double>(steps));
    EXPECT_LE(static_cast<double>(cost.peakBytes), ratio * static_cast<double>(memory));
}

}  // namespace vexil::growth
