// The seventeen exported functions, in the order of the public header: each checks its indexes and
// calls the operation that does the work.
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cstring>

#include "frame/can_database.h"
#include "frame/record_text.h"
#include "read/read_driver.h"
#include "vexil64.h"
#include "write/write_driver.h"

using vexil::CANMessage;
using vexil::CANSignal;
using vexil::database;

namespace {

// The message at an index, or null when the index is out of range.
CANMessage* MessageAt(std::uint32_t index) {
    return index < database.messages.Size() ? &database.messages[index] : nullptr;
}

// The signal at a pair of indexes, or null when one of them is out of range.
CANSignal* SignalAt(std::uint32_t messageIndex, std::uint32_t signalIndex) {
    const CANMessage* message = MessageAt(messageIndex);
    return message != nullptr && signalIndex < message->signals.Size()
               ? message->signals[signalIndex]
               : nullptr;
}

// Copies at most the size of a DatabaseInfo; copies nothing if a pointer is null.
void CopyBytes(void* destination, const void* source, std::uint64_t size) {
    if (destination != nullptr && source != nullptr) {
        std::memcpy(destination, source, std::min<std::uint64_t>(size, sizeof(DatabaseInfo)));
    }
}

}  // namespace

float VexilGetLibraryVersion(void) {
    return VEXIL64_LIBRARY_VERSION;
}

uint8_t VexilReadDbcFile(const char* path, uint32_t pathBufferSize, uint32_t* resultCode) {
    return vexil::ReadDbcFile(path, pathBufferSize, *resultCode);
}

void VexilClearData(void) {
    database.Reset();
}

void VexilGetDatabaseInfo(void* destination, uint64_t size) {
    CopyBytes(destination, &database.info, size);
}

void VexilSetDatabaseInfo(const void* source, uint64_t size) {
    CopyBytes(&database.info, source, size);
}

uint64_t VexilGetNumCanMessages(void) {
    return database.messages.Size();
}

uint8_t VexilGetCanMessageData(uint32_t messageIndex, CanMessageRecord* record) {
    const CANMessage* message = MessageAt(messageIndex);
    return message != nullptr && message->CopyToRecord(record);
}

uint8_t VexilGetNumCanSignalsInCanMessage(uint32_t messageIndex, uint32_t* count) {
    const CANMessage* message = MessageAt(messageIndex);
    if (message == nullptr) {
        return 0;
    }
    *count = static_cast<uint32_t>(message->signals.Size());
    return 1;
}

uint8_t VexilGetCanSignalData(uint32_t messageIndex, uint32_t signalIndex,
                              CanSignalRecord* record) {
    const CANSignal* signal = SignalAt(messageIndex, signalIndex);
    return signal != nullptr && signal->CopyToRecord(record);
}

uint8_t VexilGetNumEnumsInCanSignal(uint32_t messageIndex, uint32_t signalIndex, uint32_t* count) {
    const CANSignal* signal = SignalAt(messageIndex, signalIndex);
    if (signal == nullptr) {
        return 0;
    }
    *count = static_cast<uint32_t>(database.DescriptionsOf(*signal).Count());
    return 1;
}

uint8_t VexilGetCanSignalEnumData(uint32_t messageIndex, uint32_t signalIndex, uint32_t enumIndex,
                                  CanEnumRecord* record) {
    const CANSignal* signal = SignalAt(messageIndex, signalIndex);
    if (signal == nullptr) {
        return 0;
    }
    const vexil::Descriptions& descriptions = database.DescriptionsOf(*signal);
    if (enumIndex >= descriptions.Count()) {
        return 0;
    }
    vexil::LineBuffer scratch;
    if (!vexil::CopyTextOut(descriptions.Text(enumIndex, scratch, LongTextSize), record->text)) {
        return 0;
    }
    record->value = descriptions.ValueAt(enumIndex);
    return 1;
}

uint8_t VexilAppendCanMessage(const CanMessageRecord* record) {
    CANMessage message;
    if (!message.FillFromRecord(database.arena, record)) {
        return 0;
    }
    database.messages.Add(database.arena, message);
    return 1;
}

uint8_t VexilAppendCanSignalToCanMessage(uint32_t messageIndex, const CanSignalRecord* record) {
    CANMessage* message = MessageAt(messageIndex);
    if (message == nullptr) {
        return 0;
    }
    // A full message drops the signal, so its texts must not stay in the database.
    vexil::Arena scratch;
    CANSignal signal;
    if (!signal.FillFromRecord(message->IsFull() ? scratch : database.arena, record)) {
        return 0;
    }
    message->AddSignal(database.arena, signal);
    return 1;
}

uint8_t VexilAppendEnumToCanSignal(uint32_t messageIndex, uint32_t signalIndex,
                                   const CanEnumRecord* record) {
    CANSignal* signal = SignalAt(messageIndex, signalIndex);
    return signal != nullptr && signal->AddEnum(database.arena, record);
}

uint64_t VexilGetNumCanErrors(void) {
    return database.parseErrors.Size();
}

uint8_t VexilGetErrorData(uint32_t errorIndex, ParseError* record) {
    if (record == nullptr || errorIndex >= database.parseErrors.Size()) {
        return 0;
    }
    const vexil::RefusedStatement& error = database.parseErrors[errorIndex];
    if (!vexil::CopyTextOut(error.text, record->text)) {
        return 0;
    }
    record->code = error.code;
    record->line = error.line;
    return 1;
}

uint8_t VexilWriteDbcFile(const char* path, uint32_t pathBufferSize, uint32_t order,
                          uint32_t* resultCode) {
    return vexil::WriteDbcFile(path, pathBufferSize, order, *resultCode);
}
