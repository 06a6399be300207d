// How elapsed time, processor time and memory are measured.
// SPDX-License-Identifier: MIT
#include "figures.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

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

ProcessCost RunProcess(std::vector<std::string> command) {
    std::vector<char*> arguments;
    for (std::string& argument : command) {
        arguments.push_back(argument.data());
    }
    arguments.push_back(nullptr);
    const pid_t child = fork();
    if (child == 0) {
        dup2(open("/dev/null", O_WRONLY), STDOUT_FILENO);
        execv(arguments.front(), arguments.data());
        _exit(127);
    }
    int status = 0;
    rusage usage{};
    Check(child > 0 && wait4(child, &status, 0, &usage) == child, "no process was started");
    Check(WIFEXITED(status), "a process was ended by a signal");
    const auto seconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
    };
    return {seconds(usage.ru_utime) + seconds(usage.ru_stime),
            static_cast<std::uint64_t>(usage.ru_maxrss) * 1024, WEXITSTATUS(status)};
}

}  // namespace vexil::bench
