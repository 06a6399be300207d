// Converts matches to hunks, and hunks to text in the unified format.
// SPDX-License-Identifier: MIT
#include "view/unified_diff.h"

#include <algorithm>
#include <vector>

#include "view/line_matches.h"

namespace vexil::tool {
namespace {

constexpr std::size_t Context = 3;

using Lines = std::vector<std::string_view>;

// A range of lines in both texts that differ; the ends are exclusive.
struct Change {
    LineMatch first;
    LineMatch last;
};

std::vector<Change> ChangesBetween(std::vector<LineMatch> matches, const LineMatch& end) {
    matches.push_back(end);
    std::vector<Change> changes;
    LineMatch next;
    for (const LineMatch& match : matches) {
        if (match.before != next.before || match.after != next.after) {
            changes.push_back({next, match});
        }
        next = {match.before + 1, match.after + 1};
    }
    return changes;
}

// Returns the range of a hunk in one text. An empty range has the number of the line before it.
std::string RangeText(std::size_t first, std::size_t last) {
    const std::size_t count = last - first;
    const std::string start = std::to_string(count == 0 ? first : first + 1);
    return count == 1 ? start : start + "," + std::to_string(count);
}

void AppendLines(std::string& out, char mark, const Lines& lines, std::size_t first,
                 std::size_t last) {
    for (std::size_t at = first; at < last; ++at) {
        out += mark;
        out += lines[at];
        if (!lines[at].ends_with('\n')) {
            out += "\n\\ No newline at end of file\n";
        }
    }
}

class Hunks {
  public:
    Hunks(const DiffSide& beforeSide, const DiffSide& afterSide)
        : before(LinesOf(beforeSide.text)), after(LinesOf(afterSide.text)) {}

    std::string Text() const {
        const std::vector<Change> changes =
            ChangesBetween(MatchLines(before, after), {before.size(), after.size()});
        std::string out;
        auto first = changes.begin();
        while (first != changes.end()) {
            // Changes with adjacent contexts become one hunk.
            auto last = first + 1;
            while (last != changes.end() &&
                   last->first.before - (last - 1)->last.before <= 2 * Context) {
                ++last;
            }
            Append(out, {first, last});
            first = last;
        }
        return out;
    }

  private:
    struct Range {
        std::vector<Change>::const_iterator first;
        std::vector<Change>::const_iterator last;
    };

    void Append(std::string& out, const Range& range) const {
        const Change& first = *range.first;
        const Change& last = *(range.last - 1);
        const std::size_t lead = std::min(Context, first.first.before);
        const std::size_t trail = std::min(Context, before.size() - last.last.before);
        out += "@@ -" + RangeText(first.first.before - lead, last.last.before + trail) + " +" +
               RangeText(first.first.after - lead, last.last.after + trail) + " @@\n";
        std::size_t at = first.first.before - lead;
        for (auto change = range.first; change != range.last; ++change) {
            AppendLines(out, ' ', before, at, change->first.before);
            AppendLines(out, '-', before, change->first.before, change->last.before);
            AppendLines(out, '+', after, change->first.after, change->last.after);
            at = change->last.before;
        }
        AppendLines(out, ' ', before, at, at + trail);
    }

    Lines before;
    Lines after;
};

// Returns a name in the form that patch reads: a tab must follow a name that contains a blank.
std::string HeaderLine(std::string_view mark, std::string_view name) {
    std::string line(mark);
    line += name;
    return line + (name.find(' ') == std::string_view::npos ? "\n" : "\t\n");
}

}  // namespace

std::string UnifiedDiff(const DiffSide& before, const DiffSide& after) {
    const std::string hunks = Hunks(before, after).Text();
    return hunks.empty() ? hunks
                         : HeaderLine("--- ", before.name) + HeaderLine("+++ ", after.name) + hunks;
}

}  // namespace vexil::tool
