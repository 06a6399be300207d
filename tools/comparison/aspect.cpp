// The table of the aspects.
// SPDX-License-Identifier: MIT
#include "comparison/aspect.h"

namespace vexil::tool {

const std::array<AspectRow, AspectCount>& AspectRows() {
    static constexpr std::array<AspectRow, AspectCount> Rows = {{
        {Aspect::Protocol, "protocol", "protocol", "protocol"},
        {Aspect::BusType, "bus-type", "busType", "bus type"},
        {Aspect::Id, "ids", "id", "id"},
        {Aspect::Size, "sizes", "size", "size"},
        {Aspect::Sender, "senders", "sender", "sender"},
        {Aspect::CycleTime, "cycle-times", "cycleTime", "cycle time"},
        {Aspect::SendType, "send-types", "sendType", "send type"},
        {Aspect::Name, "names", "name", "name"},
        {Aspect::LongName, "long-names", "longName", "long name"},
        {Aspect::Comment, "comments", "comment", "comment"},
        {Aspect::Order, "order", "order", "order"},
        {Aspect::Bits, "bits", "bits", "bits"},
        {Aspect::Type, "types", "type", "type"},
        {Aspect::Scaling, "scaling", "scaling", "scaling"},
        {Aspect::Range, "ranges", "range", "range"},
        {Aspect::Unit, "units", "unit", "unit"},
        {Aspect::Multiplexing, "multiplexing", "multiplexing", "multiplexing"},
        {Aspect::Receivers, "receivers", "receivers", "receivers"},
        {Aspect::Values, "values", "values", "value"},
        {Aspect::StartValue, "start-values", "startValue", "start value"},
        {Aspect::InactiveValue, "inactive-values", "inactiveValue", "inactive value"},
    }};
    return Rows;
}

std::optional<Aspect> FindAspect(std::string_view ignoreName) {
    for (const AspectRow& row : AspectRows()) {
        if (row.ignoreName == ignoreName) {
            return row.aspect;
        }
    }
    return std::nullopt;
}

}  // namespace vexil::tool
