// CANSignal, one signal of a message. Its operations are implemented in several files: records in
// frame/signal_record.cpp, reading in read/signal_statement.cpp and read/signal_steps.cpp, writing
// in write/message_section.cpp, write/comment_section.cpp, write/value_sections.cpp and
// write/unique_names.cpp.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "frame/notes.h"
#include "text/arena.h"
#include "text/constants.h"
#include "text/line_buffer.h"
#include "vexil64.h"

namespace vexil {

class NumberText;  // write/number_text.h

// Texts are UTF-8 of any length, in the arena of the database.
class CANSignal {
  public:
    // Statements after the SG_ statement use these members, so they are adjacent in memory.
    std::string_view rawName;  // name as in the SG_ statement
    std::string_view name;     // identifier form of longName, at most 32 bytes
    Notes notes;               // its comment and its value descriptions
    std::uint32_t bitLength = 0;
    std::uint32_t valueType = ValueUnsigned;
    std::int32_t startValue = 0;     // GenSigStartValue
    std::int32_t inactiveValue = 0;  // GenSigInactiveValue
    std::string_view longName;       // name without the limits of an identifier
    std::string_view unit;           // unit in ASCII
    std::string_view unitUtf8;       // unit in UTF-8
    std::string_view receivers;      // receiving nodes, identifier form, with commas between them
    std::uint32_t multiplexType = MultiplexNone;
    std::uint32_t multiplexValue = 0;  // value of the selector at which the signal is present
    std::uint32_t startBit = 0;
    std::uint32_t byteOrder = ByteOrderLittleEndian;
    double factor = 0;
    double offset = 0;
    double minimum = 0;
    double maximum = 0;
    bool hasNameSuffix = false;  // name ends in a number that made it unique

    // -- Records --

    // Copies the signal into the record. Returns false when record is null. Texts that are too long
    // for their arrays are cut at the end of a character.
    bool CopyToRecord(CanSignalRecord* record) const;

    // Fills the signal from a record. Returns false when record is null or one of its texts is
    // refused. Precondition: the signal is new.
    bool FillFromRecord(Arena& arena, const CanSignalRecord* record);

    // Adds a value description. A value that has one already keeps both texts. Returns false and
    // changes nothing when the text is refused. Precondition: record is not null.
    bool AddEnum(Arena& arena, const CanEnumRecord* record);

    // -- Reading --

    // Parses a whole SG_ statement. Returns the Step constant of the step that failed, or nothing
    // on success. Precondition: the signal is new.
    std::optional<std::uint32_t> Parse(Arena& arena, std::string_view text);

    // Splits list at its commas into receivers. Each becomes an identifier; empty ones are dropped.
    void ParseReceivers(Arena& arena, std::string_view list);

    // -- Writing -- each function appends a line or a part of one, without a line feed.

    void AppendSignalLine(LineBuffer& line, const NumberText& numbers) const;
    void AppendSignalHead(LineBuffer& line) const;
    void AppendBitLayout(LineBuffer& line) const;
    void AppendSignalComment(LineBuffer& line, std::uint32_t messageId) const;
    void AppendValueDescription(LineBuffer& line, std::uint32_t messageId) const;
    void AppendSignalValueType(LineBuffer& line, std::uint32_t messageId) const;

    // The name without its numbered suffix; a view into name.
    std::string_view BaseName() const;

    // Sets the suffix of name to index. A name of at most 32 bytes stays within 32 bytes. Returns
    // false and changes nothing when index is 10000 or more.
    bool AddUniqueSuffix(Arena& arena, std::uint32_t index);

  private:
    // The steps of Parse. Each starts at from and sets next to the position after its part of the
    // statement. A step searches for its separators, wherever they are.
    bool ParseNameAndMultiplex(Arena& arena, std::string_view text, Position from, Position& next);
    void ParseMultiplexIndicator(std::string_view head, Position& nameEnd);
    bool ParseBitLayout(std::string_view text, Position from, Position& next);
    bool ParseScaling(std::string_view text, Position from, Position& next);
    bool ParseRange(std::string_view text, Position from, Position& next);
    void ParseUnit(Arena& arena, std::string_view text, Position from, Position& next);
};

}  // namespace vexil
