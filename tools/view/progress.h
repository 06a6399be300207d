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

    Progress(std::ostream& out, std::size_t files, bool isTerminal)
        : out_(out), files_(files), isTerminal_(isTerminal), start_(Clock::now()) {}

    // The next file is about to be checked. Nothing is shown in the first half second.
    void Show(std::string_view file) {
        constexpr auto Patience = std::chrono::milliseconds(500);
        ++number_;
        if (isTerminal_ && files_ > 1 && Clock::now() - start_ > Patience) {
            out_ << "\r\x1B[K" << number_ << " of " << files_ << ": " << file << std::flush;
            isShown_ = true;
        }
    }

    // Takes the line away.
    void Clear() {
        if (isShown_) {
            out_ << "\r\x1B[K" << std::flush;
            isShown_ = false;
        }
    }

  private:
    std::ostream& out_;
    std::size_t files_;
    bool isTerminal_;
    Clock::time_point start_;
    std::size_t number_ = 0;
    bool isShown_ = false;
};

}  // namespace vexil::tool
