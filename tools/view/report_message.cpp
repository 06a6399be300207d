// A message of a report.
// SPDX-License-Identifier: MIT

#include <algorithm>
#include <map>
#include <string>

#include "database/frame_id.h"
#include "format/format.h"
#include "layout/bit_layout.h"
#include "view/display_text.h"
#include "view/layout_text.h"
#include "view/multiplexing.h"
#include "view/report_values.h"

namespace vexil::tool {
namespace {

// Layouts and overlaps of one message that a report shows. The work for a layout grows with the
// number of signals, so that a message of many signals has fewer layouts.
constexpr std::size_t MostLayouts = 256;
constexpr std::size_t MostSignalsInLayouts = 131072;
constexpr std::size_t MostOverlaps = 50;

std::string IdText(std::uint32_t id) {
    return IsExtended(id) ? Format("0x{:08X} ext", IdOnBus(id)) : Format("0x{:03X}", id);
}

std::string TypeText(const SignalFacts& signal) {
    const bool isFloat = signal.valueType == ValueFloat32 || signal.valueType == ValueFloat64;
    const char* const kind = isFloat ? "f" : signal.valueType == ValueSigned ? "s" : "u";
    const char* const order = signal.byteOrder == ByteOrderBigEndian ? " BE" : "";
    return Format("{}{}{}", kind, signal.bitLength, order);
}

std::string ScalingText(const SignalFacts& signal) {
    return signal.offset == 0 ? Format("{}", signal.factor)
                              : Format("{}, {}", signal.factor, signal.offset);
}

// Such as "0..100 km/h".
std::string RangeText(const SignalFacts& signal, std::string_view unit) {
    std::string text;
    if (signal.minimum != 0 || signal.maximum != 0) {
        text = Format("{}..{}", signal.minimum, signal.maximum);
    }
    text += text.empty() || unit.empty() ? "" : " ";
    text += unit;
    return text;
}

class MessageReader {
  public:
    MessageReader(const Snapshot& snapshot, const MessageFacts& facts)
        : database(snapshot), message(facts) {}

    TemplateValues Run() {
        const std::string name = Text(message.name);
        const std::string longName = Text(message.longName);
        values.Set("messageName", name);
        values.Set("messageLongName", longName == name ? "" : longName);
        values.Set("id", IdText(message.id));
        values.Set("idNumber", std::to_string(message.id));
        values.Set("sender", Text(message.transmitter));
        values.Set("bytes", std::to_string(message.dlc));
        values.Set("cycle",
                   message.cycleTime == 0 ? "" : std::to_string(message.cycleTime) + " ms");
        values.Set("sendType", Text(message.sendType));
        values.Set("signalCount", std::to_string(message.signalCount));
        values.Set("messageComment", PlainComment(database.Text(message.comment)));
        SetLayouts();
        SetOverlaps();
        SetSignals();
        SetValueTables();
        return std::move(values);
    }

  private:
    std::string Text(TextRef text) const { return std::string(database.Text(text)); }

    const SignalFacts& Signal(std::uint32_t number) const {
        return database.signals[message.firstSignal + number];
    }

    TemplateValues Layout(std::optional<std::uint32_t> multiplexValue) const {
        TemplateValues layout;
        layout.Set("runs", LayoutText(database, message, multiplexValue));
        layout.Set("multiplexValue", multiplexValue ? std::to_string(*multiplexValue) : "");
        return layout;
    }

    // One for each multiplexer value. The signals without a message share no frame.
    void SetLayouts() {
        TemplateValues::List layouts;
        std::size_t leftOut = 0;
        if (ShownBytes(database, message) != 0 && message.id != IndependentSignalsId) {
            std::vector<std::uint32_t> selected = MultiplexValues(database, message);
            const std::size_t most = std::min<std::size_t>(
                MostLayouts, MostSignalsInLayouts / (message.signalCount + 1));
            leftOut = selected.size() - std::min(selected.size(), most);
            selected.resize(selected.size() - leftOut);
            for (const std::uint32_t value : selected) {
                layouts.push_back(Layout(value));
            }
            if (selected.empty()) {
                layouts.push_back(Layout(std::nullopt));
            }
        }
        values.Set("layouts", std::move(layouts));
        values.Set("layoutsLeftOut", leftOut == 0 ? "" : std::to_string(leftOut));
    }

