// CANMessage, one message of the network with its signals. Its operations are implemented in
// several
// files: records in frame/message_record.cpp, reading in read/message_statement.cpp, writing in
// write/message_section.cpp, write/comment_section.cpp and write/unique_names.cpp.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "frame/can_signal.h"
#include "frame/notes.h"
#include "text/arena.h"
#include "text/arena_list.h"
#include "text/constants.h"
#include "text/line_buffer.h"
#include "vexil64.h"

namespace vexil {

// Texts are UTF-8 of any length, in the arena of the database.
class CANMessage {
  public:
    std::uint32_t id = 0;           // as in the file; bit 31 marks an extended frame
    std::uint32_t dlc = 0;          // payload size in bytes
    std::int32_t cycleTime = 0;     // GenMsgCycleTime
    ArenaList<CANSignal*> signals;  // at most MaxSignalsPerMessage, in the arena
    std::string_view longName;      // name without the limits of an identifier
    std::string_view name;          // identifier form of longName, at most 32 bytes
    std::string_view transmitter;   // sending node, identifier form; may be empty
    std::string_view sendType;      // GenMsgSendType, identifier form
    Notes notes;                    // its comment

    // Whether the message has the maximum number of signals.
    bool IsFull() const noexcept { return signals.Size() >= MaxSignalsPerMessage; }

    // Appends a copy of the signal and returns the copy. Intentional: a full message drops the
    // signal without a report and returns null.
    CANSignal* AddSignal(Arena& arena, const CANSignal& signal) {
        if (IsFull()) {
            return nullptr;
        }
        auto* const added = arena.New<CANSignal>(signal);
        signals.Add(arena, added);
        return added;
    }

    // -- Records --

    // Copies the message into the record. Returns false when record is null. Texts that are too
    // long for their arrays are cut at the end of a character.
    bool CopyToRecord(CanMessageRecord* record) const;

    // Fills the message from a record. Returns false when record is null or one of its texts is
    // refused. Precondition: the message is new.
    bool FillFromRecord(Arena& arena, const CanMessageRecord* record);

    // -- Reading --

    // Parses a whole BO_ statement. Returns the Step constant of the step that failed, or nothing
    // on success. Precondition: the message is new.
    std::optional<std::uint32_t> Parse(Arena& arena, std::string_view text);

    // -- Writing -- each function appends a line without its line feed.

    void AppendMessageLine(LineBuffer& line) const;
    void AppendMessageComment(LineBuffer& line) const;

    // Adds numbered suffixes to signals that share a base name: 0 to the first, 1, 2 and so on to
    // the others. Returns whether there were any.
    bool MakeSignalNamesUnique(Arena& arena);

  private:
    // The steps of Parse after the id. Each starts at from and sets next to the position after its
    // part of the statement.
    bool ParseName(Arena& arena, std::string_view text, Position from, Position& next);
    bool ParseSize(std::string_view text, Position from, Position& next);
};

// Messages in the order in which they are written.
using MessageList = std::vector<CANMessage*>;

}  // namespace vexil
