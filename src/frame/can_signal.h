// CANSignal, one signal of a message. Its operations are implemented with what they serve: records
// in frame/signal_record.cpp, reading in read/signal_statement.cpp and read/signal_steps.cpp,
// writing in write/message_section.cpp, write/comment_section.cpp, write/value_sections.cpp and
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
    // What the statements after the SG_ look at comes first, to be near each other in memory.
    std::string_view rawName;  // name as the file has it
    std::string_view name;     // identifier form of longName, at most 32 bytes
    Notes notes;               // its comment and its value descriptions
    std::uint32_t bitLength = 0;
    std::uint32_t valueType = ValueUnsigned;
    std::int32_t startValue = 0;     // GenSigStartValue
    std::int32_t inactiveValue = 0;  // GenSigInactiveValue
    std::string_view longName;       // name for display
    std::string_view unit;           // unit in ASCII
    std::string_view unitUtf8;       // unit as given
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

    // Copies the signal out. False with the record untouched when it is null. Texts are cut to
    // their arrays at a character.
    bool CopyToRecord(CanSignalRecord* record) const;

    // Takes the signal from a record. False with nothing kept when the record is null or one of its
    // texts is not valid UTF-8. Precondition: the signal is new.
    bool FillFromRecord(Arena& arena, const CanSignalRecord* record);

    // Adds a value description; a value described already keeps both texts. False with nothing
    // changed when the text is not valid UTF-8. Precondition: record is not null.
    bool AddEnum(Arena& arena, const CanEnumRecord* record);

    // -- Reading --

    // Takes a whole SG_ statement. Returns the Step constant of the step that failed, or nothing on
    // success. Precondition: the signal is new.
    std::optional<std::uint32_t> Parse(Arena& arena, std::string_view text);

    // Splits list at its commas into receivers; each piece becomes an identifier, empty ones go.
    void ParseReceivers(Arena& arena, std::string_view list);

    // -- Writing -- each appends a line or a part of one, without a line end.

    void AppendSignalLine(LineBuffer& line, const NumberText& numbers) const;
    void AppendSignalHead(LineBuffer& line) const;
    void AppendBitLayout(LineBuffer& line) const;
    void AppendSignalComment(LineBuffer& line, std::uint32_t messageId) const;
    void AppendValueDescription(LineBuffer& line, std::uint32_t messageId) const;
    void AppendSignalValueType(LineBuffer& line, std::uint32_t messageId) const;

    // The name without its suffix, if it has one; a view into name.
    std::string_view BaseName() const;

    // Ends name in a suffix of index, in place of one that it has. The name stays within 32 bytes
    // when it was. False with nothing changed when index is 10000 or more.
    bool AddUniqueSuffix(Arena& arena, std::uint32_t index);

  private:
    // The steps of Parse. Each starts at from and sets next to the position after what it took; a
    // step finds its separators by searching onward, wherever they are.
    bool ParseNameAndMultiplex(Arena& arena, std::string_view text, Position from, Position& next);
    void ParseMultiplexIndicator(std::string_view head, Position& nameEnd);
    bool ParseBitLayout(std::string_view text, Position from, Position& next);
    bool ParseScaling(std::string_view text, Position from, Position& next);
    bool ParseRange(std::string_view text, Position from, Position& next);
    void ParseUnit(Arena& arena, std::string_view text, Position from, Position& next);
};

}  // namespace vexil
