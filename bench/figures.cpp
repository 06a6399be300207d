// Times by the clock, and memory as the system reports it.
// SPDX-License-Identifier: MIT
#include "figures.h"

#include <algorithm>
#include <chrono>
#include <fstream>
#include <string>

#include "work.h"

namespace vexil::bench {

double Seconds(const Work& work) {
    using Clock = std::chrono::steady_clock;
    const auto start = Clock::now();
    work();
    return std::chrono::duration<double>(Clock::now() - start).count();
}

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

std::uint64_t PeakMemory() {
    std::ifstream status("/proc/self/status");
    std::string word;
    while (status >> word && word != "VmHWM:") {
    }
    std::uint64_t kilobytes = 0;
    status >> kilobytes;
    Check(!status.fail(), "the system does not report the memory in use");
    return kilobytes * 1024;
}

}  // namespace vexil::bench
