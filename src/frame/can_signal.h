// CANSignal, one signal of a message. Its operations stand with what they serve: records in
// frame/signal_record.cpp, reading in read/signal_statement.cpp, read/signal_steps.cpp and
// read/value_statements.cpp, writing in write/message_section.cpp, write/value_sections.cpp and
// write/unique_names.cpp.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "frame/comment.h"
#include "frame/node_list.h"
#include "frame/value_descriptions.h"
#include "text/constants.h"
#include "text/shared_text.h"
#include "vexil64.h"

namespace vexil {

// Every parse and every fill starts with Reset and ends with it on failure, so a signal is either
// valid or empty. Texts are UTF-8 of any length. Shared between a message and the tables of a read.
class CANSignal {
  public:
    CANSignal() = default;
    CANSignal(const CANSignal&) = delete;
    CANSignal& operator=(const CANSignal&) = delete;
    virtual ~CANSignal() = default;

    // What statements behind the SG_ look at comes first, to be near each other in memory.
    bool isEmpty = true;
    bool hasNameSuffix = false;  // name ends in a number that made it unique
    std::uint32_t bitLength = 0;
    std::uint32_t valueType = ValueUnsigned;
    std::int32_t startValue = 0;     // GenSigStartValue
    std::int32_t inactiveValue = 0;  // GenSigInactiveValue
    SharedText rawName;              // name as it stands in the file
    SharedText longName;             // name for display
    SharedText name;                 // identifier form of longName, at most 32 bytes
    Comment comment;                 // shared by the signals of one id and name
    ValueDescriptions enums;         // likewise
    std::string unit;                // unit in ASCII
    std::string unitUtf8;            // unit as given
    NodeList receivers;              // receiving nodes, identifier form
    std::uint32_t multiplexType = MultiplexNone;
    std::uint32_t multiplexValue = 0;  // value of the selector at which the signal is present
    std::uint32_t startBit = 0;
    std::uint32_t byteOrder = ByteOrderLittleEndian;
    double factor = 0;
    double offset = 0;
    double minimum = 0;
    double maximum = 0;
    std::vector<std::uint32_t> stepErrors;  // Step constants of a failed parse, at most one

    // Gives every member but stepErrors its default, so that the cause of a failure survives.
    void Reset();

    // Sets name to the identifier form of longName.
    void UpdateName();

    // The receivers with commas and no blanks between them; empty when there is none.
    const std::string& ReceiverList() const;

    // -- Records --

    // Copies the signal out. False with the record untouched when it is null, and false when the
    // signal is empty. Texts are cut to their arrays at a character.
    bool CopyToRecord(CanSignalRecord* record) const;

    // Takes the signal from a record. False, with the signal reset, when the record is null or one
    // of its texts is not valid UTF-8.
    bool FillFromRecord(const CanSignalRecord* record);

    // Adds a value description; a value described already keeps both texts. False with nothing
    // changed when the text is not valid UTF-8. REQUIRES: record is not null.
    bool AddEnum(const CanEnumRecord* record);

    // -- Reading --

    // Takes an SG_ statement. False, with the signal reset, when a step fails: stepErrors then
    // holds its code, or nothing when the text does not begin with the keyword.
    bool Parse(std::string_view text);

    // Splits list at its commas into receivers; each piece becomes an identifier, empty ones go.
    void ParseReceivers(std::string_view list);

    // Whether rawName stands at the first character at or behind from that is no white space, with
    // white space behind it. end: the position behind the name; npos after false.
    bool MatchSignalName(std::string_view text, Position from, Position& end) const;

    // -- Writing -- each returns line with a line or a part of one behind it, without a line end;
    // line as it is when there is nothing to write. A line that is passed on keeps its memory.

    std::string FormatSignalLine(std::string line = {}) const;
    std::string FormatSignalHead(std::string line = {}) const;
    std::string FormatBitLayout(std::string line = {}) const;
    std::string FormatScale(std::string line = {}) const;
    std::string FormatRange(std::string line = {}) const;
    std::string FormatValueDescription(std::uint32_t messageId, std::string line = {}) const;
    std::string FormatSignalValueType(std::uint32_t messageId, std::string line = {}) const;

    // The name without its suffix, if it has one; a view into name.
    std::string_view BaseName() const;

    // Ends name in a suffix of index, in place of one that it has. The name stays within 32 bytes
    // when it was. False with nothing changed when index is 10000 or more or the signal is empty.
    bool AddUniqueSuffix(std::uint32_t index);

  private:
    // The steps of Parse. Each starts at from and sets next to the position behind what it took; a
    // step finds its separators by searching onward, wherever they stand.
    bool ParseNameAndMultiplex(std::string_view text, Position from, Position& next);
    void ParseMultiplexIndicator(std::string_view head, Position& nameEnd);
    bool ParseBitLayout(std::string_view text, Position from, Position& next);
    bool ParseScaling(std::string_view text, Position from, Position& next);
    bool ParseRange(std::string_view text, Position from, Position& next);
    void ParseUnit(std::string_view text, Position from, Position& next);
};

}  // namespace vexil
