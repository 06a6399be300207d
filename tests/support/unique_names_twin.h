// Making signal names unique, in plain steps and with every pair compared: slower than the library,
// and each step to be seen on its own.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <set>
#include <string>
#include <vector>

namespace vexil::test {

struct TwinSignal {
    std::string name;
    bool hasNameSuffix = false;

    friend bool operator==(const TwinSignal&, const TwinSignal&) = default;
};

inline void TwinAddUniqueSuffix(TwinSignal& signal, std::size_t index) {
    if (index >= 10000) {
        return;
    }
    std::string suffix = "_0000";
    std::size_t at = 4;
    for (std::size_t rest = index; rest != 0; rest /= 10) {
        suffix[at--] = static_cast<char>('0' + rest % 10);
    }
    if (signal.hasNameSuffix) {
        signal.name.replace(signal.name.size() - 5, 5, suffix);
    } else if (signal.name.size() + 5 < 33) {
        signal.name += suffix;
    } else {
        signal.name = signal.name.substr(0, 27) + suffix;
    }
    signal.hasNameSuffix = true;
}

inline std::string TwinBaseName(const TwinSignal& signal) {
    return signal.name.substr(0, signal.name.size() - (signal.hasNameSuffix ? 5 : 0));
}

// Returns whether it found a duplicate.
inline bool TwinMakeSignalNamesUnique(std::vector<TwinSignal>& signals) {
    bool foundDuplicate = false;
    std::set<std::size_t> dealtWith;
    for (std::size_t i = 0; i < signals.size(); ++i) {
        if (dealtWith.count(i) != 0) {
            continue;
        }
        std::size_t duplicates = 0;
        for (std::size_t j = i + 1; j < signals.size(); ++j) {
            if (TwinBaseName(signals[i]) == TwinBaseName(signals[j])) {
                ++duplicates;
                TwinAddUniqueSuffix(signals[j], duplicates);
                dealtWith.insert(j);
            }
        }
        if (duplicates != 0) {
            foundDuplicate = true;
            TwinAddUniqueSuffix(signals[i], 0);
            dealtWith.insert(i);
        }
    }
    return foundDuplicate;
}

}  // namespace vexil::test
