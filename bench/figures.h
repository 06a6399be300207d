// How times and memory are measured.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace vexil::bench {

using Work = std::function<void()>;

// Returns the time that an operation takes.
double Seconds(const Work& work);

// Precondition: values is not empty.
double Median(std::vector<double> values);

// Returns the peak memory of this process in bytes.
std::uint64_t PeakMemory();

struct ProcessCost {
    double seconds = 0;            // processor time, in the program and in the system
    std::uint64_t peakMemory = 0;  // of the whole process, including the program
    int exitCode = 0;
};

// Runs a program to its end, without its standard output.
//   command  the path of the program and its arguments
ProcessCost RunProcess(std::vector<std::string> command);

}  // namespace vexil::bench
