// Counts, then the places of each cause.
// SPDX-License-Identifier: MIT
#include "view/text_report.h"

#include <fmt/format.h>

#include <algorithm>
#include <map>
#include <ostream>
#include <string>

#include "account/lexical.h"
#include "view/colour.h"

namespace vexil::tool {
namespace {

// Places of one cause that are shown without --all.
constexpr std::size_t MostPlaces = 10;

// Names of attributes and nodes that are shown without --all.
constexpr std::size_t MostNames = 6;

struct Place {
    std::uint32_t line;
    std::uint32_t column;
    std::string_view text;
    std::string_view detail;
};

Colour ColourOf(Fate fate) {
    switch (fate) {
        case Fate::Refused:
        case Fate::Dropped:
            return Colour::Red;
        case Fate::Changed:
            return Colour::Yellow;
        default:
            return Colour::None;
    }
}

class Printer {
  public:
    Printer(std::ostream& out, const CheckReport& report, const CheckView& view)
        : out_(out), report_(report), view_(view) {}

    void Run() {
        PrintSummary();
        std::map<Cause, std::vector<Place>> places = PlacesByCause();
        for (const auto& [cause, each] : places) {
            PrintCause(cause, each);
        }
        PrintIgnored();
    }

  private:
    void PrintSummary() {
        const auto counts = report_.account.CountsByFate();
        const std::size_t total = report_.account.statements.size();
        std::string line =
            fmt::format("{}: {} statement{}", report_.name, total, total == 1 ? "" : "s");
        std::string_view separator = ": ";
        for (const Fate fate : AllFates) {
            const std::size_t count = counts[static_cast<std::size_t>(fate)];
            if (count != 0) {
                line += separator;
                line += Coloured(fmt::format("{} {}", count, NameOf(fate)), ColourOf(fate));
                separator = ", ";
            }
        }
        out_ << line << '\n';
    }

    // What is shown of the statements and of the file. The statements that were kept or ignored are
    // shown only on request.
    std::map<Cause, std::vector<Place>> PlacesByCause() const {
        std::map<Cause, std::vector<Place>> places;
        for (const AccountedStatement& each : report_.account.statements) {
            const Fate fate = FateOf(each.cause);
            if (view_.all || (fate != Fate::Kept && fate != Fate::Ignored)) {
                places[each.cause].push_back({each.line, each.column, each.text, each.detail});
            }
        }
        for (const auto* findings : {&report_.account.fileFindings, &report_.layoutFindings}) {
            for (const Finding& each : *findings) {
                places[each.cause].push_back({each.line, each.column, {}, each.detail});
            }
        }
        return places;
    }

    void PrintCause(Cause cause, const std::vector<Place>& places) {
        const CauseRow& row = RowOf(cause);
        const std::string head = row.scope == Scope::Statement
                                     ? fmt::format("{}, {}", NameOf(row.fate), row.name)
                                     : std::string(row.name);
        out_ << '\n'
             << Coloured(head, ColourOf(row.fate)) << ": " << places.size() << " - " << row.summary
             << '\n';
        const std::size_t shown = view_.all ? places.size() : std::min(places.size(), MostPlaces);
        for (std::size_t index = 0; index < shown; ++index) {
            PrintPlace(places[index]);
        }
        if (shown != places.size()) {
            out_ << "  and " << places.size() - shown << " more; --all lists them\n";
        }
    }

    void PrintPlace(const Place& place) {
        std::string line = "  ";
        if (place.line != 0) {
            line += fmt::format("{}:{}: ", place.line, place.column);
        }
        line += Shown(place.text);
        if (!place.detail.empty()) {
            line += place.text.empty() ? "" : "\n      ";
            line += place.detail;
        }
        if (!place.detail.empty() || place.line != 0) {
            out_ << line << '\n';
        }
    }

    // By kind, and by name where the detail is one.
    void PrintIgnored() {
        std::map<Cause, std::map<std::string_view, std::size_t>> kinds;
        for (const AccountedStatement& each : report_.account.statements) {
            if (FateOf(each.cause) == Fate::Ignored) {
                ++kinds[each.cause][each.detail];
            }
        }
        if (!kinds.empty()) {
            out_ << "\nignored, since it is never kept:\n";
        }
        for (const auto& [cause, names] : kinds) {
            std::size_t total = 0;
            for (const auto& [name, count] : names) {
                total += count;
            }
            out_ << "  " << total << ' ' << NameOf(cause) << NamesOf(names) << '\n';
        }
    }

    std::string NamesOf(const std::map<std::string_view, std::size_t>& names) const {
        std::vector<std::pair<std::string_view, std::size_t>> sorted(names.begin(), names.end());
        std::stable_sort(sorted.begin(), sorted.end(), [](const auto& one, const auto& other) {
            return one.second > other.second;
        });
        std::string line;
        std::size_t shown = 0;
        for (const auto& [name, count] : sorted) {
            if (name.empty()) {
                continue;
            }
            if (shown == MostNames && !view_.all) {
                return line + fmt::format(" and {} more names", sorted.size() - shown);
            }
            line += fmt::format("{}{} {}", shown == 0 ? ": " : ", ", Shown(name), count);
            ++shown;
        }
        return line;
    }

    std::string Coloured(std::string_view text, Colour colour) const {
        return view_.colour ? InColour(text, colour) : std::string(text);
    }

    std::ostream& out_;
    const CheckReport& report_;
    const CheckView& view_;
};

}  // namespace

void PrintText(std::ostream& out, const CheckReport& report, const CheckView& view) {
    Printer(out, report, view).Run();
}

}  // namespace vexil::tool
