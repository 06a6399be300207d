// A progress line on a terminal, which shows the current file if a check takes long.
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstddef>
#include <ostream>
#include <string_view>

namespace vexil::tool {

class Progress {
  public:
    using Clock = std::chrono::steady_clock;

    // Progress of work that began at startTime.
    Progress(std::ostream& out, std::size_t files, bool isTerminal,
             Clock::time_point startTime = Clock::now())
        : stream(out), fileCount(files), onTerminal(isTerminal), start(startTime) {}

    // Shows the next file to check. Shows nothing in the first half second.
    void Show(std::string_view file) {
        constexpr auto Patience = std::chrono::milliseconds(500);
        ++number;
        if (onTerminal && fileCount > 1 && Clock::now() - start > Patience) {
            stream << "\r\x1B[K" << number << " of " << fileCount << ": " << file << std::flush;
            isShown = true;
        }
    }

    // Removes the line.
    void Clear() {
        if (isShown) {
            stream << "\r\x1B[K" << std::flush;
            isShown = false;
        }
    }

  private:
    std::ostream& stream;
    std::size_t fileCount;
    bool onTerminal;
    Clock::time_point start;
    std::size_t number = 0;
    bool isShown = false;
};

}  // namespace vexil::tool
