// The summary of a network in a report.
// SPDX-License-Identifier: MIT

#include <string>

#include "format/format.h"
#include "view/network_facts.h"
#include "view/report_values.h"

namespace vexil::tool {
namespace {

std::string BusName(const DatabaseInfo& info) {
    std::string name = info.busType == BusCanFd ? "CAN FD" : "Classic CAN";
    switch (info.protocolType) {
        case ProtocolJ1939:
            return name + ", J1939";
        case ProtocolNmea:
            return name + ", NMEA 2000";
        default:
            return name;
    }
}

std::string RateText(double rate) {
    return rate == 0 ? "" : Format("{:.1f}", rate);
}

std::string BitUseText(const BitUse& use) {
    constexpr std::uint64_t Percent = 100;
    return use.bits == 0 ? "none"
                         : Format("{} % of {} bits", use.used * Percent / use.bits, use.bits);
}

}  // namespace

void AddNetworkValues(const Snapshot& snapshot, TemplateValues& values) {
    values.Set("bus", BusName(snapshot.info));
    values.Set("messageCount", std::to_string(snapshot.messages.size()));
    values.Set("allSignalCount", std::to_string(snapshot.signals.size()));
    values.Set("bitUse", BitUseText(CountBits(snapshot)));
    TemplateValues::List rows;
    for (const SenderFacts& sender : FindSenders(snapshot)) {
        TemplateValues row;
        row.Set("senderName", std::string(sender.name));
        row.Set("senderMessages", std::to_string(sender.messages));
        row.Set("senderSignals", std::to_string(sender.signals));
        row.Set("frameRate", RateText(sender.framesPerSecond));
        row.Set("byteRate", RateText(sender.bytesPerSecond));
        rows.push_back(std::move(row));
    }
    values.Set("senders", std::move(rows));
}

}  // namespace vexil::tool
