// What the tests of the exported functions share: a database that starts empty, since it
// outlives every test, and short forms of the calls.
// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "support/files.h"
#include "support/records.h"
#include "vexil64.h"

inline bool operator==(const DatabaseInfo& left, const DatabaseInfo& right) {
    return left.protocolType == right.protocolType && left.busType == right.busType;
}

inline void PrintTo(const DatabaseInfo& info, std::ostream* out) {
    *out << "{protocolType " << info.protocolType << ", busType " << info.busType << "}";
}

namespace vexil::test {

// The result and code of a read or write.
struct Outcome {
    int result = -1;
    std::uint32_t code = 99;

    bool operator==(const Outcome&) const = default;
};

inline void PrintTo(const Outcome& outcome, std::ostream* out) {
    *out << "result " << outcome.result << " with code " << outcome.code;
}

inline constexpr Outcome Success{1, StateClosed};

using Lines = std::vector<std::string>;

class ApiTest : public testing::Test {
  protected:
    ApiTest() {
        VexilClearData();
        SetInfo({0, 0});
    }

    static Outcome Read(const char* path, std::uint32_t pathBufferSize) {
        Outcome outcome;
        outcome.result = VexilReadDbcFile(path, pathBufferSize, &outcome.code);
        return outcome;
    }

    static Outcome Write(const char* path, std::uint32_t pathBufferSize,
                         std::uint32_t order = OrderAsStored) {
        Outcome outcome;
        outcome.result = VexilWriteDbcFile(path, pathBufferSize, order, &outcome.code);
        return outcome;
    }

    // The size of the buffer includes the NUL.
    static Outcome Read(const std::string& name) { return Read(name.c_str(), SizeOf(name)); }
    static Outcome Write(const std::string& name, std::uint32_t order = OrderAsStored) {
        return Write(name.c_str(), SizeOf(name), order);
    }
    static std::uint32_t SizeOf(const std::string& name) {
        return static_cast<std::uint32_t>(name.size() + 1);
    }

    // Reads a file of these bytes.
    Outcome ReadText(std::string_view bytes) {
        WriteBytes(path, bytes);
        return Read(path);
    }

    static DatabaseInfo Info() {
        DatabaseInfo info{77, 77};
        VexilGetDatabaseInfo(&info, sizeof info);
        return info;
    }

    static void SetInfo(DatabaseInfo info) { VexilSetDatabaseInfo(&info, sizeof info); }

    static void AppendMessage(const MessageFields& fields) {
        const CanMessageRecord record = RecordOf(fields);
        ASSERT_EQ(VexilAppendCanMessage(&record), 1);
    }

    static void AppendSignal(std::uint32_t messageIndex, const SignalFields& fields) {
        const CanSignalRecord record = RecordOf(fields);
        ASSERT_EQ(VexilAppendCanSignalToCanMessage(messageIndex, &record), 1);
    }

    static void AppendEnum(std::uint32_t messageIndex, std::uint32_t signalIndex,
                           const EnumFields& fields) {
        const CanEnumRecord record = RecordOf(fields);
        ASSERT_EQ(VexilAppendEnumToCanSignal(messageIndex, signalIndex, &record), 1);
    }

    // A message with signals of these names.
    static void AppendMessageOf(std::uint32_t id, const std::vector<std::string>& names) {
        const auto index = static_cast<std::uint32_t>(VexilGetNumCanMessages());
        AppendMessage({.id = id, .longName = "M"});
        for (const std::string& name : names) {
            AppendSignal(index, {.longName = name});
        }
    }

    static Lines NamesOf(std::uint32_t messageIndex) {
        Lines names;
        for (std::uint32_t index = 0; index < SignalCount(messageIndex); ++index) {
            auto record = Filled<CanSignalRecord>(Pattern);
            EXPECT_EQ(VexilGetCanSignalData(messageIndex, index, &record), 1);
            names.emplace_back(record.name);
        }
        return names;
    }

    // Expect a record with these fields, its other bytes as they were.

    static void ExpectMessage(std::uint32_t messageIndex, const MessageFields& fields) {
        for (const unsigned char pattern : {Pattern, OtherPattern}) {
            auto record = Filled<CanMessageRecord>(pattern);
            EXPECT_EQ(VexilGetCanMessageData(messageIndex, &record), 1);
            EXPECT_TRUE(SameBytes(record, RecordOf(fields, pattern)));
        }
    }

    static void ExpectSignal(std::uint32_t messageIndex, std::uint32_t signalIndex,
                             const SignalFields& fields) {
        for (const unsigned char pattern : {Pattern, OtherPattern}) {
            auto record = Filled<CanSignalRecord>(pattern);
            EXPECT_EQ(VexilGetCanSignalData(messageIndex, signalIndex, &record), 1);
            EXPECT_TRUE(SameBytes(record, RecordOf(fields, pattern)));
        }
    }

    static void ExpectEnum(std::uint32_t messageIndex, std::uint32_t signalIndex,
                           std::uint32_t enumIndex, const EnumFields& fields) {
        for (const unsigned char pattern : {Pattern, OtherPattern}) {
            auto record = Filled<CanEnumRecord>(pattern);
            EXPECT_EQ(VexilGetCanSignalEnumData(messageIndex, signalIndex, enumIndex, &record), 1);
            EXPECT_TRUE(SameBytes(record, RecordOf(fields, pattern)));
        }
    }

    static void ExpectError(std::uint32_t errorIndex, const ErrorFields& fields) {
        for (const unsigned char pattern : {Pattern, OtherPattern}) {
            auto record = Filled<ParseError>(pattern);
            EXPECT_EQ(VexilGetErrorData(errorIndex, &record), 1);
            EXPECT_TRUE(SameBytes(record, RecordOf(fields, pattern)));
        }
    }

    // The number of signals of a message that is there.
    static std::uint32_t SignalCount(std::uint32_t messageIndex) {
        std::uint32_t count = 99;
        EXPECT_EQ(VexilGetNumCanSignalsInCanMessage(messageIndex, &count), 1);
        return count;
    }

    static std::uint32_t EnumCount(std::uint32_t messageIndex, std::uint32_t signalIndex) {
        std::uint32_t count = 99;
        EXPECT_EQ(VexilGetNumEnumsInCanSignal(messageIndex, signalIndex, &count), 1);
        return count;
    }

    static void ExpectEmptyDatabase() {
        EXPECT_EQ(VexilGetNumCanMessages(), 0U);
        EXPECT_EQ(VexilGetNumCanErrors(), 0U);
        EXPECT_EQ(Info().protocolType, 0U);
    }

    TempFolder folder;
    std::string path = folder.File("net.dbc");
};

}  // namespace vexil::test
