// CANSignal: out to a record and in from one, and value descriptions in from theirs.
// SPDX-License-Identifier: MIT
#include "frame/can_signal.h"
#include "frame/model_text.h"
#include "frame/record_text.h"
#include "text/utf8_text.h"

namespace vexil {
namespace {

bool TakeTexts(CANSignal& signal, const CanSignalRecord& record) {
    std::string longName;
    if (!CopyTextIn(longName, record.longName)) {
        return false;
    }
    CleanControlChars(longName);
    signal.longName = longName;
    signal.UpdateName();
    if (!CopyTextIn(signal.unitUtf8, record.unit)) {
        return false;
    }
    signal.unit = FoldToAscii(signal.unitUtf8);
    std::string receiverList;
    if (!CopyTextIn(receiverList, record.receiverList)) {
        return false;
    }
    signal.ParseReceivers(receiverList);
    std::string comment;
    if (!CopyTextIn(comment, record.comment)) {
        return false;
    }
    signal.comment = comment;
    return true;
}

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
        !CopyTextOut(unitUtf8, record->unitUtf8) ||
        !CopyTextOut(ReceiverList(), record->receiverList) ||
        !CopyTextOut(comment, record->comment)) {
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
    record->enumCount = static_cast<std::uint32_t>(enums.Count());
    record->startValue = startValue;
    record->inactiveValue = inactiveValue;
    return !isEmpty;
}

bool CANSignal::FillFromRecord(const CanSignalRecord* record) {
    Reset();
    if (record == nullptr || !TakeTexts(*this, *record)) {
        Reset();
        return false;
    }
    TakeNumbers(*this, *record);
    rawName = longName;
    isEmpty = false;
    return true;
}

bool CANSignal::AddEnum(const CanEnumRecord* record) {
    std::string text;
    if (!CopyTextIn(text, record->text)) {
        return false;
    }
    enums.Add(record->value, text);
    return true;
}

}  // namespace vexil
