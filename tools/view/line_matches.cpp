// Finds matching lines. Equal lines at both ends are paired directly, lines that only one text has
// are left out, and dtl compares the rest. The rest is long only if lines were reordered.
// SPDX-License-Identifier: MIT
#include "view/line_matches.h"

#include <algorithm>
#include <dtl/dtl.hpp>
#include <unordered_map>

namespace vexil::tool {
namespace {

using Indexes = std::vector<std::size_t>;
using Lines = std::vector<std::string_view>;

// Maps equal lines to equal numbers, which are cheap to copy and compare.
class Numbers {
  public:
    int Of(std::string_view line) {
        return numbers.try_emplace(line, static_cast<int>(numbers.size())).first->second;
    }

  private:
    std::unordered_map<std::string_view, int> numbers;
};

std::vector<int> NumbersOf(const Lines& lines, Numbers& numbers) {
    std::vector<int> out;
    out.reserve(lines.size());
    for (const std::string_view line : lines) {
        out.push_back(numbers.Of(line));
    }
    return out;
}

// Returns the indexes from first to last of the lines that the other text also has.
Indexes Shared(const std::vector<int>& lines, std::size_t first, std::size_t last,
               const std::vector<int>& other) {
    const int largest = other.empty() ? -1 : *std::max_element(other.begin(), other.end());
    std::vector<bool> isThere(static_cast<std::size_t>(largest + 1));
    for (const int number : other) {
        isThere[static_cast<std::size_t>(number)] = true;
    }
    Indexes shared;
    for (std::size_t at = first; at < last; ++at) {
        const auto number = static_cast<std::size_t>(lines[at]);
        if (number < isThere.size() && isThere[number]) {
            shared.push_back(at);
        }
    }
    return shared;
}

std::vector<int> Picked(const std::vector<int>& lines, const Indexes& indexes) {
    std::vector<int> picked;
    picked.reserve(indexes.size());
    for (const std::size_t index : indexes) {
        picked.push_back(lines[index]);
    }
    return picked;
}

// Appends the matches among the selected lines.
void Compare(const std::vector<int>& before, const Indexes& beforeIndexes,
             const std::vector<int>& after, const Indexes& afterIndexes,
             std::vector<LineMatch>& matches) {
    dtl::Diff<int, std::vector<int>> diff(Picked(before, beforeIndexes),
                                          Picked(after, afterIndexes));
    diff.compose();
    // Counts lines itself, because dtl restarts its numbers in each part of a long comparison.
    std::size_t atBefore = 0;
    std::size_t atAfter = 0;
    for (const auto& [number, info] : diff.getSes().getSequence()) {
        if (info.type == dtl::SES_COMMON) {
            matches.push_back({beforeIndexes[atBefore], afterIndexes[atAfter]});
        }
        atBefore += info.type == dtl::SES_ADD ? 0 : 1;
        atAfter += info.type == dtl::SES_DELETE ? 0 : 1;
    }
}

}  // namespace

Lines LinesOf(std::string_view text) {
    Lines lines;
    while (!text.empty()) {
        const std::size_t size = std::min(text.find('\n'), text.size() - 1) + 1;
        lines.push_back(text.substr(0, size));
        text.remove_prefix(size);
    }
    return lines;
}

std::vector<LineMatch> MatchLines(const Lines& before, const Lines& after) {
    Numbers numbers;
    const std::vector<int> left = NumbersOf(before, numbers);
    const std::vector<int> right = NumbersOf(after, numbers);
    const std::size_t least = std::min(left.size(), right.size());
    const auto first = static_cast<std::size_t>(
        std::mismatch(left.begin(), left.end(), right.begin(), right.end()).first - left.begin());
    std::size_t tail = 0;
    while (tail < least - first && left[left.size() - 1 - tail] == right[right.size() - 1 - tail]) {
        ++tail;
    }

    std::vector<LineMatch> matches;
    for (std::size_t at = 0; at < first; ++at) {
        matches.push_back({at, at});
    }
    Compare(left, Shared(left, first, left.size() - tail, right), right,
            Shared(right, first, right.size() - tail, left), matches);
    for (; tail != 0; --tail) {
        matches.push_back({left.size() - tail, right.size() - tail});
    }
    return matches;
}

}  // namespace vexil::tool
