// Facts in words. Numbers have the fewest digits that read back as the same number.
// SPDX-License-Identifier: MIT
#include "view/fact_text.h"

#include "database/frame_id.h"
#include "format/format.h"
#include "view/diff_report.h"
#include "view/visible_text.h"

namespace vexil::tool {
namespace {

std::string IdText(std::uint32_t id) {
    return !IsExtended(id) ? Format("{} (0x{:X})", id, id)
                           : Format("{} (0x{:X} extended)", id, IdOnBus(id));
}

std::string NameText(std::string_view name) {
    return name.empty() ? "none" : Visible(name);
}

std::string MultiplexingText(const SignalFacts& signal) {
    switch (signal.multiplexType) {
        case MultiplexNone:
            return "none";
        case MultiplexSelector:
            return "selector";
        default:
            return Format("at selector value {}", signal.multiplexValue);
    }
}

std::string MultiplexingMark(const SignalFacts& signal) {
    switch (signal.multiplexType) {
        case MultiplexNone:
            return "";
        case MultiplexSelector:
            return " M";
        default:
            return Format(" m{}", signal.multiplexValue);
    }
}

}  // namespace

std::string Quoted(std::string_view text) {
    return '"' + Visible(text) + '"';
}

std::string MessageTitle(const Snapshot& snapshot, const MessageFacts& message) {
    return IdText(message.id) + " " + Visible(snapshot.Text(message.name));
}

std::string MessageLine(const Snapshot& snapshot, const MessageFacts& message) {
    return Format("{}: {} byte{} from {}, {} signal{}", MessageTitle(snapshot, message),
                  message.dlc, message.dlc == 1 ? "" : "s",
                  NameText(snapshot.Text(message.transmitter)), message.signalCount,
                  message.signalCount == 1 ? "" : "s");
}

std::string SignalLine(const Snapshot& snapshot, const SignalFacts& signal) {
    const bool isFloat = signal.valueType == ValueFloat32 || signal.valueType == ValueFloat64;
    std::string line =
        Format("{}{}: {}|{}@{}{} ({},{}) [{}|{}] {} {}", Visible(snapshot.Text(signal.name)),
               MultiplexingMark(signal), signal.startBit, signal.bitLength, signal.byteOrder,
               signal.valueType == ValueUnsigned ? '+' : '-', signal.factor, signal.offset,
               signal.minimum, signal.maximum, Quoted(snapshot.Text(signal.unitUtf8)),
               NameText(snapshot.Text(signal.receiverList)));
    if (isFloat) {
        line += Format(", {}", ValueTypeWord(signal));
    }
    if (signal.descriptionCount != 0) {
        line += Format(", {} value{}", signal.descriptionCount,
                       signal.descriptionCount == 1 ? "" : "s");
    }
    return line;
}

std::string NetworkText(const DatabaseInfo& info, Aspect aspect) {
    return std::string(aspect == Aspect::Protocol ? ProtocolWord(info) : BusTypeWord(info));
}

std::string MessageText(const Snapshot& snapshot, const MessageFacts& message, Aspect aspect) {
    switch (aspect) {
        case Aspect::Id:
            return IdText(message.id);
        case Aspect::Size:
            return Format("{}", message.dlc);
        case Aspect::Sender:
            return NameText(snapshot.Text(message.transmitter));
        case Aspect::CycleTime:
            return Format("{} ms", message.cycleTime);
        case Aspect::SendType:
            return Quoted(snapshot.Text(message.sendType));
        case Aspect::Name:
            return NameText(snapshot.Text(message.name));
        case Aspect::LongName:
            return Quoted(snapshot.Text(message.longName));
        case Aspect::Comment:
            return Quoted(snapshot.Text(message.comment));
        default:
            return "";
    }
}

std::string SignalText(const Snapshot& snapshot, const SignalFacts& signal, Aspect aspect) {
    switch (aspect) {
        case Aspect::Name:
            return NameText(snapshot.Text(signal.name));
        case Aspect::LongName:
            return Quoted(snapshot.Text(signal.longName));
        case Aspect::Comment:
            return Quoted(snapshot.Text(signal.comment));
        case Aspect::Bits:
            return Format("{}|{} {}", signal.startBit, signal.bitLength, ByteOrderWord(signal));
        case Aspect::Type:
            return std::string(ValueTypeWord(signal));
        case Aspect::Scaling:
            return Format("({},{})", signal.factor, signal.offset);
        case Aspect::Range:
            return Format("[{}|{}]", signal.minimum, signal.maximum);
        case Aspect::Unit:
            return Quoted(snapshot.Text(signal.unitUtf8));
        case Aspect::Multiplexing:
            return MultiplexingText(signal);
        case Aspect::StartValue:
            return Format("{}", signal.startValue);
        case Aspect::InactiveValue:
            return Format("{}", signal.inactiveValue);
        default:
            return "";
    }
}

}  // namespace vexil::tool
