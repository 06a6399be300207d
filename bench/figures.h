// How times and memory are measured.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

namespace vexil::bench {

using Work = std::function<void()>;

// The time that a work takes.
double Seconds(const Work& work);

// Precondition: values is not empty.
double Median(std::vector<double> values);

// The greatest number of bytes that this process has had in memory.
std::uint64_t PeakMemory();

}  // namespace vexil::bench
