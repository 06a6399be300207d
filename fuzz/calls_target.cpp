// The seventeen functions in any sequence, with any records and indexes, beside a plain model of
// what they should do.
//
// Each call of an input begins with the letter of its function, see Call; white space between calls
// counts for nothing. byte_source.h tells how the arguments stand behind it.
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cstring>
#include <filesystem>
#include <string>
#include <string_view>

#include "any_path.h"
#include "byte_source.h"
#include "expect.h"
#include "held_model.h"
#include "property/append_rules.h"
#include "property/record_checks.h"
#include "property/round_trip_rules.h"
#include "scratch_file.h"
#include "support/files.h"
#include "support/record_dump.h"
#include "target.h"
#include "vexil64.h"
#include "written_form.h"

namespace vexil::fuzz {
namespace {

constexpr unsigned char Pattern = 0x5A;

template <typename Record>
Record Patterned() {
    Record record;
    std::memset(&record, Pattern, sizeof record);
    return record;
}

// Whether every byte is still as Patterned has left it.
template <typename Record>
bool IsUntouched(const Record& record) {
    const auto* const bytes = reinterpret_cast<const unsigned char*>(&record);
    return std::all_of(bytes, bytes + sizeof record, [](auto byte) { return byte == Pattern; });
}

std::string Told(const CanMessageRecord& record) {
    return test::RecordText({{}, {{record, {}}}, {}});
}

std::string Told(const CanSignalRecord& record) {
    return test::RecordText({{}, {{{}, {{record, {}}}}}, {}});
}

class Host {
  public:
    explicit Host(ByteSource& byteSource) : input(byteSource) {
        VexilClearData();
        VexilSetDatabaseInfo(&model.info, sizeof model.info);
        std::filesystem::remove(ScratchFile("again.dbc"));
    }

    void Call(char function);

  private:
    test::ModelMessage* MessageAt(std::uint32_t index) {
        return index < model.messages.size() ? &model.messages[index] : nullptr;
    }

    test::ModelSignal* SignalAt(std::uint32_t messageIndex, std::uint32_t index) {
        test::ModelMessage* const message = MessageAt(messageIndex);
        return message != nullptr && index < message->signals.size() ? &message->signals[index]
                                                                     : nullptr;
    }

    void Clear();
    void GetInfo();
    void SetInfo();
    void GetMessage();
    void CountSignals();
    void GetSignal();
    void CountEnums();
    void GetEnum();
    void GetError();
    void AppendMessage();
    void AppendSignal();
    void AppendEnum();
    void Read();
    void ReadWritten();
    void Write();

    ByteSource& input;
    test::Model model;

