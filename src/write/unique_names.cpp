// The pass in front of a write that makes the signal names of a message unique.
//
// Signals of one base name get numbered suffixes in the model, for good: "_0000" the first, "_0001"
// the next. A base name is the name without such a suffix, so a second pass numbers them the same
// again. Kept on purpose: names that are cut to make room may meet those of another group; the next
// pass sees one group then.
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

using SignalList = std::vector<std::shared_ptr<CANSignal>>;

bool HasDuplicates(const SignalList& signals) {
    std::vector<std::string_view> names;
    names.reserve(signals.size());
    for (const auto& signal : signals) {
        names.push_back(signal->BaseName());
    }
    std::sort(names.begin(), names.end());
    return std::adjacent_find(names.begin(), names.end()) != names.end();
}

// The signals of a message by their base names, which change where a name is cut.
class BaseNameGroups {
  public:
    explicit BaseNameGroups(const SignalList& messageSignals) : signals(messageSignals) {
        for (std::size_t at = 0; at < signals.size(); ++at) {
            groups[std::string(signals[at]->BaseName())].insert(at);
        }
    }

    // The positions behind at of the signals that share the base name of the one at at.
    std::vector<std::size_t> DuplicatesBehind(std::size_t at) const {
        const std::set<std::size_t>& group = groups.find(signals[at]->BaseName())->second;
        return {group.upper_bound(at), group.end()};
    }

    void AddSuffix(std::size_t at, std::uint32_t number) {
        signals[at]->AddUniqueSuffix(number);
        // Where the name was cut it belongs to another group. That it stays in the first one does
        // not show: all behind who asks are numbered, so nobody asks for a group twice.
        groups[std::string(signals[at]->BaseName())].insert(at);
    }

  private:
    const SignalList& signals;
    std::map<std::string, std::set<std::size_t>, std::less<>> groups;
};

}  // namespace

// Signals are taken in their order. One that has no suffix from this pass gives numbers to all
// behind it that share its base name at that time, also to those that have one already.
// NOLINTNEXTLINE(readability-make-member-function-const): it changes the signals of the message
bool CANMessage::MakeSignalNamesUnique() {
    if (!HasDuplicates(signals)) {
        return false;
    }
    BaseNameGroups groups(signals);
    std::vector<bool> done(signals.size());
    for (std::size_t i = 0; i < signals.size(); ++i) {
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

bool CANSignal::AddUniqueSuffix(std::uint32_t index) {
    if (index >= MaxSignalsPerMessage || isEmpty) {
        return false;
    }
    const std::string digits = std::to_string(index);
    std::string suffix(SuffixPattern);
    suffix.replace(suffix.size() - digits.size(), digits.size(), digits);
    name = std::string(BaseName().substr(0, MaxIdentifierLength - suffix.size())).append(suffix);
    hasNameSuffix = true;
    return true;
}

}  // namespace vexil
