// The operations that are measured.
// SPDX-License-Identifier: MIT
#include "work.h"

#include <utf8.h>

#include <cstdlib>
#include <fstream>
#include <iostream>

#include "vexil64.h"

namespace vexil::bench {
namespace {

std::uint32_t BufferSize(const std::string& path) {
    return static_cast<std::uint32_t>(path.size() + 1);
}

// Calls visit(messageIndex, record) for each message.
template <typename Visit>
void ForEachMessage(Visit visit) {
    const auto messages = static_cast<std::uint32_t>(VexilGetNumCanMessages());
    for (std::uint32_t index = 0; index < messages; ++index) {
        CanMessageRecord record;
        Check(VexilGetCanMessageData(index, &record) == 1, "a message was not fetched");
        visit(index, record);
    }
}

// Calls visit(signalIndex, record) for each signal of a message.
template <typename Visit>
void ForEachSignal(std::uint32_t messageIndex, const CanMessageRecord& message, Visit visit) {
    const auto signals = static_cast<std::uint32_t>(message.signalCount);
    for (std::uint32_t index = 0; index < signals; ++index) {
        CanSignalRecord record;
        Check(VexilGetCanSignalData(messageIndex, index, &record) == 1, "a signal was not fetched");
        visit(index, record);
    }
}

}  // namespace

void Check(bool ok, std::string_view what) {
    if (!ok) {
        std::cerr << "wrong result: " << what << std::endl;
        std::exit(EXIT_FAILURE);
    }
}

void ReadDatabase(const std::string& path) {
    std::uint32_t code = StateReading;
    const bool done = VexilReadDbcFile(path.c_str(), BufferSize(path), &code) == 1;
    Check(done && code == StateClosed, "a file was not read");
}

void CheckDatabase(const Database& expected) {
    std::uint64_t signals = 0;
    std::uint64_t enums = 0;
    ForEachMessage([&](std::uint32_t messageIndex, const CanMessageRecord& message) {
        signals += message.signalCount;
        ForEachSignal(messageIndex, message, [&](std::uint32_t, const CanSignalRecord& signal) {
            enums += signal.enumCount;
        });
    });
    Check(VexilGetNumCanMessages() == expected.messages, "number of messages");
    Check(VexilGetNumCanErrors() == expected.errors, "number of parse errors");
    Check(signals == expected.signals, "number of signals");
    Check(enums == expected.enums, "number of value descriptions");
}

std::uint64_t FetchRecords() {
    std::uint64_t records = 0;
    ParseError error;
    for (std::uint32_t index = 0; VexilGetErrorData(index, &error) == 1; ++index) {
        ++records;
    }
    ForEachMessage([&](std::uint32_t messageIndex, const CanMessageRecord& message) {
        ++records;
        ForEachSignal(
            messageIndex, message, [&](std::uint32_t signalIndex, const CanSignalRecord& signal) {
                ++records;
                for (std::uint32_t index = 0; index < signal.enumCount; ++index) {
                    CanEnumRecord record;
                    Check(VexilGetCanSignalEnumData(messageIndex, signalIndex, index, &record) == 1,
                          "a value description was not fetched");
                    ++records;
                }
            });
    });
    return records;
}

std::uint64_t FetchFirstDescriptions() {
    std::uint64_t signals = 0;
    ForEachMessage([&](std::uint32_t messageIndex, const CanMessageRecord& message) {
        ForEachSignal(
            messageIndex, message, [&](std::uint32_t signalIndex, const CanSignalRecord&) {
                std::uint32_t count = 0;
                CanEnumRecord record;
                Check(VexilGetNumEnumsInCanSignal(messageIndex, signalIndex, &count) == 1 &&
                          (count == 0 ||
                           VexilGetCanSignalEnumData(messageIndex, signalIndex, 0, &record) == 1),
                      "the first value description was not fetched");
                ++signals;
            });
    });
    return signals;
}

void WriteDatabase(const std::string& path) {
    std::uint32_t code = StateReading;
    const bool done = VexilWriteDbcFile(path.c_str(), BufferSize(path), OrderAsStored, &code) == 1;
    Check(done && code == StateClosed, "a file was not written");
}

std::uint64_t ReadLines(const std::string& path) {
    std::fstream file(path, std::ios_base::in);
    Check(file.is_open(), "a file was not opened");
    std::string line;
    std::uint64_t lines = 0;
    std::uint64_t invalid = 0;
    while (std::getline(file, line)) {
        ++lines;
        invalid += utf8::find_invalid(line.begin(), line.end()) != line.end() ? 1 : 0;
    }
    Check(file.eof() && invalid <= lines, "a file was not read to its end");
    return lines;
}

void WriteLines(const std::string& path, const std::vector<std::string_view>& lines) {
    std::fstream file(path, std::ios_base::out);
    for (const std::string_view line : lines) {
        file << line << std::endl;
    }
    file.close();
    Check(!file.fail(), "lines were not written");
}

std::vector<std::string_view> SplitLines(std::string_view text) {
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        lines.push_back(text.substr(0, end));
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
    return lines;
}

}  // namespace vexil::bench
