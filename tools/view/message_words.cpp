// Ids and cycle times as a reader of logs and documents writes them.
// SPDX-License-Identifier: MIT
#include "view/message_words.h"

#include "database/frame_id.h"
#include "format/format.h"
#include "layout/bit_layout.h"
#include "view/display_text.h"

namespace vexil::tool {

std::string IdInWords(std::uint32_t id) {
    if (id == IndependentSignalsId) {
        return Format("{} in the file, which holds the signals without a message", id);
    }
    const bool isExtended = IsExtended(id);
    std::string words = isExtended
                            ? Format("{} (0x{:08X}), extended frame", IdOnBus(id), IdOnBus(id))
                            : Format("{} (0x{:03X}), standard frame", id, id);
    if (!IsValidId(id)) {
        words += Format(", too large for {} bits", isExtended ? 29 : 11);
    }
    return isExtended ? Format("{}; {} in the file", words, id) : words;
}

std::string J1939InWords(std::uint32_t id) {
    const std::optional<J1939Parts> parts = FindJ1939Parts(id);
    if (!parts) {
        return "";
    }
    std::string words =
        Format("priority {}, PGN {} (0x{:04X}), source {} (0x{:02X})", parts->priority,
               parts->parameterGroup, parts->parameterGroup, parts->source, parts->source);
    if (parts->destination) {
        words += Format(", destination {} (0x{:02X})", *parts->destination, *parts->destination);
    }
    return words;
}

std::string SendingInWords(const Snapshot& snapshot, const MessageFacts& message) {
    std::string words = Printable(snapshot.Text(message.sendType));
    if (message.cycleTime != 0) {
        words += Format("{}every {} ms", words.empty() ? "" : ", ", message.cycleTime);
    }
    return words;
}

}  // namespace vexil::tool
