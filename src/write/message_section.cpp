// BO_ and SG_: the messages with their signals. The lines are read by read/message_statement.cpp
// and read/signal_statement.cpp.
//
//   BO_ id name: size transmitter
//    SG_ name [M|m number] : start|length@order sign (factor,offset) [min|max] "unit" receivers
// SPDX-License-Identifier: MIT
#include "text/constants.h"
#include "write/number_text.h"
#include "write/sections.h"

namespace vexil {
namespace {

std::string_view NodeOrDefault(std::string_view node) {
    return node.empty() ? DefaultNode : node;
}

}  // namespace

void WriteMessages(StatementFile& file, const MessageList& messages) {
    LineBuffer line;
    const NumberText numbers;
    for (const CANMessage* message : messages) {
        message->AppendMessageLine(line);
        file.WriteLine(line);
        for (const CANSignal* signal : message->signals) {
            signal->AppendSignalLine(line, numbers);
            file.WriteLine(line);
        }
        file.WriteLine(line);
    }
}

void CANMessage::AppendMessageLine(LineBuffer& line) const {
    line.Append(keyword::BO_, " ", id, " ", name, ": ", dlc, " ", NodeOrDefault(transmitter));
}

void CANSignal::AppendSignalLine(LineBuffer& line, const NumberText& numbers) const {
    AppendSignalHead(line);
    AppendBitLayout(line);
    numbers.AppendPair(line, " (,)", factor, offset);
    numbers.AppendPair(line, " [|]", minimum, maximum);
    line.Append(" \"", unit, "\" ", NodeOrDefault(receivers));
}

void CANSignal::AppendSignalHead(LineBuffer& line) const {
    line.Append(' ', keyword::SG_, ' ', name);
    if (multiplexType == MultiplexSelector) {
        line.Append(" M");
    } else if (multiplexType == MultiplexSelected) {
        line.Append(" m", multiplexValue);
    }
    line.Append(" : ");
}

// A float is written as signed; SIG_VALTYPE_ marks it as a float.
void CANSignal::AppendBitLayout(LineBuffer& line) const {
    line.Append(startBit, '|', bitLength, '@', byteOrder != ByteOrderBigEndian ? '1' : '0',
                valueType != ValueUnsigned ? '-' : '+');
}

}  // namespace vexil
