// BO_ and SG_: the messages with their signals. The lines are read by read/message_statement.cpp
// and read/signal_statement.cpp.
//
//   BO_ id name: size transmitter
//    SG_ name [M|m number] : start|length@order sign (factor,offset) [min|max] "unit" receivers
// SPDX-License-Identifier: MIT
#include <string>
#include <utility>

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
    std::string line;
    for (const auto& message : messages) {
        line.clear();
        line = message->FormatMessageLine(std::move(line));
        file.WriteLine(line);
        for (const auto& signal : message->signals) {
            line.clear();
            line = signal->FormatSignalLine(std::move(line));
            file.WriteLine(line);
        }
        file.WriteLine("");
    }
}

std::string CANMessage::FormatMessageLine(std::string line) const {
    if (isEmpty) {
        return line;
    }
    line.append(keyword::BO_).append(" ").append(std::to_string(id)).append(" ").append(name);
    line.append(": ").append(std::to_string(dlc)).append(" ").append(NodeOrDefault(transmitter));
    return line;
}

std::string CANSignal::FormatSignalLine(std::string line) const {
    if (isEmpty) {
        return line;
    }
    line = FormatSignalHead(std::move(line.append(" ")));
    line = FormatBitLayout(std::move(line.append(" ")));
    line = FormatScale(std::move(line.append(" ")));
    line = FormatRange(std::move(line.append(" ")));
    line.append(" \"").append(unit).append("\" ").append(NodeOrDefault(ReceiverList()));
    return line;
}

std::string CANSignal::FormatSignalHead(std::string line) const {
    line.append(keyword::SG_).append(" ").append(name);
    if (multiplexType == MultiplexSelector) {
        line.append(" M");
    } else if (multiplexType == MultiplexSelected) {
        line.append(" m").append(std::to_string(multiplexValue));
    }
    line.append(" :");
    return line;
}

std::string CANSignal::FormatBitLayout(std::string line) const {
    line.append(std::to_string(startBit)).append("|").append(std::to_string(bitLength));
    line.append(byteOrder != ByteOrderBigEndian ? "@1" : "@0");
    // A float is signed here, too; SIG_VALTYPE_ tells what it really is.
    line.append(valueType != ValueUnsigned ? "-" : "+");
    return line;
}

std::string CANSignal::FormatScale(std::string line) const {
    return NumberPairText("(,)", factor, offset, std::move(line));
}

std::string CANSignal::FormatRange(std::string line) const {
    return NumberPairText("[|]", minimum, maximum, std::move(line));
}

}  // namespace vexil