    void SetOverlaps() {
        const std::vector<Overlap> overlaps = FindOverlaps(database, message);
        std::string text;
        for (std::size_t index = 0; index < std::min(overlaps.size(), MostOverlaps); ++index) {
            text += index == 0 ? "" : "; ";
            text += Text(database.signals[overlaps[index].signal].name) + " overlaps " +
                    Text(database.signals[overlaps[index].other].name);
        }
        if (overlaps.size() > MostOverlaps) {
            text += Format("; and {} more", overlaps.size() - MostOverlaps);
        }
        values.Set("overlaps", text);
    }

    void SetSignals() {
        TemplateValues::List signals;
        for (std::uint32_t number = 0; number < message.signalCount; ++number) {
            signals.push_back(SignalValues(Signal(number)));
        }
        values.Set("signals", std::move(signals));
    }

    TemplateValues SignalValues(const SignalFacts& signal) const {
        const std::string name = Text(signal.name);
        const std::string longName = Text(signal.longName);
        const std::string receivers = Text(signal.receiverList);
        const std::string range = RangeText(signal, database.Text(signal.unitUtf8));
        std::string notes = longName == name ? "" : longName + "\n";
        if (signal.startValue != 0) {
            notes += Format("Start value {}\n", signal.startValue);
        }
        if (signal.inactiveValue != 0) {
            notes += Format("Inactive value {}\n", signal.inactiveValue);
        }
        notes += PlainComment(database.Text(signal.comment));
        TemplateValues row;
        row.Set("name", name);
        row.Set("multiplex", MultiplexMark(signal));
        row.Set("start", std::to_string(signal.startBit));
        row.Set("type", TypeText(signal));
        row.Set("scaling", ScalingText(signal));
        // Empty cells at the end of a row are left out, which keeps the page small.
        const bool hasReceivers = !receivers.empty() || !notes.empty();
        row.Set("hasRange", range.empty() && !hasReceivers ? "" : "yes");
        row.Set("range", range);
        row.Set("hasReceivers", hasReceivers ? "yes" : "");
        row.Set("receivers", receivers);
        row.Set("notes", notes);
        return row;
    }

    // Signals with the same descriptions share a table.
    void SetValueTables() {
        std::map<std::string, std::vector<std::uint32_t>> signalsOfTable;
        std::vector<const std::vector<std::uint32_t>*> order;
        for (std::uint32_t number = 0; number < message.signalCount; ++number) {
            const SignalFacts& signal = Signal(number);
            if (signal.descriptionCount == 0) {
                continue;
            }
            std::string key;
            for (std::uint32_t index = 0; index < signal.descriptionCount; ++index) {
                const DescriptionFacts& each = Description(signal, index);
                const std::string_view text = database.Text(each.text);
                key += Format("{} {} ", each.value, text.size());
                key += text;
            }
            std::vector<std::uint32_t>& signals = signalsOfTable[key];
            if (signals.empty()) {
                order.push_back(&signals);
            }
            signals.push_back(number);
        }
        TemplateValues::List tables;
        for (const std::vector<std::uint32_t>* signals : order) {
            tables.push_back(ValueTable(*signals));
        }
        values.Set("valueTables", std::move(tables));
    }

    const DescriptionFacts& Description(const SignalFacts& signal, std::uint32_t index) const {
        return database.descriptions[signal.firstDescription + index];
    }

    TemplateValues ValueTable(const std::vector<std::uint32_t>& signals) const {
        std::string names;
        for (const std::uint32_t number : signals) {
            names += names.empty() ? "" : ", ";
            names += database.Text(Signal(number).name);
        }
        const SignalFacts& signal = Signal(signals.front());
        TemplateValues::List rows;
        for (std::uint32_t index = 0; index < signal.descriptionCount; ++index) {
            TemplateValues row;
            row.Set("value", std::to_string(Description(signal, index).value));
            row.Set("meaning", Text(Description(signal, index).text));
            rows.push_back(std::move(row));
        }
        TemplateValues table;
        table.Set("tableSignals", names);
        table.Set("rows", std::move(rows));
        return table;
    }

    const Snapshot& database;
    const MessageFacts& message;
    TemplateValues values;
};

}  // namespace

TemplateValues MessageValues(const Snapshot& snapshot, const MessageFacts& message) {
    return MessageReader(snapshot, message).Run();
}

}  // namespace vexil::tool
