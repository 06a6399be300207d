// Taking the id of an extended frame apart.
// SPDX-License-Identifier: MIT
#include "database/frame_id.h"

namespace vexil::tool {

std::optional<J1939Parts> FindJ1939Parts(std::uint32_t id) {
    if (!IsExtended(id) || !IsValidId(id)) {
        return std::nullopt;
    }
    constexpr std::uint32_t FirstBroadcastFormat = 240;  // of PDU2
    constexpr std::uint32_t Byte = 0xFFU;
    J1939Parts parts;
    parts.priority = id >> 26U & 7U;
    parts.parameterGroup = id >> 8U & 0x3FFFFU;
    parts.source = id & Byte;
    if ((id >> 16U & Byte) < FirstBroadcastFormat) {
        // The low byte is not part of the group then.
        parts.destination = parts.parameterGroup & Byte;
        parts.parameterGroup &= ~Byte;
    }
    return parts;
}

}  // namespace vexil::tool
