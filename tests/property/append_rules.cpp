// What a record becomes in the model when a host appends it.
// SPDX-License-Identifier: MIT
#include "property/append_rules.h"

#include "property/text_rules.h"
#include "support/reference_text.h"

namespace vexil::test {
namespace {

template <std::size_t Size>
bool TextOf(const char (&array)[Size], std::string& text) {
    return reference::CopyUtf8Text(text, array, Size);
}

}  // namespace

bool AppendedMessage(const CanMessageRecord& record, ModelMessage& message) {
    std::string longName;
    std::string transmitter;
    std::string comment;
    if (!TextOf(record.longName, longName) || !TextOf(record.transmitter, transmitter) ||
        !TextOf(record.comment, comment)) {
        return false;
    }
    message.id = record.id;
    message.dlc = record.dlc;
    message.longName = WithoutLineControls(longName);
    message.name = IdentifierOf(message.longName);
    message.transmitter = IdentifierOf(transmitter);
    message.comment = WithEscapedQuotes(comment);
    return true;
}

bool AppendedSignal(const CanSignalRecord& record, ModelSignal& signal) {
    std::string longName;
    std::string receiverList;
    std::string comment;
    if (!TextOf(record.longName, longName) || !TextOf(record.unit, signal.unitUtf8) ||
        !TextOf(record.receiverList, receiverList) || !TextOf(record.comment, comment)) {
        return false;
    }
    signal.longName = WithoutLineControls(longName);
    signal.name = IdentifierOf(signal.longName);
    signal.unit = reference::FoldToAscii(signal.unitUtf8);
    signal.receivers = ReceiversOf(receiverList);
    signal.comment = WithEscapedQuotes(comment);
    signal.multiplexType = record.multiplexType;
    signal.multiplexValue = record.multiplexValue;
    signal.startBit = record.startBit;
    signal.bitLength = record.bitLength;
    signal.byteOrder = record.byteOrder;
    signal.valueType = record.valueType;
    if ((record.valueType == ValueFloat32 && record.bitLength != 32) ||
        (record.valueType == ValueFloat64 && record.bitLength != 64)) {
        signal.valueType = ValueSigned;
    }
    signal.factor = record.factor;
    signal.offset = record.offset;
    signal.minimum = record.minimum;
    signal.maximum = record.maximum;
    signal.startValue = record.startValue;
    signal.inactiveValue = record.inactiveValue;
    return true;
}

bool AppendedDescription(const CanEnumRecord& record, std::map<std::int32_t, std::string>& enums) {
    std::string text;
    if (!TextOf(record.text, text)) {
        return false;
    }
    const auto [entry, isNew] = enums.emplace(record.value, text);
    if (!isNew) {
        entry->second += " - " + text;
    }
    return true;
}

}  // namespace vexil::test
