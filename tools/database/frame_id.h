// The parts of the id of a message.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>

namespace vexil::tool {

// Bit 31 of an id marks an extended frame. The other bits are the identifier on the bus.
inline constexpr std::uint32_t ExtendedFrameBit = 0x80000000U;
inline constexpr std::uint32_t LargestStandardId = 0x7FFU;
inline constexpr std::uint32_t LargestExtendedId = 0x1FFFFFFFU;

inline bool IsExtended(std::uint32_t id) {
    return (id & ExtendedFrameBit) != 0;
}

inline std::uint32_t IdOnBus(std::uint32_t id) {
    return id & ~ExtendedFrameBit;
}

// Returns whether a frame can have the id: 11 bits, or 29 bits in an extended frame.
inline bool IsValidId(std::uint32_t id) {
    return IdOnBus(id) <= (IsExtended(id) ? LargestExtendedId : LargestStandardId);
}

// What J1939 has in the 29 bits of an extended frame.
struct J1939Parts {
    std::uint32_t priority = 0;
    std::uint32_t parameterGroup = 0;
    std::uint32_t source = 0;
    std::optional<std::uint32_t> destination;  // only a PDU1 message has one

    bool operator==(const J1939Parts&) const = default;
};

// Returns the parts of an id, or nothing for a standard frame and an id that is not valid.
std::optional<J1939Parts> FindJ1939Parts(std::uint32_t id);

}  // namespace vexil::tool
