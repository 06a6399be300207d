// Descriptions: parsing statements, and sorting by value.
// SPDX-License-Identifier: MIT
#include "frame/descriptions.h"

#include <algorithm>

#include "text/lexical.h"

namespace vexil {
namespace {

constexpr std::string_view Separator = " - ";

// How many were appended after earlier, or in total if it is null; npos if earlier is not found.
std::size_t CountNewer(const AddedDescription* newest, const AddedDescription* earlier) {
    std::size_t count = 0;
    for (; newest != earlier; newest = newest->earlier, ++count) {
        if (newest == nullptr) {
            return npos;
        }
    }
    return count;
}

}  // namespace

void Descriptions::LookAt(const Notes& notes) {
    const std::size_t newer = IsOf(notes) ? CountNewer(notes.added, added) : npos;
    if (newer == 0) {
        return;
    }
    isValid = false;
    if (newer == npos) {
        pairs.clear();
        runs.clear();
        sortedCount = 0;
        for (const Note* note = notes.statements; note != nullptr; note = note->next) {
            AddStatement(note->text);
        }
    }
    AddAppended(notes.added, newer == npos ? CountNewer(notes.added, nullptr) : newer);
    Sort();
    statements = notes.statements;
    added = notes.added;
    owner = &notes;
    isValid = true;
}

std::string_view Descriptions::Text(std::size_t position, LineBuffer& scratch,
                                    std::size_t enough) const {
    std::size_t at = runs[position];
    const std::size_t end = RunEnd(position);
    if (at + 1 == end) {
        return pairs[at].text;
    }
    scratch.Clear();
    scratch.Append(pairs[at].text);
    while (++at < end && scratch.Size() < enough) {
        scratch.Append(Separator, pairs[at].text);
    }
    return scratch.Text();
}

void Descriptions::Clear() noexcept {
    *this = Descriptions();
}

// Adds the pairs of a number and a quoted text. Intentional: text that is not a number does not end
// the list. The search continues after the opening quote that follows it, so that later texts pair
// with wrong values.
void Descriptions::AddStatement(std::string_view text) {
    Position quote = npos;
    for (Position next = 0; next < text.size(); next = quote + 1) {
        // A number ends before the quote.
        std::int32_t value = 0;
        const bool isNumber = TryParseI32(text.substr(next), value);
        TextUpToChar(text, next, '"', quote);
        if (isNumber && quote != npos) {
            const Position start = quote + 1;
            quote = text.find('"', start);
            const Position end = quote == npos ? start : quote;
            pairs.push_back({value, text.substr(start, end - start)});
        }
        if (quote == npos) {
            return;
        }
    }
}

// Adds the last count appended descriptions, the oldest of them first.
void Descriptions::AddAppended(const AddedDescription* newest, std::size_t count) {
    pairs.resize(pairs.size() + count);
    for (auto pair = pairs.rbegin(); count > 0; ++pair, --count) {
        *pair = {newest->value, newest->text};
        newest = newest->earlier;
    }
}

void Descriptions::Sort() {
    const auto byValue = [](const Pair& a, const Pair& b) { return a.value < b.value; };
    CountSorted();
    if (sortedCount < pairs.size()) {
        const auto middle = pairs.begin() + static_cast<std::ptrdiff_t>(sortedCount);
        std::stable_sort(middle, pairs.end(), byValue);
        std::inplace_merge(pairs.begin(), middle, pairs.end(), byValue);
        runs.clear();
        sortedCount = 0;
        CountSorted();
    }
}

// Advances over the pairs while they are in order, and records where each value begins.
void Descriptions::CountSorted() {
    const std::size_t start = sortedCount;
    for (std::size_t at = start; at < pairs.size(); ++at) {
        const std::int32_t value = pairs[at].value;
        if (at == 0 || value > pairs[at - 1].value) {
            runs.push_back(at);
        } else if (value < pairs[at - 1].value) {
            break;
        }
        sortedCount = at + 1;
    }
}

}  // namespace vexil
