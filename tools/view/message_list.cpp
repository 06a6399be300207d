// The columns of the list. They are measured first, then printed line by line.
// SPDX-License-Identifier: MIT
#include "view/message_list.h"

#include <algorithm>
#include <array>
#include <ostream>
#include <string>
#include <string_view>

#include "database/frame_id.h"
#include "format/format.h"
#include "layout/bit_layout.h"
#include "view/display_text.h"

namespace vexil::tool {
namespace {

constexpr std::size_t ColumnCount = 9;
constexpr std::array<std::string_view, ColumnCount> Headings = {
    "id", "hex", "frame", "message", "size", "signals", "sender", "cycle", "send type"};
constexpr std::array<bool, ColumnCount> IsNumber = {true, true,  false, false, true,
                                                    true, false, true,  false};
constexpr std::size_t Gap = 2;

using Cells = std::array<std::string, ColumnCount>;

Cells CellsOf(const Snapshot& snapshot, const MessageFacts& message) {
    const bool isFrame = message.id != IndependentSignalsId;
    const bool isExtended = IsExtended(message.id);
    const std::uint32_t id = isFrame ? IdOnBus(message.id) : message.id;
    return {Format("{}", id),
            isExtended ? Format("0x{:08X}", id) : Format("0x{:03X}", id),
            !isFrame     ? "-"
            : isExtended ? "ext"
                         : "std",
            Printable(snapshot.Text(message.name)),
            Format("{}", message.dlc),
            Format("{}", message.signalCount),
            Printable(snapshot.Text(message.transmitter)),
            message.cycleTime != 0 ? Format("{} ms", message.cycleTime) : "",
            Printable(snapshot.Text(message.sendType))};
}

std::string Line(const Cells& cells, const std::array<std::size_t, ColumnCount>& widths) {
    std::string line;
    for (std::size_t column = 0; column < ColumnCount; ++column) {
        line += IsNumber[column] ? PadLeft(cells[column], widths[column])
                                 : PadRight(cells[column], widths[column]);
        line.append(Gap, ' ');
    }
    return line;
}

void Print(std::ostream& out, std::string line) {
    line.erase(line.find_last_not_of(' ') + 1);
    out << line << '\n';
}

}  // namespace

void PrintMessageList(std::ostream& out, const Snapshot& snapshot,
                      const std::vector<std::uint32_t>& messages, const DrawStyle& style) {
    std::array<std::size_t, ColumnCount> widths{};
    Cells headings;
    for (std::size_t column = 0; column < ColumnCount; ++column) {
        headings[column] = Headings[column];
        widths[column] = Headings[column].size();
    }
    std::vector<Cells> rows;
    rows.reserve(messages.size());
    for (const std::uint32_t index : messages) {
        rows.push_back(CellsOf(snapshot, snapshot.messages[index]));
        for (std::size_t column = 0; column < ColumnCount; ++column) {
            widths[column] = std::max(widths[column], DisplayWidth(rows.back()[column]));
        }
    }
    // A comment of a few letters says nothing.
    constexpr std::size_t LeastComment = 12;
    std::size_t used = Gap * ColumnCount;
    for (const std::size_t width : widths) {
        used += width;
    }
    const bool hasComment = used + LeastComment <= style.width;
    Print(out, Line(headings, widths) + (hasComment ? "comment" : ""));
    for (std::size_t row = 0; row < rows.size(); ++row) {
        std::string line = Line(rows[row], widths);
        const TextRef comment = snapshot.messages[messages[row]].comment;
        if (hasComment && comment.size != 0) {
            std::string text = PrintableComment(snapshot.Text(comment));
            std::replace(text.begin(), text.end(), '\n', ' ');
            line += Shorten(text, style.width - used, style.ascii ? "..." : "…");
        }
        Print(out, std::move(line));
    }
}

}  // namespace vexil::tool
