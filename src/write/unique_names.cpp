// The pass before a write that makes the signal names of a message unique.
//
// Signals of one base name get permanent suffixes in the model: "_0000" the first, "_0001" the
// next. A base name is the name without such a suffix, so a second pass gives the same numbers.
// Intentional: names that are cut to make room may become equal to names of another group; the next
// pass then treats them as one group.
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "frame/can_message.h"
#include "text/constants.h"

namespace vexil {
namespace {

using SignalList = ArenaList<CANSignal*>;

bool HasDuplicates(const SignalList& signals) {
    std::vector<std::string_view> names;
    names.reserve(signals.Size());
    for (const CANSignal* signal : signals) {
        names.push_back(signal->BaseName());
    }
    // By length first, which distinguishes most names.
    std::sort(names.begin(), names.end(), [](std::string_view a, std::string_view b) {
        return a.size() != b.size() ? a.size() < b.size() : a < b;
    });
    return std::adjacent_find(names.begin(), names.end()) != names.end();
}

// The signals of a message by their base names, which change where a name is cut.
class BaseNameGroups {
  public:
    BaseNameGroups(Arena& nameArena, const SignalList& messageSignals)
        : arena(nameArena), signals(messageSignals) {
        for (std::size_t at = 0; at < signals.Size(); ++at) {
            groups[std::string(signals[at]->BaseName())].insert(at);
        }
    }

    // The positions after at of the signals that share the base name of the signal at at.
    std::vector<std::size_t> DuplicatesBehind(std::size_t at) const {
        const std::set<std::size_t>& group = groups.find(signals[at]->BaseName())->second;
        return {group.upper_bound(at), group.end()};
    }

    void AddSuffix(std::size_t at, std::uint32_t number) {
        signals[at]->AddUniqueSuffix(arena, number);
        // If the name was cut, it belongs to another group. It also stays in its first group, which
        // has no effect: a group is requested only once, and all its later signals get numbers.
        groups[std::string(signals[at]->BaseName())].insert(at);
    }

  private:
    Arena& arena;
    const SignalList& signals;
    std::map<std::string, std::set<std::size_t>, std::less<>> groups;
};

}  // namespace

// Processes signals in order. A signal without a suffix from this pass numbers all later signals
// that share its base name at that time, including those that have a number already.
// NOLINTNEXTLINE(readability-make-member-function-const): it changes the signals of the message
bool CANMessage::MakeSignalNamesUnique(Arena& arena) {
    if (!HasDuplicates(signals)) {
        return false;
    }
    BaseNameGroups groups(arena, signals);
    std::vector<bool> done(signals.Size());
    for (std::size_t i = 0; i < signals.Size(); ++i) {
        if (done[i]) {
            continue;
        }
        std::uint32_t number = 0;
        for (const std::size_t j : groups.DuplicatesBehind(i)) {
            groups.AddSuffix(j, ++number);
            done[j] = true;
        }
        if (number != 0) {
            groups.AddSuffix(i, 0);
        }
    }
    return true;
}

std::string_view CANSignal::BaseName() const {
    std::string_view base = name;
    base.remove_suffix(hasNameSuffix ? SuffixPattern.size() : 0);
    return base;
}

bool CANSignal::AddUniqueSuffix(Arena& arena, std::uint32_t index) {
    if (index >= MaxSignalsPerMessage) {
        return false;
    }
    if (!hasNameSuffix) {
        const std::string_view base = name.substr(0, MaxIdentifierLength - SuffixPattern.size());
        name = arena.Keep(std::string(base).append(SuffixPattern));
        hasNameSuffix = true;
    }
    // In place, so that another write needs no more memory.
    char* digit = Arena::Characters(name) + name.size();
    for (std::size_t place = 1; place < SuffixPattern.size(); ++place) {
        *--digit = static_cast<char>('0' + index % 10);
        index /= 10;
    }
    return true;
}

}  // namespace vexil
