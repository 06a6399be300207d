// The handlers of the statement kinds. Each takes a whole statement from StatementFile and changes
// the database. A statement that cannot be used is dropped; only BO_ and SG_ leave a parse error.
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
// Precondition: the database has a message.
bool HandleSignalStatement(std::string_view text, std::uint32_t line);

// CM_ BO_ id "text";
// CM_ SG_ id name "text";
void HandleComment(std::string_view text);

// SIG_VALTYPE_ id name : number;
void HandleValueType(std::string_view text);

// VAL_ id name number "text" number "text" ... ;
void HandleValueDescriptions(std::string_view text);

}  // namespace vexil
