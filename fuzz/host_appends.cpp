// The calls of a host that append records. The comment at each call lists its arguments.
// SPDX-License-Identifier: MIT
#include "budget.h"
#include "expect.h"
#include "held_model.h"
#include "host.h"
#include "pattern.h"
#include "property/append_rules.h"
#include "vexil64.h"

namespace vexil::fuzz {

// "!" for null; or id, size, long name, transmitter and comment.
void Host::AppendMessage() {
    if (input.Next('!')) {
        Expect(VexilAppendCanMessage(nullptr) == 0, "no message from null");
        return;
    }
    auto record = Patterned<CanMessageRecord>();
    record.id = input.Word();
    record.dlc = input.Word();
    input.TextInto(record.longName);
    input.TextInto(record.transmitter);
    input.TextInto(record.comment);
    test::ModelMessage message;
    const bool isValid = test::AppendedMessage(record, message);
    const bool isTaken = Within(sizeof record, [&] { return VexilAppendCanMessage(&record) == 1; });
    ExpectSame(isTaken, isValid, "whether a message is taken");
    if (isValid) {
        model.messages.push_back(message);
    }
    ExpectHeld(model, "a message that is appended");
}

// The index, then "!" for null; or long name, unit, receivers, comment, the multiplexing, start
// bit, length, byte order, value type, the four numbers, start and inactive value.
void Host::AppendSignal() {
    const std::uint32_t messageIndex = input.Word();
    if (input.Next('!')) {
        Expect(VexilAppendCanSignalToCanMessage(messageIndex, nullptr) == 0, "no signal from null");
        return;
    }
    auto record = Patterned<CanSignalRecord>();
    input.TextInto(record.longName);
    input.TextInto(record.unit);
    input.TextInto(record.receiverList);
    input.TextInto(record.comment);
    for (std::uint32_t* word : {&record.multiplexType, &record.multiplexValue, &record.startBit,
                                &record.bitLength, &record.byteOrder, &record.valueType}) {
        *word = input.Word();
    }
    for (double* number : {&record.factor, &record.offset, &record.minimum, &record.maximum}) {
        *number = input.Number();
    }
    record.startValue = static_cast<std::int32_t>(input.Word());
    record.inactiveValue = static_cast<std::int32_t>(input.Word());
    test::ModelMessage* const message = MessageAt(messageIndex);
    test::ModelSignal signal;
    const bool isValid = message != nullptr && test::AppendedSignal(record, signal);
    const bool isTaken = Within(sizeof record, [&] {
        return VexilAppendCanSignalToCanMessage(messageIndex, &record) == 1;
    });
    ExpectSame(isTaken, isValid, "whether a signal is taken");
    if (isValid) {
        message->signals.push_back(signal);
    }
    ExpectHeld(model, "a signal that is appended");
}

// Both indexes, value and text.
void Host::AppendEnum() {
    const std::uint32_t messageIndex = input.Word();
    const std::uint32_t index = input.Word();
    auto record = Patterned<CanEnumRecord>();
    record.value = static_cast<std::int32_t>(input.Word());
    input.TextInto(record.text);
    test::ModelSignal* const signal = SignalAt(messageIndex, index);
    const bool isValid = signal != nullptr && test::AppendedDescription(record, signal->enums);
    const bool isTaken = Within(sizeof record, [&] {
        return VexilAppendEnumToCanSignal(messageIndex, index, &record) == 1;
    });
    ExpectSame(isTaken, isValid, "whether a value description is taken");
    ExpectHeld(model, "a value description that is appended");
}

}  // namespace vexil::fuzz
