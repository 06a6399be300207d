// The drawings of a message in one scale, and what they leave out.
// SPDX-License-Identifier: MIT
#include "view/layout_section.h"

#include <algorithm>

#include "format/format.h"
#include "layout/bit_layout.h"
#include "view/colour.h"
#include "view/display_text.h"
#include "view/frame_drawing.h"
#include "view/multiplexing.h"

namespace vexil::tool {
namespace {

constexpr std::size_t MostBytes = 64;
constexpr std::size_t MostValues = 256;
constexpr std::size_t LeastBitWidth = 5;

struct Frame {
    std::string title;
    std::vector<BitCell> cells;
    FrameRuns runs;
};

class Section {
  public:
    Section(const Snapshot& snapshot, const MessageFacts& facts, const DrawStyle& drawStyle)
        : database(snapshot), message(facts), style(drawStyle), labels(snapshot) {}

    std::vector<std::string> Run() {
        if (message.id == IndependentSignalsId) {
            AddText("no layout: these signals have no message");
        } else if (message.dlc == 0) {
            AddText("no layout: the message has no bytes");
        } else {
            AddText(
                "layout: a row for each byte, a column for each bit; 15..8 are bits of the "
                "signal, 0 is the lowest");
            MakeFrames();
            for (const Frame& frame : frames) {
                AddFrame(frame);
            }
            AddOmissions();
        }
        return std::move(lines);
    }

  private:
    void AddText(const std::string& text) {
        for (std::string& line : WrapText(text, style.width)) {
            lines.push_back(std::move(line));
        }
    }

    void AddWarning(const std::string& text) {
        for (const std::string& line : WrapText(text, style.width)) {
            lines.push_back(style.colour ? InColour(line, Colour::Yellow) : line);
        }
    }

    void MakeFrames() {
        const FrameLayouts layouts(database, message,
                                   std::min<std::size_t>(message.dlc, MostBytes));
        const std::uint32_t selector = FindSelector(database, message);
        const std::string prefix =
            selector == NoSignal
                ? "m"
                : Printable(database.Text(database.signals[selector].name)) + " = ";
        std::vector<std::uint32_t> values = MultiplexValues(database, message);
        valueCount = values.size();
        values.resize(std::min(values.size(), MostValues));
        for (const std::uint32_t value : values) {
            frames.push_back(
                {prefix + MultiplexValueInWords(database, selector, value), layouts.At(value), {}});
        }
        if (frames.empty()) {
            frames.push_back({"", layouts.At(std::nullopt), {}});
        }
        bitWidth = LeastBitWidth;
        for (Frame& frame : frames) {
            frame.runs = FindRuns(frame.cells);
            bitWidth = std::max(bitWidth, labels.NeededBitWidth(frame.runs));
        }
        bitWidth = std::min(bitWidth, (style.width - FrameMargin - FrameBorders) / BitsInByte);
    }

    void AddFrame(const Frame& frame) {
        if (!frame.title.empty()) {
            lines.emplace_back();
            AddText(frame.title);
        }
        const std::vector<RunLabel> runLabels = labels.Label(frame.runs, bitWidth);
        for (std::string& line : DrawFrame(frame.cells, frame.runs, runLabels, bitWidth, style)) {
            lines.push_back(std::move(line));
        }
        AddLegend();
    }

    // As many keys in a line as there is room for, and a line for each overlap.
    void AddLegend() {
        constexpr std::size_t Gap = 3;
        std::string line;
        std::size_t used = 0;
        const auto flush = [&] {
            if (!line.empty()) {
                lines.push_back(line);
            }
            line.clear();
        };
        for (const std::string& entry : labels.Legend()) {
            if (entry.starts_with('!')) {
                flush();
                lines.push_back(std::string(FrameMargin, ' ') +
                                (style.colour ? InColour(entry, Colour::Red) : entry));
                continue;
            }
            const std::size_t width = DisplayWidth(entry);
            if (line.empty() || used + Gap + width > style.width) {
                flush();
                line = std::string(FrameMargin, ' ') + entry;
                used = FrameMargin + width;
            } else {
                line += std::string(Gap, ' ') + entry;
                used += Gap + width;
            }
        }
        flush();
    }

    // Names signals outside of the message, and reports which parts are not drawn.
    void AddOmissions() {
        std::string outside;
        std::uint64_t lastByte = 0;
        for (std::uint32_t index = 0; index < message.signalCount; ++index) {
            const SignalFacts& signal = database.signals[message.firstSignal + index];
            if (EndByte(signal) > message.dlc) {
                outside += (outside.empty() ? "" : ", ") + Printable(database.Text(signal.name));
                lastByte = std::max(lastByte, EndByte(signal));
            }
        }
        if (!outside.empty()) {
            AddWarning(Format("outside of the {} byte{}, up to byte {}: {}", message.dlc,
                              message.dlc == 1 ? "" : "s", lastByte - 1, outside));
        }
        if (message.dlc > MostBytes) {
            AddWarning(Format("not drawn: bytes {} to {}", MostBytes, message.dlc - 1));
        }
        if (valueCount > MostValues) {
            AddWarning(Format("not drawn: {} more multiplexer values", valueCount - MostValues));
        }
    }

    const Snapshot& database;
    const MessageFacts& message;
    const DrawStyle& style;
    FrameLabels labels;
    std::vector<Frame> frames;
    std::size_t valueCount = 0;
    std::size_t bitWidth = LeastBitWidth;
    std::vector<std::string> lines;
};

}  // namespace

std::vector<std::string> DrawLayout(const Snapshot& snapshot, const MessageFacts& message,
                                    const DrawStyle& style) {
    return Section(snapshot, message, style).Run();
}

}  // namespace vexil::tool
