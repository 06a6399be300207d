// The cells of signals.
// SPDX-License-Identifier: MIT
#include "view/signal_table.h"

#include <algorithm>
#include <string_view>

#include "format/format.h"
#include "view/display_text.h"
#include "view/multiplexing.h"
#include "view/text_table.h"

namespace vexil::tool {
namespace {

std::string_view TypeInWords(std::uint32_t valueType) {
    switch (valueType) {
        case ValueUnsigned:
            return "uint";
        case ValueSigned:
            return "int";
        case ValueFloat32:
            return "float";
        case ValueFloat64:
            return "double";
        default:
            return "unknown";
    }
}

// Files write [0|0] for a signal without limits.
std::string RangeInWords(const SignalFacts& signal) {
    return signal.minimum == 0 && signal.maximum == 0
               ? "-"
               : Format("{} to {}", signal.minimum, signal.maximum);
}

// A blank after each comma, so that the list can be broken there.
std::string ReceiversInWords(std::string_view list) {
    std::string words;
    for (const char ch : list) {
        words += ch;
        if (ch == ',') {
            words += ' ';
        }
    }
    return Printable(words);
}

std::string NoteOf(const Snapshot& snapshot, const SignalFacts& signal, bool withReceivers) {
    std::string note;
    const auto add = [&note](const std::string& line) {
        note += (note.empty() ? "" : "\n") + line;
    };
    const std::string_view longName = snapshot.Text(signal.longName);
    if (longName != snapshot.Text(signal.name)) {
        add("long name " + Printable(longName));
    }
    if (signal.startValue != 0 || signal.inactiveValue != 0) {
        add(Format("start value {}, inactive value {}", signal.startValue, signal.inactiveValue));
    }
    if (withReceivers && signal.receiverList.size != 0) {
        add("received by " + ReceiversInWords(snapshot.Text(signal.receiverList)));
    }
    if (signal.comment.size != 0) {
        add(PrintableComment(snapshot.Text(signal.comment)));
    }
    return note;
}

// The signals of a message, with or without a column of receivers.
TextTable MakeTable(const Snapshot& snapshot, const MessageFacts& message, bool withReceivers) {
    const auto begin = snapshot.signals.begin() + message.firstSignal;
    const auto end = begin + message.signalCount;
    const bool isMultiplexed = std::any_of(begin, end, [](const SignalFacts& signal) {
        return signal.multiplexType != MultiplexNone;
    });
    std::vector<TableColumn> columns = {{"signal"}};
    if (isMultiplexed) {
        columns.push_back({"mux"});
    }
    columns.insert(columns.end(), {{"start", true},
                                   {"bits", true},
                                   {"order"},
                                   {"type"},
                                   {"factor", true},
                                   {"offset", true},
                                   {"range"},
                                   {"unit"}});
    if (withReceivers) {
        columns.push_back({"receivers"});
    }
    TextTable table(std::move(columns));
    for (auto signal = begin; signal != end; ++signal) {
        std::vector<std::string> cells = {Printable(snapshot.Text(signal->name))};
        if (isMultiplexed) {
            cells.push_back(MultiplexMark(*signal));
        }
        cells.push_back(Format("{}", signal->startBit));
        cells.push_back(Format("{}", signal->bitLength));
        cells.emplace_back(signal->byteOrder == ByteOrderBigEndian ? "big" : "little");
        cells.emplace_back(TypeInWords(signal->valueType));
        cells.push_back(Format("{}", signal->factor));
        cells.push_back(Format("{}", signal->offset));
        cells.push_back(RangeInWords(*signal));
        cells.push_back(Printable(snapshot.Text(signal->unitUtf8)));
        if (withReceivers) {
            cells.push_back(ReceiversInWords(snapshot.Text(signal->receiverList)));
        }
        table.AddRow(std::move(cells), NoteOf(snapshot, *signal, !withReceivers));
    }
    return table;
}

}  // namespace

std::vector<std::string> DrawSignals(const Snapshot& snapshot, const MessageFacts& message,
                                     const DrawStyle& style) {
    if (message.signalCount == 0) {
        return {"no signals"};
    }
    const TextTable table = MakeTable(snapshot, message, true);
    return table.WidthOfWords() <= style.width
               ? table.Lines(style.width)
               : MakeTable(snapshot, message, false).Lines(style.width);
}

std::vector<std::string> DrawDescriptions(const Snapshot& snapshot, const SignalFacts& signal,
                                          const DrawStyle& style) {
    constexpr std::size_t Indent = 2;
    constexpr std::size_t Gap = 2;
    const auto* const begin = snapshot.descriptions.data() + signal.firstDescription;
    const auto* const end = begin + signal.descriptionCount;
    std::size_t valueWidth = 1;
    for (const auto* each = begin; each != end; ++each) {
        valueWidth = std::max(valueWidth, Format("{}", each->value).size());
    }
    std::vector<std::string> lines =
        WrapText("values of " + Printable(snapshot.Text(signal.name)), style.width);
    for (const auto* each = begin; each != end; ++each) {
        std::string before = std::string(Indent, ' ') + Format("{:>{}}", each->value, valueWidth) +
                             std::string(Gap, ' ');
        for (const std::string& line :
             WrapText(Printable(snapshot.Text(each->text)), style.width - before.size())) {
            lines.push_back(before + line);
            before.assign(before.size(), ' ');
        }
    }
    return lines;
}

}  // namespace vexil::tool
