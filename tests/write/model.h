// The database of a test: emptied before and after each, filled from a file or by a line per
// message and signal, and written section by section or as a whole.
// SPDX-License-Identifier: MIT
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "frame/can_database.h"
#include "support/files.h"
#include "support/read_text.h"
#include "text/statement_file.h"
#include "write/write_driver.h"
#include "write/write_order.h"

namespace vexil::test {

class ModelTest : public DatabaseTest {
  protected:
    // A message whose names agree.
    static CANMessage& AddMessage(std::uint32_t id, std::string_view name,
                                  std::string_view transmitter = {}) {
        CANMessage message;
        message.id = id;
        message.name = message.longName = database.arena.Keep(name);
        message.transmitter = database.arena.Keep(transmitter);
        return database.messages.Add(database.arena, message);
    }

    // A signal whose names agree; added to a full message, too.
    static CANSignal& AddSignal(CANMessage& message, std::string_view name,
                                std::string_view receivers = {}) {
        auto* signal = database.arena.New<CANSignal>();
        signal->name = signal->longName = signal->rawName = database.arena.Keep(name);
        signal->receivers = database.arena.Keep(receivers);
        message.signals.Add(database.arena, signal);
        return *signal;
    }

    static std::vector<std::string> SignalNames(const CANMessage& message) {
        std::vector<std::string> names;
        for (const CANSignal* signal : message.signals) {
            names.emplace_back(signal->name);
        }
        return names;
    }

    // The text that the section writes for the messages in their order.
    std::string Written(void (*section)(StatementFile& file, const MessageList& messages),
                        std::uint32_t order = OrderAsStored) const {
        const std::string path = folder.File("section.dbc");
        StatementFile file;
        file.Open(path.c_str(), static_cast<std::uint32_t>(path.size() + 1), OpenMode::Write);
        section(file, MessagesInOrder(database.messages, order));
        EXPECT_EQ(file.parseState, StateWriting);
        file.Close();
        return ReadTextFile(path);
    }

    struct WriteResult {
        bool succeeded;
        std::uint32_t code;

        friend bool operator==(const WriteResult&, const WriteResult&) = default;
    };

    // Writes the database to path.
    static WriteResult Write(const std::string& path, std::uint32_t order = OrderAsStored) {
        WriteResult result{false, 99};
        result.succeeded = WriteDbcFile(path.c_str(), static_cast<std::uint32_t>(path.size() + 1),
                                        order, result.code);
        return result;
    }

    // The bytes of the file that the database makes.
    std::string WrittenFile(std::uint32_t order = OrderAsStored) const {
        const std::string path = folder.File("whole.dbc");
        EXPECT_EQ(Write(path, order), (WriteResult{true, StateClosed}));
        return ReadTextFile(path);
    }

    TempFolder folder;
};

// The lines joined, each with a line feed at its end.
inline std::string Text(std::initializer_list<std::string_view> lines) {
    std::string text;
    for (const std::string_view line : lines) {
        text.append(line).append("\n");
    }
    return text;
}

}  // namespace vexil::test
