// How times and memory are measured.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace vexil::bench {

using Work = std::function<void()>;

// The time that a work takes.
double Seconds(const Work& work);

// Precondition: values is not empty.
double Median(std::vector<double> values);

// The greatest number of bytes that this process has had in memory.
std::uint64_t PeakMemory();

struct ProcessCost {
    double seconds = 0;  // of the processor, for the program and for the system on its behalf
    std::uint64_t peakMemory = 0;  // of all that the process had in memory, its program included
    int exitCode = 0;
};

// Runs a program to its end, without standard output.
//   command  the path of the program and its arguments
ProcessCost RunProcess(std::vector<std::string> command);

}  // namespace vexil::bench
