// Makes names from the clock, because random devices can fail.
// SPDX-License-Identifier: MIT
#include "file/temporary_name.h"

#include <chrono>
#include <random>
#include <string_view>

namespace vexil::tool {

std::string TemporaryName(std::size_t size) {
    static std::uint64_t callCount = 0;  // a clock may not advance between two calls
    const auto now = std::chrono::system_clock::now().time_since_epoch().count();
    std::mt19937_64 random(static_cast<std::uint64_t>(now) + ++callCount);
    constexpr std::string_view Digits = "0123456789abcdef";
    std::string name = ".vexil-dbc-";
    while (name.size() < size) {
        name += Digits[random() % Digits.size()];
    }
    return name;
}

}  // namespace vexil::tool
