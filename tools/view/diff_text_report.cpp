// The report of a comparison: a line for each difference, grouped by message and signal.
// SPDX-License-Identifier: MIT
#include "view/diff_text_report.h"

#include <algorithm>
#include <ostream>
#include <string>
#include <vector>

#include "comparison/parts.h"
#include "format/format.h"
#include "view/colour.h"
#include "view/fact_text.h"
#include "view/visible_text.h"

namespace vexil::tool {
namespace {

// Columns up to which the old and the new text are on one line.
constexpr std::size_t MostColumns = 100;

// Names of what has moved that are shown.
constexpr std::size_t MostNames = 10;

constexpr std::size_t Indent = 4;

// Where the differences of the network, a message and a signal are.
constexpr std::size_t OfNetwork = 0;
constexpr std::size_t OfMessage = 1;
constexpr std::size_t OfSignal = 2;

// Both names, or the one that both files have.
std::string NamesOf(const DiffReport& report) {
    const std::string before = Visible(report.nameBefore);
    return report.nameAfter == report.nameBefore ? before
                                                 : before + " -> " + Visible(report.nameAfter);
}

class Printer {
  public:
    Printer(std::ostream& out, const DiffReport& diffReport, bool inColour)
        : stream(out), report(diffReport), isColoured(inColour) {}

    void Run() {
        if (report.comparison.IsEmpty()) {
            return;
        }
        PrintSummary();
        for (const AspectRow& row : AspectRows()) {
            if (report.comparison.aspects.Has(row.aspect)) {
                Changed(OfNetwork, row.label, NetworkText(report.before.info, row.aspect),
                        NetworkText(report.after.info, row.aspect));
            }
        }
        for (const MessageDifference& each : report.comparison.messages) {
            PrintMessage(each);
        }
        PrintMoved(OfNetwork, "order of messages", report.comparison.movedMessages,
                   report.after.messages);
    }

  private:
    void PrintSummary() {
        const DiffCounts counts = CountMessages(report.comparison);
        std::string line = NamesOf(report);
        std::string_view separator = ": ";
        const auto add = [&](std::size_t count, std::string_view what) {
            if (count != 0) {
                line += Format("{}{} message{} {}", separator, count, count == 1 ? "" : "s", what);
                separator = ", ";
            }
        };
        add(counts.removed, "removed");
        add(counts.added, "added");
        add(counts.changed, "changed");
        add(counts.moved, "moved");
        if (!report.comparison.aspects.IsEmpty()) {
            line += Format("{}the network changed", separator);
        }
        stream << line << '\n';
    }

    void PrintMessage(const MessageDifference& difference) {
        const Pair pair = difference.message;
        if (pair.after == Nowhere) {
            Line(OfNetwork, '-', MessageLine(report.before, report.before.messages[pair.before]));
            return;
        }
        const MessageFacts& after = report.after.messages[pair.after];
        if (pair.before == Nowhere) {
            Line(OfNetwork, '+', MessageLine(report.after, after));
            for (std::uint32_t index = 0; index < after.signalCount; ++index) {
                const SignalFacts& signal = report.after.signals[after.firstSignal + index];
                Line(OfMessage, '+', SignalLine(report.after, signal));
            }
            return;
        }
        const MessageFacts& before = report.before.messages[pair.before];
        Line(OfNetwork, '~', MessageTitle(report.after, after));
        for (const AspectRow& row : AspectRows()) {
            if (difference.aspects.Has(row.aspect)) {
                Changed(OfMessage, row.label, MessageText(report.before, before, row.aspect),
                        MessageText(report.after, after, row.aspect));
            }
        }
        for (const SignalDifference& each : difference.signals) {
            PrintSignal(each);
        }
        PrintMoved(OfMessage, "order of signals", difference.movedSignals, report.after.signals);
    }

