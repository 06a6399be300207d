// Writes the counts, then the places of each cause.
// SPDX-License-Identifier: MIT
#include "view/text_report.h"

#include <algorithm>
#include <map>
#include <ostream>
#include <string>

#include "account/lexical.h"
#include "format/format.h"
#include "view/colour.h"

namespace vexil::tool {
namespace {

// The most places of one cause that are listed without --all.
constexpr std::size_t MostPlaces = 10;

// The most names of attributes and nodes that are listed without --all.
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
        : stream(out), checkReport(report), viewOptions(view) {}

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
        const auto counts = checkReport.account.CountsByFate();
        const std::size_t total = checkReport.account.statements.size();
        std::string line =
            Format("{}: {} statement{}", checkReport.name, total, total == 1 ? "" : "s");
        std::string_view separator = ": ";
        for (const Fate fate : AllFates) {
            const std::size_t count = counts[static_cast<std::size_t>(fate)];
            if (count != 0) {
                line += separator;
                line += Coloured(Format("{} {}", count, NameOf(fate)), ColourOf(fate));
                separator = ", ";
            }
        }
        stream << line << '\n';
    }

    // Lists statements and findings. Kept and ignored statements are listed only on request.
    std::map<Cause, std::vector<Place>> PlacesByCause() const {
        std::map<Cause, std::vector<Place>> places;
        for (const AccountedStatement& each : checkReport.account.statements) {
            const Fate fate = FateOf(each.cause);
            if (viewOptions.all || (fate != Fate::Kept && fate != Fate::Ignored)) {
                places[each.cause].push_back({each.line, each.column, each.text, each.detail});
            }
        }
        for (const auto* findings :
             {&checkReport.account.fileFindings, &checkReport.layoutFindings}) {
            for (const Finding& each : *findings) {
                places[each.cause].push_back({each.line, each.column, {}, each.detail});
            }
        }
        return places;
    }

    void PrintCause(Cause cause, const std::vector<Place>& places) {
        const CauseRow& row = RowOf(cause);
        const std::string head = row.scope == Scope::Statement
                                     ? Format("{}, {}", NameOf(row.fate), row.name)
                                     : std::string(row.name);
        stream << '\n'
               << Coloured(head, ColourOf(row.fate)) << ": " << places.size() << " - "
               << row.summary << '\n';
        const std::size_t shown =
            viewOptions.all ? places.size() : std::min(places.size(), MostPlaces);
        for (std::size_t index = 0; index < shown; ++index) {
            PrintPlace(places[index]);
        }
        if (shown != places.size()) {
            stream << "  and " << places.size() - shown << " more; --all lists them\n";
        }
    }

    void PrintPlace(const Place& place) {
        std::string line = "  ";
        if (place.line != 0) {
            line += Format("{}:{}: ", place.line, place.column);
        }
        line += Shown(place.text);
        if (!place.detail.empty()) {
            line += place.text.empty() ? "" : "\n      ";
            line += place.detail;
        }
        if (!place.detail.empty() || place.line != 0) {
            stream << line << '\n';
        }
    }

    // Lists ignored statements by kind, and by name if the detail is a name.
    void PrintIgnored() {
        std::map<Cause, std::map<std::string_view, std::size_t>> kinds;
        for (const AccountedStatement& each : checkReport.account.statements) {
            if (FateOf(each.cause) == Fate::Ignored) {
                ++kinds[each.cause][each.detail];
            }
        }
        if (!kinds.empty()) {
            stream << "\nignored, since it is never kept:\n";
        }
        for (const auto& [cause, names] : kinds) {
            std::size_t total = 0;
            for (const auto& [name, count] : names) {
                total += count;
            }
            stream << "  " << total << ' ' << NameOf(cause) << NamesOf(names) << '\n';
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
            if (shown == MostNames && !viewOptions.all) {
                return line + Format(" and {} more names", sorted.size() - shown);
            }
            line += Format("{}{} {}", shown == 0 ? ": " : ", ", Shown(name), count);
            ++shown;
        }
        return line;
    }

    std::string Coloured(std::string_view text, Colour colour) const {
        return viewOptions.colour ? InColour(text, colour) : std::string(text);
    }

    std::ostream& stream;
    const CheckReport& checkReport;
    const CheckView& viewOptions;
};

}  // namespace

void PrintText(std::ostream& out, const CheckReport& report, const CheckView& view) {
    Printer(out, report, view).Run();
}

}  // namespace vexil::tool
