// The fate of a statement: what the library does with it.
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace vexil::tool {

enum class Fate : std::uint8_t {
    Refused,  // a BO_ or SG_ statement that leaves a parse error
    Dropped,  // of a kind that is read, but without effect
    Changed,  // read, but not exactly as the file has it
    Ignored,  // of a kind that is never read
    Kept
};

inline constexpr std::size_t FateCount = 5;
inline constexpr std::array<Fate, FateCount> AllFates = {Fate::Refused, Fate::Dropped,
                                                         Fate::Changed, Fate::Ignored, Fate::Kept};

constexpr std::string_view NameOf(Fate fate) {
    constexpr std::array<std::string_view, FateCount> Names = {"refused", "dropped", "changed",
                                                               "ignored", "kept"};
    return Names[static_cast<std::size_t>(fate)];
}

constexpr std::optional<Fate> FindFate(std::string_view name) {
    for (const Fate fate : AllFates) {
        if (NameOf(fate) == name) {
            return fate;
        }
    }
    return std::nullopt;
}

}  // namespace vexil::tool
