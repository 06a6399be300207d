// CANMessage, one message of the network with its signals. Its operations stand with what they
// serve: records in frame/message_record.cpp, reading in read/message_statement.cpp, writing in
// write/message_section.cpp, write/comment_section.cpp and write/unique_names.cpp.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "frame/can_signal.h"
#include "frame/comment.h"
#include "text/constants.h"
#include "text/shared_text.h"
#include "vexil64.h"

namespace vexil {

// Every parse and every fill starts with Reset and ends with it on failure, so a message is either
// valid or empty. Texts are UTF-8 of any length.
class CANMessage {
  public:
    CANMessage() = default;
    CANMessage(const CANMessage&) = delete;
    CANMessage& operator=(const CANMessage&) = delete;
    virtual ~CANMessage() = default;

    bool isEmpty = true;
    std::uint32_t id = 0;                             // as in the file, with the extended-frame bit
    std::vector<std::shared_ptr<CANSignal>> signals;  // at most MaxSignalsPerMessage
    SharedText rawName;                               // name as it stands in the file
    SharedText longName;                              // name for display
    SharedText name;                        // identifier form of longName, at most 32 bytes
    Comment comment;                        // shared by the messages of one id
    std::string transmitter;                // sending node, identifier form; may be empty
    std::string sendType;                   // GenMsgSendType, identifier form
    std::int32_t cycleTime = 0;             // GenMsgCycleTime
    std::uint32_t dlc = 0;                  // size in bytes
    std::vector<std::uint32_t> stepErrors;  // Step constants of a failed parse, at most one

    // Gives every member but stepErrors its default, so that the cause of a failure survives.
    void Reset();

    // Sets name to the identifier form of longName.
    void UpdateName();

    // Appends the signal. Kept on purpose: a full message drops it without notice.
    void AddSignal(std::shared_ptr<CANSignal> signal);

    // -- Records --

    // Copies the message out. False with the record untouched when it is null, and false when the
    // message is empty. Texts are cut to their arrays at a character.
    bool CopyToRecord(CanMessageRecord* record) const;

    // Takes the message from a record. False, with the message reset, when the record is null or
    // one of its texts is not valid UTF-8.
    bool FillFromRecord(const CanMessageRecord* record);

    // -- Reading --

    // Takes a BO_ statement. False, with the message reset, when a step fails: stepErrors then
    // holds its code, or nothing when the text does not begin with the keyword.
    bool Parse(std::string_view text);

    // -- Writing -- each returns line with a line behind it, without a line end; line as it is when
    // there is nothing to write.

    std::string FormatMessageLine(std::string line = {}) const;
    std::string FormatMessageComment(std::string line = {}) const;

    // Gives the signals that share a base name numbered suffixes: 0 to the first, 1, 2 and so on to
    // the others. Returns whether there were any.
    bool MakeSignalNamesUnique();

  private:
    // The steps of Parse behind the id. Each starts at from and sets next to the position behind
    // what it took.
    bool ParseName(std::string_view text, Position from, Position& next);
    bool ParseSize(std::string_view text, Position from, Position& next);
};

using MessageList = std::vector<std::shared_ptr<CANMessage>>;

}  // namespace vexil
