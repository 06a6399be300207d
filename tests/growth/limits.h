// How fast a cost may grow.
// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "steps.h"

namespace vexil::growth {

// What a byte of the input may cost.
inline constexpr std::uint64_t MaxStepsPerByte = 250;
inline constexpr std::uint64_t MaxReadMemoryPerByte = 48;
inline constexpr std::uint64_t MaxMemoryPerByte = 128;  // of reading, fetching and writing together

// A work that exceeds its steps so far need not be seen to its end.
inline constexpr std::uint64_t Patience = 10;

// Returns how many times as much an input may cost that is factor times as large. The exponent
// leaves room for the logarithm of sorting: from 64 KiB to 16 MiB, it permits 1.32 times the cost
// per byte for each factor of 16.
inline double MaxGrowth(double factor) {
    constexpr double Exponent = 1.1;
    return std::pow(factor, Exponent);
}

// Compares what an input costs with what a smaller one costs. The call itself costs some kilobytes.
// Beyond them, a few steps and bytes of memory for each byte of the input come and go in the rounds
// in which strings and vectors grow and in which one phase leaves work to the next, and memory is
// taken in chunks.
//   smallerSize  of the smaller input, in bytes or in records.
//   ratio        how many times as much the input may cost.
inline void ExpectGrowth(const Cost& cost, const Cost& smaller, std::uint64_t smallerSize,
                         double ratio) {
    constexpr std::uint64_t Negligible = 4096;
    constexpr double Chunk = 256 * 1024;
    const std::uint64_t steps = std::max(smaller.steps, Negligible + 16 * smallerSize);
    const std::uint64_t memory = std::max(smaller.peakBytes, Negligible + 4 * smallerSize);
    EXPECT_LE(static_cast<double>(cost.steps), ratio * static_cast<double>(steps));
    EXPECT_LE(static_cast<double>(cost.peakBytes), ratio * static_cast<double>(memory) + Chunk);
}

}  // namespace vexil::growth
