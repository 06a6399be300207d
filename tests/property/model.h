// The expected content of the library: texts of any length, where a record has only what
// fits.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "support/record_dump.h"
#include "vexil64.h"

namespace vexil::test {

struct ModelSignal {
    std::string name;
    bool hasNameSuffix = false;
    std::string longName;
    std::string unit;
    std::string unitUtf8;
    std::vector<std::string> receivers;
    std::string comment;
    std::uint32_t multiplexType = MultiplexNone;
    std::uint32_t multiplexValue = 0;
    std::uint32_t startBit = 0;
    std::uint32_t bitLength = 0;
    std::uint32_t byteOrder = ByteOrderLittleEndian;
    std::uint32_t valueType = ValueUnsigned;
    double factor = 0;
    double offset = 0;
    double minimum = 0;
    double maximum = 0;
    std::int32_t startValue = 0;
    std::int32_t inactiveValue = 0;
    std::map<std::int32_t, std::string> enums;

    bool operator==(const ModelSignal&) const = default;
};

struct ModelMessage {
    std::uint32_t id = 0;
    std::uint32_t dlc = 0;
    std::string name;
    std::string longName;
    std::string transmitter;
    std::string comment;
    std::string sendType;
    std::int32_t cycleTime = 0;
    std::vector<ModelSignal> signals;

    bool operator==(const ModelMessage&) const = default;
};

struct Model {
    DatabaseInfo info{};
    std::vector<ModelMessage> messages;
    std::vector<std::uint32_t> errorCodes;
};

// The records that show the model, without its errors.
DatabaseRecords RecordsOf(const Model& model);

}  // namespace vexil::test
