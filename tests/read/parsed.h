// The result of a BO_ or SG_ statement on one line.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "frame/can_database.h"
#include "support/dump.h"
#include "support/read_text.h"

namespace vexil::test {

class ParseTest : public DatabaseTest {
  protected:
    struct Row {
        std::string_view part;
        std::string_view outcome;
    };

    // Reads the statement as a file, an SG_ statement after a message. Returns the dump of what it
    // made, or "error" and the code with which it was refused.
    static std::string Parsed(std::string_view statement) {
        EXPECT_EQ(ReadText(Concat("BO_ 1 M: 8 N\n", statement, "\n")), GoodRead);
        if (database.parseErrors.Size() == 1) {
            return Concat("error ", std::to_string(database.parseErrors[0].code));
        }
        const CANMessage& message = database.messages[database.messages.Size() - 1];
        return message.signals.Size() == 0 ? Dump(message) : Dump(*message.signals[0]);
    }

    // Checks the statement that front, the part of a row and back make. The file puts a line
    // feed after it.
    static void CheckRows(std::string_view front, std::string_view back,
                          const std::vector<Row>& rows) {
        for (const Row& row : rows) {
            const std::string statement = Concat(front, row.part, back);
            EXPECT_EQ(Parsed(statement), row.outcome) << statement;
        }
    }

    // Checks what whole statements make.
    static void CheckRows(const std::vector<Row>& rows) { CheckRows("", "", rows); }

    // Checks each beginning of the whole statement, which is the part of the last row: a row has
    // the outcome of each beginning that is longer than the part of the row before it.
    //   length  of the first beginning.
    static void CheckBeginnings(std::size_t length, const std::vector<Row>& rows) {
        const std::string_view whole = rows.back().part;
        for (const Row& row : rows) {
            ASSERT_EQ(row.part, whole.substr(0, row.part.size()));
            for (; length <= row.part.size(); ++length) {
                EXPECT_EQ(Parsed(whole.substr(0, length)), row.outcome) << whole.substr(0, length);
            }
        }
    }
};

}  // namespace vexil::test
