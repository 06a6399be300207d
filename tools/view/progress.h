// A line on a terminal that shows which file is being checked, when the work takes long.
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

    // The work began at startTime.
    Progress(std::ostream& out, std::size_t files, bool isTerminal,
             Clock::time_point startTime = Clock::now())
        : stream(out), fileCount(files), onTerminal(isTerminal), start(startTime) {}

    // The next file is about to be checked. Nothing is shown in the first half second.
    void Show(std::string_view file) {
        constexpr auto Patience = std::chrono::milliseconds(500);
        ++number;
        if (onTerminal && fileCount > 1 && Clock::now() - start > Patience) {
            stream << "\r\x1B[K" << number << " of " << fileCount << ": " << file << std::flush;
            isShown = true;
        }
    }

    // Takes the line away.
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
