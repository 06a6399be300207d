// A copy of the database, made through the public functions in one pass, in compact form.
// SPDX-License-Identifier: MIT
#pragma once

#include <vexil64.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vexil::tool {

// A text of the snapshot.
struct TextRef {
    std::uint32_t begin = 0;
    std::uint32_t size = 0;
};

struct DescriptionFacts {
    std::int32_t value = 0;
    TextRef text;
};

struct SignalFacts {
    TextRef name;
    TextRef longName;
    TextRef unit;
    TextRef unitUtf8;
    TextRef receiverList;
    TextRef comment;
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
    std::uint32_t firstDescription = 0;  // in Snapshot::descriptions
    std::uint32_t descriptionCount = 0;
};

struct MessageFacts {
    std::uint32_t id = 0;
    std::uint32_t dlc = 0;
    TextRef name;
    TextRef longName;
    TextRef transmitter;
    TextRef comment;
    TextRef sendType;
    std::int32_t cycleTime = 0;
    std::uint32_t firstSignal = 0;  // in Snapshot::signals
    std::uint32_t signalCount = 0;
};

// A ParseError.
struct ErrorFacts {
    std::uint32_t code = 0;
    std::uint32_t line = 0;
    TextRef text;
};

struct Snapshot {
    DatabaseInfo info{};
    std::vector<MessageFacts> messages;
    std::vector<SignalFacts> signals;  // of all messages, one after the other
    std::vector<DescriptionFacts> descriptions;
    std::vector<ErrorFacts> errors;
    std::string texts;

    std::string_view Text(TextRef text) const {
        return std::string_view(texts).substr(text.begin, text.size);
    }
};

// Takes a snapshot of the current database.
Snapshot TakeSnapshot();

}  // namespace vexil::tool
