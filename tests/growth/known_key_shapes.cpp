// Names and ids that collide under the library's own hash: under the key of this process, which
// takes time that grows with the square of the input, and under another key, which must not.
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <utility>

#include "keyed_names.h"
#include "shape_text.h"
#include "shapes.h"
#include "vexil64.h"

namespace vexil::growth {
namespace {

constexpr std::uint32_t MessageId = 1;
constexpr std::size_t NodeCount = 10000;
constexpr std::size_t IdCount = 6000;
constexpr unsigned IdBits = 13;  // a table of so many ids has so many bits

HashKey AnotherKey() {
    HashKey key = KnownHashKey();
    key.start ^= 1;
    return key;
}

// A message with signals of the names, and comments for one after the other.
Input SignalsAndComments(const std::vector<std::string>& names, std::size_t size) {
    Input input{MessageLine(MessageId), 1};
    while (input.text.size() < size / 2 && input.signals < names.size()) {
        input.text += SignalLine(names[input.signals++]);
    }
    FillUpTo(input.text, size, [&](std::size_t index) {
        return Numbered("CM_ SG_ ", MessageId) + " " + names[index % input.signals] + " \"t\";\n";
    });
    return input;
}

Input Transmitters(const std::vector<std::string>& names, std::size_t size) {
    Input input;
    input.messages = FillUpTo(input.text, size, [&](std::size_t index) {
        return MessageLine(index, "M", names[index % names.size()]);
    });
    return input;
}

Input Messages(const std::vector<std::uint32_t>& ids, std::size_t size) {
    Input input;
    input.messages = FillUpTo(
        input.text, size, [&](std::size_t index) { return MessageLine(ids[index % ids.size()]); });
    return input;
}

Input CollidingSignals(std::size_t size) {
    static const std::vector<std::string> names =
        NamesOfOneKeyedHash(MaxSignalsPerMessage, MessageId, KnownHashKey());
    return SignalsAndComments(names, size);
}

Input SignalsOfAnotherKey(std::size_t size) {
    static const std::vector<std::string> names =
        NamesOfOneKeyedHash(MaxSignalsPerMessage, MessageId, AnotherKey());
    return SignalsAndComments(names, size);
}

Input CollidingTransmitters(std::size_t size) {
    static const std::vector<std::string> names = NamesOfOneKeyedHash(NodeCount, 0, KnownHashKey());
    return Transmitters(names, size);
}

Input TransmittersOfAnotherKey(std::size_t size) {
    static const std::vector<std::string> names = NamesOfOneKeyedHash(NodeCount, 0, AnotherKey());
    return Transmitters(names, size);
}

Input CollidingMessages(std::size_t size) {
    static const std::vector<std::uint32_t> ids = IdsOfOneSlot(IdCount, IdBits, KnownHashKey());
    return Messages(ids, size);
}

Input MessagesOfAnotherKey(std::size_t size) {
    static const std::vector<std::uint32_t> ids = IdsOfOneSlot(IdCount, IdBits, AnotherKey());
    return Messages(ids, size);
}

}  // namespace

std::vector<Shape> KnownKeyShapes() {
    return {
        {"SignalsThatCollideUnderAKnownKey",
         CollidingSignals,
         {{Phase::Read, Unit::InputByteSquared, 0.002, 0, 256 * KiB}}},
        {"MessagesThatCollideUnderAKnownKey",
         CollidingMessages,
         {{Phase::Read, Unit::InputByteSquared, 0.008, 0, 128 * KiB}}},
        {"TransmittersThatCollideUnderAKnownKey",
         CollidingTransmitters,
         {{Phase::Write, Unit::InputByteSquared, 0.004, 0, 256 * KiB}}},
        {"SignalsThatCollideUnderAnotherKey", SignalsOfAnotherKey},
        {"MessagesThatCollideUnderAnotherKey", MessagesOfAnotherKey},
        {"TransmittersThatCollideUnderAnotherKey", TransmittersOfAnotherKey},
    };
}

}  // namespace vexil::growth
