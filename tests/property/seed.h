// The seed of the random tests: always the same, or that of the environment variable
// VEXIL64_TEST_SEED, to look further or to repeat what another seed found.
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <cstdlib>
#include <random>
#include <string_view>

namespace vexil::test {

inline std::uint32_t Seed() {
    const char* chosen = std::getenv("VEXIL64_TEST_SEED");
    return chosen == nullptr ? 640064
                             : static_cast<std::uint32_t>(std::strtoul(chosen, nullptr, 10));
}

// A list of texts to choose from.
template <typename... Text>
constexpr std::array<std::string_view, sizeof...(Text)> Texts(Text... texts) {
    return {std::string_view(texts)...};
}

// Numbers that the standard fixes for a seed, so that a failure repeats on every platform.
class Random {
  public:
    explicit Random(std::uint32_t seed) : engine(seed) {}

    // A number below limit. Precondition: limit is not 0.
    std::uint32_t Below(std::uint32_t limit) { return Word() % limit; }

    // True once in so many times.
    bool OneIn(std::uint32_t times) { return Below(times) == 0; }

    std::uint32_t Word() { return static_cast<std::uint32_t>(engine()); }

    template <typename List>
    const auto& Of(const List& list) {
        return list[Below(static_cast<std::uint32_t>(std::size(list)))];
    }

  private:
    std::mt19937 engine;
};

}  // namespace vexil::test