    // Of the last file that was written.
    test::Model writtenModel;
    std::uint32_t writtenOrder = 0;
};

void Host::Call(char function) {
    switch (function) {
        case 'v':
            return ExpectSame(VexilGetLibraryVersion(), 1.33F, "the version");
        case 'n':
            return ExpectSame(VexilGetNumCanMessages(), model.messages.size(), "message count");
        case 'x':
            return ExpectSame(VexilGetNumCanErrors(), model.errorCodes.size(), "error count");
        case 'c':
            return Clear();
        case 'i':
            return GetInfo();
        case 'I':
            return SetInfo();
        case 'm':
            return GetMessage();
        case 's':
            return CountSignals();
        case 'g':
            return GetSignal();
        case 'e':
            return CountEnums();
        case 'd':
            return GetEnum();
        case 'X':
            return GetError();
        case 'M':
            return AppendMessage();
        case 'S':
            return AppendSignal();
        case 'E':
            return AppendEnum();
        case 'r':
            return Read();
        case 'R':
            return ReadWritten();
        case 'w':
            return Write();
        default:
            return;
    }
}

// -- The frame ----------------------------------------------------------------------------------

void Host::Clear() {
    VexilClearData();
    model = {{ProtocolPlainCan, model.info.busType}, {}, {}};
    ExpectHeld(model, "a clear");
}

// The size, then "!" for null.
void Host::GetInfo() {
    const std::uint64_t size = input.Word();
    const bool isNull = input.Next('!');
    unsigned char bytes[16];
    std::memset(bytes, Pattern, sizeof bytes);
    VexilGetDatabaseInfo(isNull ? nullptr : bytes, size);
    unsigned char expected[16];
    std::memset(expected, Pattern, sizeof expected);
    std::memcpy(expected, &model.info,
                isNull ? 0 : std::min<std::uint64_t>(size, sizeof model.info));
    Expect(std::memcmp(bytes, expected, sizeof bytes) == 0, "the info that is fetched");
}

// The size, both members, then "!" for null.
void Host::SetInfo() {
    const std::uint64_t size = input.Word();
    const DatabaseInfo info = {input.Word(), input.Word()};
    const bool isNull = input.Next('!');
    VexilSetDatabaseInfo(isNull ? nullptr : &info, size);
    std::memcpy(&model.info, &info, isNull ? 0 : std::min<std::uint64_t>(size, sizeof info));
    ExpectHeld(model, "an info that is set");
}

// -- Records out --------------------------------------------------------------------------------

// The index, then "!" for null.
void Host::GetMessage() {
    const std::uint32_t index = input.Word();
    const test::ModelMessage* const message = MessageAt(index);
    if (input.Next('!')) {
        Expect(VexilGetCanMessageData(index, nullptr) == 0, "no message into null");
        return;
    }
    auto record = Patterned<CanMessageRecord>();
    const bool success = VexilGetCanMessageData(index, &record) == 1;
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
    const bool success = VexilGetNumCanSignalsInCanMessage(index, &count) == 1;
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
    const bool success = VexilGetCanSignalData(messageIndex, index, &record) == 1;
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
    const bool success = VexilGetNumEnumsInCanSignal(messageIndex, index, &count) == 1;
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
    const bool success = VexilGetCanSignalEnumData(messageIndex, index, enumIndex, &record) == 1;
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
    const bool success = VexilGetErrorData(index, &record) == 1;
    ExpectSame(success, index < model.errorCodes.size(), "whether there is an error");
    if (success) {
        ExpectSame(record.code, model.errorCodes[index], "code of an error");
    } else {
        Expect(IsUntouched(record), "an error that is not there");
    }
}

// -- Records in ---------------------------------------------------------------------------------

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
    ExpectSame(VexilAppendCanMessage(&record) == 1, isValid, "whether a message is taken");
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
    ExpectSame(VexilAppendCanSignalToCanMessage(messageIndex, &record) == 1, isValid,
               "whether a signal is taken");
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
    ExpectSame(VexilAppendEnumToCanSignal(messageIndex, index, &record) == 1, isValid,
               "whether a value description is taken");
    ExpectHeld(model, "a value description that is appended");
}

// -- Files --------------------------------------------------------------------------------------

// The choice of the path, then the file up to "~".
void Host::Read() {
    const AnyPath path = PathOf(input.Byte());
    const std::string_view bytes = input.TextUpTo('~');
    if (!path.file.empty()) {
        test::WriteBytes(path.file, bytes);
    }
    CallResult result;
    result.success = VexilReadDbcFile(path.Pointer(), path.size, &result.code) == 1;
    if (path.failure != 0) {
        Expect(!result.success, "a bad path cannot be read");
        if (!path.isFolder || result.code != StateStreamError) {
            ExpectSame(result.code, path.failure, "code of a bad path");
        }
        model = {{ProtocolPlainCan, model.info.busType}, {}, {}};
        ExpectHeld(model, "a read that failed");
        return;
    }
    Expect(result.success && result.code == StateClosed, "any file can be read");
    const std::uint32_t formerBus = model.info.busType;
    model = HeldModel();
    Expect(model.info.busType <= BusCanFd || model.info.busType == formerBus, "the bus type");
    ExpectHeld(model, "a read");
    test::DatabaseRecords records = test::FetchDatabase();
    records.info.busType = 0;
    ExpectSame(test::BrokenRule(records), "", "rules of all that was read");
    // Nothing of what was there before may count.
    Expect(ReadDbc(path.file).success, "a file can be read twice");
    ExpectHeld(model, "a second read");
}

void Host::ReadWritten() {
    const std::string file = ScratchFile("again.dbc");
    if (!std::filesystem::exists(file)) {
        return;
    }
    const DatabaseInfo before = model.info;
    const CallResult result = ReadDbc(file);
    Expect(result.success && result.code == StateClosed, "a written file can be read");
    model = HeldModel();
    if (!test::HoldsStrayKeyword(writtenModel) && !HoldsLongStatement(writtenModel)) {
        ExpectSame(ModelText(model), ModelText(test::ReadBack(writtenModel, writtenOrder, before)),
                   "a written file gives what the rules of a trip say");
    }
    ExpectHeld(model, "a read of a written file");
}

// The choice of the path and the order.
void Host::Write() {
    const AnyPath path = PathOf(input.Byte());
    const std::uint32_t order = input.Word();
    CallResult result;
    result.success = VexilWriteDbcFile(path.Pointer(), path.size, order, &result.code) == 1;
    if (model.messages.empty()) {
        ExpectSame(result.code, StateClosed, "code of a write of nothing");
        Expect(!result.success, "a write of nothing");
    } else if (path.failure != 0) {
        ExpectSame(result.code, path.failure, "code of a write that cannot be");
        Expect(!result.success, "a write that cannot be");
    } else {
        Expect(result.success && result.code == StateClosed, "a write");
        test::SuffixedNames(model);
        writtenModel = model;
        writtenOrder = order;
        std::filesystem::rename(path.file, ScratchFile("again.dbc"));
    }
    ExpectHeld(model, "a write");
}

}  // namespace
}  // namespace vexil::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    vexil::fuzz::ByteSource input({reinterpret_cast<const char*>(data), size});
    vexil::fuzz::Host host(input);
    while (!input.IsAtEnd()) {
        host.Call(input.Byte());
    }
    return 0;
}
