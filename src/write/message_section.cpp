// BO_ and SG_: the messages with their signals. The lines are read by read/message_statement.cpp
// and read/signal_statement.cpp.
//
//   BO_ id name: size transmitter
//    SG_ name [M|m number] : start|length@order sign (factor,offset) [min|max] "unit" receivers
// SPDX-License-Identifier: MIT
#include <string>

#include "text/constants.h"
#include "write/number_text.h"
#include "write/sections.h"

namespace vexil {
namespace {

constexpr std::size_t OrdinaryLineLength = 160;  // room for most lines without growing

std::string_view NodeOrDefault(std::string_view node) {
    return node.empty() ? DefaultNode : node;
}

}  // namespace

void WriteMessages(StatementFile& file, const MessageList& messages) {
    for (const auto& message : messages) {
        file.WriteLine(message->FormatMessageLine());
        for (const auto& signal : message->signals) {
            file.WriteLine(signal->FormatSignalLine());
        }
        file.WriteLine("");
    }
}

std::string CANMessage::FormatMessageLine() const {
    if (isEmpty) {
        return {};
    }
    std::string line(keyword::BO_);
    line.append(" ").append(std::to_string(id)).append(" ").append(name);
    line.append(": ").append(std::to_string(dlc)).append(" ").append(NodeOrDefault(transmitter));
    return line;
}

std::string CANSignal::FormatSignalLine() const {
    if (isEmpty) {
        return {};
    }
    std::string line;
    line.reserve(OrdinaryLineLength);
    line.append(" ").append(FormatSignalHead()).append(" ").append(FormatBitLayout());
    line.append(" ").append(FormatScale()).append(" ").append(FormatRange());
    line.append(" \"").append(unit).append("\" ");
    line.append(NodeOrDefault(ReceiverList()));
    return line;
}

std::string CANSignal::FormatSignalHead() const {
    std::string head(keyword::SG_);
    head.append(" ").append(name);
    if (multiplexType == MultiplexSelector) {
        head.append(" M");
    } else if (multiplexType == MultiplexSelected) {
        head.append(" m").append(std::to_string(multiplexValue));
    }
    return head.append(" :");
}

std::string CANSignal::FormatBitLayout() const {
    std::string layout = std::to_string(startBit);
    layout.append("|").append(std::to_string(bitLength)).append("@");
    layout.append(byteOrder != ByteOrderBigEndian ? "1" : "0");
    // A float is signed here, too; SIG_VALTYPE_ tells what it really is.
    return layout.append(valueType != ValueUnsigned ? "-" : "+");
}

std::string CANSignal::FormatScale() const {
    return NumberPairText("(,)", factor, offset);
}

std::string CANSignal::FormatRange() const {
    return NumberPairText("[|]", minimum, maximum);
}

}  // namespace vexil
