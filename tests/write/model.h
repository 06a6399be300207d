// The database of a test: emptied before and after each, filled by a line per message and signal,
// and written section by section or as a whole.
// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "frame/can_database.h"
#include "support/files.h"
#include "text/statement_file.h"
#include "write/write_driver.h"

namespace vexil::test {

// A valid message whose names all agree.
inline std::shared_ptr<CANMessage> NewMessage(std::uint32_t id, std::string_view name,
                                              std::string_view transmitter = {}) {
    auto message = std::make_shared<CANMessage>();
    message->isEmpty = false;
    message->id = id;
    message->name = message->longName = message->rawName = name;
    message->transmitter = transmitter;
    return message;
}

// A valid signal whose names all agree.
inline std::shared_ptr<CANSignal> NewSignal(std::string_view name) {
    auto signal = std::make_shared<CANSignal>();
    signal->isEmpty = false;
    signal->name = signal->longName = signal->rawName = name;
    return signal;
}

using Descriptions = std::vector<std::pair<std::int32_t, std::string>>;

inline void Describe(CANSignal& signal, const Descriptions& descriptions) {
    for (const auto& [value, text] : descriptions) {
        signal.enums.Add(value, text);
    }
}

class ModelTest : public testing::Test {
  protected:
    ModelTest() { Empty(); }
    ~ModelTest() override { Empty(); }

    static void Empty() {
        database.Reset();
        database.messagesById.Clear();
        database.info = {};
    }

    static CANMessage& AddMessage(std::uint32_t id, std::string_view name,
                                  std::string_view transmitter = {}) {
        database.messages.push_back(NewMessage(id, name, transmitter));
        return *database.messages.back();
    }

    // Appends the signal also to a message that is full.
    static CANSignal& AddSignal(CANMessage& message, std::string_view name,
                                NodeList receivers = {}) {
        message.signals.push_back(NewSignal(name));
        message.signals.back()->receivers = std::move(receivers);
        return *message.signals.back();
    }

    static std::vector<std::string> SignalNames(const CANMessage& message) {
        std::vector<std::string> names;
        for (const auto& signal : message.signals) {
            names.emplace_back(signal->name);
        }
        return names;
    }

    // What section writes, as the bytes of a file.
    std::string Written(const std::function<void(StatementFile&)>& section) const {
        const std::string path = folder.File("section.dbc");
        StatementFile file;
        file.Open(path.c_str(), static_cast<std::uint32_t>(path.size() + 1), OpenMode::Write);
        EXPECT_EQ(file.parseState, 1U);
        section(file);
        EXPECT_EQ(file.parseState, 1U);
        file.Close();
        EXPECT_EQ(file.parseState, 2U);
        return ReadTextFile(path);
    }

    // Writes the database to path.
    struct WriteResult {
        bool succeeded;
        std::uint32_t code;

        friend bool operator==(const WriteResult&, const WriteResult&) = default;
    };

    static WriteResult Write(const std::string& path, std::uint32_t order = OrderAsStored) {
        WriteResult result{false, 99};
        result.succeeded = WriteDbcFile(path.c_str(), static_cast<std::uint32_t>(path.size() + 1),
                                        order, result.code);
        return result;
    }

    // The bytes of the file that the database makes.
    std::string WrittenFile(std::uint32_t order = OrderAsStored) const {
        const std::string path = folder.File("whole.dbc");
        EXPECT_EQ(Write(path, order), (WriteResult{true, 2}));
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
