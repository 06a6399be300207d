// The pass in front of a write that makes the signal names of a message unique.
//
// Signals of one base name get numbered suffixes in the model, for good: "_0000" the first, "_0001"
// the next. A base name is the name without such a suffix, so a second pass numbers them the same
// again. Kept on purpose: names that are cut to make room may meet those of another group; the next
// pass sees one group then.
// SPDX-License-Identifier: MIT
#include <set>
#include <string>

#include "frame/can_message.h"
#include "text/constants.h"

namespace vexil {

bool CANMessage::MakeSignalNamesUnique() {
    bool foundDuplicate = false;
    std::set<std::size_t> done;
    for (std::size_t i = 0; i < signals.size() && done.size() < signals.size(); ++i) {
        if (done.contains(i)) {
            continue;
        }
        std::uint32_t duplicates = 0;
        for (std::size_t j = i + 1; j < signals.size(); ++j) {
            if (signals[i]->BaseName() == signals[j]->BaseName()) {
                ++duplicates;
                signals[j]->AddUniqueSuffix(duplicates);
                done.insert(j);
            }
        }
        if (duplicates != 0) {
            signals[i]->AddUniqueSuffix(0);
            done.insert(i);
            foundDuplicate = true;
        }
    }
    return foundDuplicate;
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
    name.resize(std::min(BaseName().size(), MaxIdentifierLength - suffix.size()));
    name += suffix;
    hasNameSuffix = true;
    return true;
}

}  // namespace vexil
