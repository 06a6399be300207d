// CANSignal: copying to a record, filling from one, and adding value descriptions.
// SPDX-License-Identifier: MIT
#include "frame/can_database.h"
#include "frame/model_text.h"
#include "frame/record_text.h"

namespace vexil {
namespace {

void TakeNumbers(CANSignal& signal, const CanSignalRecord& record) {
    signal.multiplexType = record.multiplexType;
    signal.multiplexValue = record.multiplexValue;
    signal.startBit = record.startBit;
    signal.bitLength = record.bitLength;
    signal.byteOrder = record.byteOrder;
    signal.valueType = record.valueType;
    if ((signal.valueType == ValueFloat32 && signal.bitLength != 32) ||
        (signal.valueType == ValueFloat64 && signal.bitLength != 64)) {
        signal.valueType = ValueSigned;
    }
    signal.factor = record.factor;
    signal.offset = record.offset;
    signal.minimum = record.minimum;
    signal.maximum = record.maximum;
    signal.startValue = record.startValue;
    signal.inactiveValue = record.inactiveValue;
}

}  // namespace

bool CANSignal::CopyToRecord(CanSignalRecord* record) const {
    if (record == nullptr || !CopyTextOut(name, record->name) ||
        !CopyTextOut(longName, record->longName) || !CopyTextOut(unit, record->unit) ||
        !CopyTextOut(unitUtf8, record->unitUtf8) || !CopyTextOut(receivers, record->receiverList) ||
        !CopyCommentOut(notes, record->comment)) {
        return false;
    }
    record->multiplexType = multiplexType;
    record->multiplexValue = multiplexValue;
    record->startBit = startBit;
    record->bitLength = bitLength;
    record->byteOrder = byteOrder;
    record->valueType = valueType;
    record->factor = factor;
    record->offset = offset;
    record->minimum = minimum;
    record->maximum = maximum;
    record->enumCount = static_cast<std::uint32_t>(database.DescriptionsOf(*this).Count());
    record->startValue = startValue;
    record->inactiveValue = inactiveValue;
    return true;
}

bool CANSignal::FillFromRecord(Arena& arena, const CanSignalRecord* record) {
    std::string_view longNameIn;
    std::string_view unitIn;
    std::string_view receiversIn;
    std::string_view commentIn;
    if (record == nullptr || !CopyTextIn(longNameIn, record->longName) ||
        !CopyTextIn(unitIn, record->unit) || !CopyTextIn(receiversIn, record->receiverList) ||
        !CopyTextIn(commentIn, record->comment)) {
        return false;
    }
    MakeNames(arena, arena.Keep(longNameIn), longName, name);
    unitUtf8 = arena.Keep(unitIn);
    unit = AsciiForm(arena, unitUtf8);
    ParseReceivers(arena, receiversIn);
    notes.SetComment(arena, commentIn);
    TakeNumbers(*this, *record);
    rawName = longName;
    return true;
}

bool CANSignal::AddEnum(Arena& arena, const CanEnumRecord* record) {
    std::string_view text;
    if (!CopyTextIn(text, record->text)) {
        return false;
    }
    notes.added = arena.New<AddedDescription>(record->value, arena.Keep(text), notes.added);
    return true;
}

}  // namespace vexil