    void PrintSignal(const SignalDifference& difference) {
        const Pair pair = difference.signal;
        if (pair.after == Nowhere) {
            Line(OfMessage, '-', SignalLine(report.before, report.before.signals[pair.before]));
            return;
        }
        const SignalFacts& after = report.after.signals[pair.after];
        if (pair.before == Nowhere) {
            Line(OfMessage, '+', SignalLine(report.after, after));
            return;
        }
        const SignalFacts& before = report.before.signals[pair.before];
        Line(OfMessage, '~', Visible(report.after.Text(after.name)));
        for (const AspectRow& row : AspectRows()) {
            if (!difference.aspects.Has(row.aspect)) {
                continue;
            }
            if (row.aspect == Aspect::Receivers) {
                PrintReceivers(before, after);
            } else if (row.aspect == Aspect::Values) {
                PrintDescriptions(before, after);
            } else {
                Changed(OfSignal, row.label, SignalText(report.before, before, row.aspect),
                        SignalText(report.after, after, row.aspect));
            }
        }
    }

    void PrintReceivers(const SignalFacts& before, const SignalFacts& after) {
        const std::vector<std::string_view> old = ReceiversOf(report.before, before);
        const std::vector<std::string_view> now = ReceiversOf(report.after, after);
        std::string line(RowOf(Aspect::Receivers).label);
        line += ":";
        const auto add = [&line](char mark, const auto& names, const auto& others) {
            for (const std::string_view name : names) {
                if (!std::binary_search(others.begin(), others.end(), name)) {
                    line += Format(" {}{}", mark, Visible(name));
                }
            }
        };
        add('-', old, now);
        add('+', now, old);
        Line(OfSignal, '~', line);
    }

    void PrintDescriptions(const SignalFacts& before, const SignalFacts& after) {
        for (const DescriptionDifference& each :
             CompareDescriptions(report.before, before, report.after, after)) {
            const std::int32_t value =
                each.before != nullptr ? each.before->value : each.after->value;
            const std::string label = Format("{} {}", RowOf(Aspect::Values).label, value);
            if (each.after == nullptr) {
                Line(OfSignal, '-', label + " " + Quoted(report.before.Text(each.before->text)));
            } else if (each.before == nullptr) {
                Line(OfSignal, '+', label + " " + Quoted(report.after.Text(each.after->text)));
            } else {
                Changed(OfSignal, label, Quoted(report.before.Text(each.before->text)),
                        Quoted(report.after.Text(each.after->text)));
            }
        }
    }

    template <typename Facts>
    void PrintMoved(std::size_t level, std::string_view label,
                    const std::vector<std::uint32_t>& moved, const std::vector<Facts>& all) {
        if (moved.empty()) {
            return;
        }
        std::string line = Format("{}: ", label);
        const std::size_t shown = std::min(moved.size(), MostNames);
        for (std::size_t index = 0; index < shown; ++index) {
            line += index == 0 ? "" : ", ";
            line += Visible(report.after.Text(all[moved[index]].name));
        }
        if (shown != moved.size()) {
            line += Format(" and {} more", moved.size() - shown);
        }
        Line(level, '~', line + " moved");
    }

    void Changed(std::size_t level, std::string_view label, const std::string& before,
                 const std::string& after) {
        const std::string line = Format("{}: {} -> {}", label, before, after);
        if (level * Indent + line.size() <= MostColumns) {
            Line(level, '~', line);
            return;
        }
        Line(level, '~', Format("{}:", label));
        Line(level + 1, '-', before);
        Line(level + 1, '+', after);
    }

    void Line(std::size_t level, char mark, const std::string& text) {
        const Colour colour = mark == '-'   ? Colour::Red
                              : mark == '+' ? Colour::Green
                                            : Colour::Yellow;
        stream << std::string(level * Indent, ' ');
        if (!isColoured) {
            stream << mark << ' ' << text << '\n';
        } else if (colour == Colour::Yellow) {
            stream << InColour(std::string(1, mark), colour) << ' ' << text << '\n';
        } else {
            stream << InColour(mark + (" " + text), colour) << '\n';
        }
    }

    std::ostream& stream;
    const DiffReport& report;
    bool isColoured;
};

}  // namespace

void PrintDiff(std::ostream& out, const DiffReport& report, bool inColour) {
    Printer(out, report, inColour).Run();
}

void PrintSameMeaning(std::ostream& out, const DiffReport& report) {
    out << NamesOf(report) << ": equal in meaning\n";
}

}  // namespace vexil::tool
