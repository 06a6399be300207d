// The list of statements that a read refused.
// SPDX-License-Identifier: MIT
#include "frame/parse_errors.h"

#include <algorithm>

#include "frame/can_database.h"
#include "text/utf8_text.h"

namespace vexil {

void RecordParseErrors(std::string_view statementText, std::uint32_t line,
                       const std::vector<std::uint32_t>& stepErrors) {
    for (const std::uint32_t code : stepErrors) {
        ParseError record{};
        record.code = code;
        record.line = line;
        const std::size_t limit = std::min<std::size_t>(statementText.size(), LongTextSize - 1);
        std::uint64_t length = 0;
        if (Utf8FitLength(statementText, limit, length)) {
            std::copy_n(statementText.begin(), length, record.text);
        }
        database.parseErrors.push_back(record);
    }
}

}  // namespace vexil
