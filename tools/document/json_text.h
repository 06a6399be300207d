// Formats texts and numbers for JSON.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "database/record_fields.h"

namespace vexil::tool {

// Appends a text in quotes. Control characters are escaped, those of Unicode above U+007E included,
// since a terminal may obey them. A byte that is not UTF-8 becomes U+FFFD.
void AppendJsonText(std::string& out, std::string_view text);

// Appends the shortest number that is read back equal. Numbers that JSON does not have become
// the texts "NaN", "-NaN", "Infinity" and "-Infinity".
void AppendJsonNumber(std::string& out, double number);

void AppendJsonWhole(std::string& out, std::int64_t number);

// Appends the value of a field.
void AppendJsonValue(std::string& out, const RecordField& field, const void* record);

// Returns a text in quotes for a line of a report: at most so many of its bytes, cut at a
// character.
std::string JsonExcerpt(std::string_view text, std::size_t most = 60);

}  // namespace vexil::tool
