// The aspects in which two networks can differ.
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string_view>

namespace vexil::tool {

enum class Aspect : std::uint8_t {
    // Of the network.
    Protocol,
    BusType,
    // Of messages.
    Id,
    Size,
    Sender,
    CycleTime,
    SendType,
    // Of messages and signals.
    Name,
    LongName,
    Comment,
    Order,
    // Of signals.
    Bits,
    Type,
    Scaling,
    Range,
    Unit,
    Multiplexing,
    Receivers,
    Values,
    StartValue,
    InactiveValue
};

inline constexpr std::size_t AspectCount = 21;

struct AspectRow {
    Aspect aspect;
    std::string_view ignoreName;  // in the list of --ignore
    std::string_view key;         // in JSON
    std::string_view label;       // in text
};

// In the order of the enumeration.
const std::array<AspectRow, AspectCount>& AspectRows();

inline const AspectRow& RowOf(Aspect aspect) {
    return AspectRows()[static_cast<std::size_t>(aspect)];
}

// Finds an aspect by its name in the list of --ignore.
std::optional<Aspect> FindAspect(std::string_view ignoreName);

class AspectSet {
  public:
    constexpr AspectSet() = default;
    constexpr AspectSet(std::initializer_list<Aspect> aspects) {
        for (const Aspect aspect : aspects) {
            Add(aspect);
        }
    }

    constexpr bool Has(Aspect aspect) const { return (bits & BitOf(aspect)) != 0; }
    constexpr bool IsEmpty() const { return bits == 0; }
    constexpr void Add(Aspect aspect) { bits |= BitOf(aspect); }
    constexpr void AddIf(bool condition, Aspect aspect) { bits |= condition ? BitOf(aspect) : 0; }
    constexpr AspectSet Without(AspectSet other) const {
        AspectSet rest;
        rest.bits = bits & ~other.bits;
        return rest;
    }

    constexpr bool operator==(const AspectSet&) const = default;

  private:
    static constexpr std::uint32_t BitOf(Aspect aspect) {
        return std::uint32_t{1} << static_cast<unsigned>(aspect);
    }

    std::uint32_t bits = 0;
};

}  // namespace vexil::tool
