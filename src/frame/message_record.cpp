// CANMessage: out to a record and in from one.
// SPDX-License-Identifier: MIT
#include "frame/can_message.h"
#include "frame/model_text.h"
#include "frame/record_text.h"

namespace vexil {
namespace {

bool TakeRecord(CANMessage& message, const CanMessageRecord& record) {
    std::string longName;
    if (!CopyTextIn(longName, record.longName)) {
        return false;
    }
    CleanControlChars(longName);
    message.longName = longName;
    message.UpdateName();
    if (!CopyTextIn(message.transmitter, record.transmitter)) {
        return false;
    }
    message.transmitter = IdentifierForm(message.transmitter);
    std::string comment;
    if (!CopyTextIn(comment, record.comment)) {
        return false;
    }
    message.comment = comment;
    message.id = record.id;
    message.dlc = record.dlc;
    message.isEmpty = false;
    return true;
}

}  // namespace

bool CANMessage::CopyToRecord(CanMessageRecord* record) const {
    if (record == nullptr || !CopyTextOut(name, record->name) ||
        !CopyTextOut(longName, record->longName) ||
        !CopyTextOut(transmitter, record->transmitter) || !CopyTextOut(comment, record->comment)) {
        return false;
    }
    record->id = id;
    record->dlc = dlc;
    record->signalCount = signals.size();
    if (!CopyTextOut(sendType, record->sendType)) {
        return false;
    }
    record->cycleTime = cycleTime;
    return !isEmpty;
}

bool CANMessage::FillFromRecord(const CanMessageRecord* record) {
    Reset();
    if (record == nullptr || !TakeRecord(*this, *record)) {
        Reset();
        return false;
    }
    return true;
}

}  // namespace vexil
