// The handlers of the statement kinds. Each takes the text of a whole statement, as StatementFile
// assembled it, matches the keywords itself and works on the database.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

namespace vexil {

// BO_ id name: size transmitter
// Adds a message and returns true, or records why the statement was refused and returns false.
//   line  number of the statement's line, for the record.
bool HandleMessageStatement(std::string_view text, std::uint32_t line);

// SG_ name [M|m number] : start|length@order sign (factor,offset) [min|max] "unit" receivers
// Adds a signal to the last message and returns true, or records why the statement was refused and
// returns false. True also when a full message dropped the signal.
//   line  number of the statement's line, for the record.
// REQUIRES: the database has a message.
bool HandleSignalStatement(std::string_view text, std::uint32_t line);

// CM_ BO_ id "text";
// Returns true when the statement is a comment of a known message id, whether or not it was used.
bool HandleMessageComment(std::string_view text);

// CM_ SG_ id name "text";
// Returns true when the statement is a signal comment of a known message id, whether or not a
// signal of that name exists.
bool HandleSignalComment(std::string_view text);

// SIG_VALTYPE_ id name : number;
// Returns true when the message id is known, whether or not a signal took the statement.
bool HandleValueType(std::string_view text);

// VAL_ id name number "text" number "text" ... ;
// Returns true when the message id is known, whether or not a signal took the statement.
bool HandleValueDescriptions(std::string_view text);

}  // namespace vexil
