// The calls of a host that fetch records and counts. The comment at each call lists its arguments.
// SPDX-License-Identifier: MIT
#include <iterator>
#include <string>

#include "budget.h"
#include "expect.h"
#include "held_model.h"
#include "host.h"
#include "pattern.h"
#include "property/round_trip_rules.h"
#include "support/record_dump.h"
#include "vexil64.h"

namespace vexil::fuzz {
namespace {

std::string Told(const CanMessageRecord& record) {
    return test::RecordText({{}, {{record, {}}}, {}});
}

std::string Told(const CanSignalRecord& record) {
    return test::RecordText({{}, {{{}, {{record, {}}}}}, {}});
}

}  // namespace

// The index, then "!" for null.
void Host::GetMessage() {
    const std::uint32_t index = input.Word();
    const test::ModelMessage* const message = MessageAt(index);
    if (input.Next('!')) {
        Expect(VexilGetCanMessageData(index, nullptr) == 0, "no message into null");
        return;
    }
    auto record = Patterned<CanMessageRecord>();
    const bool success =
        Within(sizeof record, [&] { return VexilGetCanMessageData(index, &record) == 1; });
    ExpectSame(success, message != nullptr, "whether there is a message");
    if (success) {
        const test::DatabaseRecords expected = test::RecordsOf({{}, {*message}, {}});
        ExpectSame(Told(record), Told(expected.messages[0].record), "a message");
    } else {
        Expect(IsUntouched(record), "a message that is not there");
    }
}

void Host::CountSignals() {
    const std::uint32_t index = input.Word();
    const test::ModelMessage* const message = MessageAt(index);
    std::uint32_t count = 99;
    const bool success =
        Within(0, [&] { return VexilGetNumCanSignalsInCanMessage(index, &count) == 1; });
    ExpectSame(success, message != nullptr, "whether there are signals to count");
    ExpectSame(count, success ? message->signals.size() : 99, "signal count");
}

// Both indexes, then "!" for null.
void Host::GetSignal() {
    const std::uint32_t messageIndex = input.Word();
    const std::uint32_t index = input.Word();
    const test::ModelSignal* const signal = SignalAt(messageIndex, index);
    if (input.Next('!')) {
        Expect(VexilGetCanSignalData(messageIndex, index, nullptr) == 0, "no signal into null");
        return;
    }
    auto record = Patterned<CanSignalRecord>();
    const bool success = Within(sizeof record + HeldBytes(), [&] {
        return VexilGetCanSignalData(messageIndex, index, &record) == 1;
    });
    ExpectSame(success, signal != nullptr, "whether there is a signal");
    if (success) {
        test::ModelMessage owner;
        owner.signals.push_back(*signal);
        const test::DatabaseRecords expected = test::RecordsOf({{}, {owner}, {}});
        ExpectSame(Told(record), Told(expected.messages[0].signals[0].record), "a signal");
    } else {
        Expect(IsUntouched(record), "a signal that is not there");
    }
}

void Host::CountEnums() {
    const std::uint32_t messageIndex = input.Word();
    const std::uint32_t index = input.Word();
    const test::ModelSignal* const signal = SignalAt(messageIndex, index);
    std::uint32_t count = 99;
    const bool success = Within(
        HeldBytes(), [&] { return VexilGetNumEnumsInCanSignal(messageIndex, index, &count) == 1; });
    ExpectSame(success, signal != nullptr, "whether there are value descriptions to count");
    ExpectSame(count, success ? signal->enums.size() : 99, "value description count");
}

// The three indexes.
void Host::GetEnum() {
    const std::uint32_t messageIndex = input.Word();
    const std::uint32_t index = input.Word();
    const std::uint32_t enumIndex = input.Word();
    const test::ModelSignal* const signal = SignalAt(messageIndex, index);
    const bool isThere = signal != nullptr && enumIndex < signal->enums.size();
    auto record = Patterned<CanEnumRecord>();
    const bool success = Within(sizeof record + HeldBytes(), [&] {
        return VexilGetCanSignalEnumData(messageIndex, index, enumIndex, &record) == 1;
    });
    ExpectSame(success, isThere, "whether there is a value description");
    if (success) {
        const auto entry = std::next(signal->enums.begin(), enumIndex);
        ExpectSame(record.value, entry->first, "value of a value description");
        ExpectHeld(model, "value descriptions");
    } else {
        Expect(IsUntouched(record), "a value description that is not there");
    }
}

// The index, then "!" for null.
void Host::GetError() {
    const std::uint32_t index = input.Word();
    if (input.Next('!')) {
        Expect(VexilGetErrorData(index, nullptr) == 0, "no error into null");
        return;
    }
    auto record = Patterned<ParseError>();
    const bool success =
        Within(sizeof record, [&] { return VexilGetErrorData(index, &record) == 1; });
    ExpectSame(success, index < model.errorCodes.size(), "whether there is an error");
    if (success) {
        ExpectSame(record.code, model.errorCodes[index], "code of an error");
    } else {
        Expect(IsUntouched(record), "an error that is not there");
    }
}

}  // namespace vexil::fuzz
