// The sections of a message, one after the other.
// SPDX-License-Identifier: MIT
#include "view/message_page.h"

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "format/format.h"
#include "view/display_text.h"
#include "view/layout_section.h"
#include "view/message_words.h"
#include "view/multiplexing.h"
#include "view/signal_table.h"

namespace vexil::tool {
namespace {

constexpr std::size_t Indent = 2;

class Page {
  public:
    Page(std::ostream& out, const Snapshot& snapshot, const MessageFacts& facts,
         const DrawStyle& drawStyle)
        : stream(out), database(snapshot), message(facts), style(drawStyle), inner(drawStyle) {
        inner.width -= Indent;
    }

    void Run() {
        PrintHeading();
        PrintFacts();
        PrintSection(DrawSignals(database, message, inner));
        PrintSection(DrawMultiplexing(database, message, inner));
        PrintDescriptions();
        PrintSection(DrawLayout(database, message, inner));
    }

  private:
    void PrintLine(std::string_view line) { stream << (line.empty() ? "" : "  ") << line << '\n'; }

    void PrintHeading() {
        const std::string name = Printable(database.Text(message.name));
        const std::size_t used = DisplayWidth(name) + 4;
        stream << (style.ascii ? "-- " : "── ") << name << ' ';
        for (std::size_t column = used; column < style.width; ++column) {
            stream << (style.ascii ? "-" : "─");
        }
        stream << '\n';
    }

    void PrintFact(std::string_view name, std::string_view text) {
        constexpr std::size_t NameWidth = 11;
        std::string before = Format("{:{}}", name, NameWidth);
        if (text.empty()) {
            return;
        }
        for (const std::string& line : WrapText(text, inner.width - NameWidth)) {
            PrintLine(before + line);
            before.assign(NameWidth, ' ');
        }
    }

    void PrintFacts() {
        const std::string_view longName = database.Text(message.longName);
        if (longName != database.Text(message.name)) {
            PrintFact("long name", Printable(longName));
        }
        PrintFact("id", IdInWords(message.id));
        PrintFact("J1939", J1939InWords(message.id));
        PrintFact("size", Format("{} byte{}", message.dlc, message.dlc == 1 ? "" : "s"));
        PrintFact("sender", Printable(database.Text(message.transmitter)));
        PrintFact("sent", SendingInWords(database, message));
        PrintFact("comment", PrintableComment(database.Text(message.comment)));
    }

    void PrintSection(const std::vector<std::string>& lines) {
        if (!lines.empty()) {
            stream << '\n';
        }
        for (const std::string& line : lines) {
            PrintLine(line);
        }
    }

    void PrintDescriptions() {
        for (std::uint32_t index = 0; index < message.signalCount; ++index) {
            const SignalFacts& signal = database.signals[message.firstSignal + index];
            if (signal.descriptionCount != 0) {
                PrintSection(DrawDescriptions(database, signal, inner));
            }
        }
    }

    std::ostream& stream;
    const Snapshot& database;
    const MessageFacts& message;
    const DrawStyle& style;
    DrawStyle inner;  // of the sections, which are indented
};

}  // namespace

void PrintMessagePage(std::ostream& out, const Snapshot& snapshot, const MessageFacts& message,
                      const DrawStyle& style) {
    Page(out, snapshot, message, style).Run();
}

}  // namespace vexil::tool
