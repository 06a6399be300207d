// The account of a file in a report: how many statements have each fate, and where each cause was
// found.
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <map>
#include <string>

#include "account/lexical.h"
#include "view/report_values.h"

namespace vexil::tool {
namespace {

// Places of one cause that are shown. Files have many statements that are never kept, such as
// attributes, and few readers ask for each of them.
constexpr std::size_t MostPlaces = 100;
constexpr std::size_t MostIgnoredPlaces = 20;

struct CausePlaces {
    std::size_t count = 0;
    TemplateValues::List places;
};

class AccountReader {
  public:
    AccountReader(const Account& account, const std::vector<Finding>& layoutFindings,
                  TemplateValues& out)
        : accounted(account), layout(layoutFindings), values(out) {}

    void Run() {
        SetFates();
        for (const AccountedStatement& each : accounted.statements) {
            if (FateOf(each.cause) != Fate::Kept) {
                AddPlace(each.cause, each.line, each.column, Shown(each.text), each.detail);
            }
        }
        for (const auto* findings : {&accounted.fileFindings, &layout}) {
            for (const Finding& each : *findings) {
                AddPlace(each.cause, each.line, each.column, "", each.detail);
            }
        }
        SetCauses();
    }

  private:
    void SetFates() {
        const auto counts = accounted.CountsByFate();
        TemplateValues::List fates;
        for (const Fate fate : AllFates) {
            TemplateValues row;
            row.Set("fate", std::string(NameOf(fate)));
            row.Set("fateCount", std::to_string(counts[static_cast<std::size_t>(fate)]));
            fates.push_back(std::move(row));
        }
        values.Set("statementCount", std::to_string(accounted.statements.size()));
        values.Set("fates", std::move(fates));
    }

    void AddPlace(Cause cause, std::uint32_t line, std::uint32_t column, std::string text,
                  std::string detail) {
        CausePlaces& found = causes[cause];
        const bool isIgnored = FateOf(cause) == Fate::Ignored;
        if (found.count++ >= (isIgnored ? MostIgnoredPlaces : MostPlaces)) {
            return;
        }
        TemplateValues row;
        row.Set("place", line == 0 ? "" : std::to_string(line) + ":" + std::to_string(column));
        row.Set("statement", std::move(text));
        row.Set("detail", std::move(detail));
        found.places.push_back(std::move(row));
    }

    void SetCauses() {
        TemplateValues::List rows;
        for (auto& [cause, found] : causes) {
            const CauseRow& facts = RowOf(cause);
            const std::size_t more = found.count - found.places.size();
            TemplateValues row;
            row.Set("cause", std::string(facts.name));
            row.Set("kind", KindOf(facts));
            row.Set("causeCount", std::to_string(found.count));
            row.Set("summary", std::string(facts.summary));
            row.Set("remedy", std::string(facts.remedy));
            row.Set("places", std::move(found.places));
            row.Set("more", more == 0 ? "" : std::to_string(more));
            rows.push_back(std::move(row));
        }
        values.Set("causes", std::move(rows));
    }

    // The fate of a statement, or what else the cause is about.
    static std::string KindOf(const CauseRow& row) {
        switch (row.scope) {
            case Scope::File:
                return "file";
            case Scope::Layout:
                return "layout";
            default:
                return std::string(NameOf(row.fate));
        }
    }

    const Account& accounted;
    const std::vector<Finding>& layout;
    TemplateValues& values;
    std::map<Cause, CausePlaces> causes;
};

}  // namespace

void AddAccountValues(const Account& account, const std::vector<Finding>& layoutFindings,
                      TemplateValues& values) {
    AccountReader(account, layoutFindings, values).Run();
}

}  // namespace vexil::tool
