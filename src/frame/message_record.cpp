// CANMessage: copying to a record, and filling from one.
// SPDX-License-Identifier: MIT
#include "frame/can_message.h"
#include "frame/model_text.h"
#include "frame/record_text.h"

namespace vexil {

bool CANMessage::CopyToRecord(CanMessageRecord* record) const {
    if (record == nullptr || !CopyTextOut(name, record->name) ||
        !CopyTextOut(longName, record->longName) ||
        !CopyTextOut(transmitter, record->transmitter) || !CopyCommentOut(notes, record->comment)) {
        return false;
    }
    record->id = id;
    record->dlc = dlc;
    record->signalCount = signals.Size();
    if (!CopyTextOut(sendType, record->sendType)) {
        return false;
    }
    record->cycleTime = cycleTime;
    return true;
}

bool CANMessage::FillFromRecord(Arena& arena, const CanMessageRecord* record) {
    std::string_view longNameIn;
    std::string_view transmitterIn;
    std::string_view commentIn;
    if (record == nullptr || !CopyTextIn(longNameIn, record->longName) ||
        !CopyTextIn(transmitterIn, record->transmitter) ||
        !CopyTextIn(commentIn, record->comment)) {
        return false;
    }
    MakeNames(arena, arena.Keep(longNameIn), longName, name);
    transmitter = IdentifierForm(arena, arena.Keep(transmitterIn));
    notes.SetComment(arena, commentIn);
    id = record->id;
    dlc = record->dlc;
    return true;
}

}  // namespace vexil
