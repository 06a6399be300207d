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
    bool isEmpty = false;

    friend bool operator==(const TwinSignal&, const TwinSignal&) = default;
};

inline bool TwinAddUniqueSuffix(TwinSignal& signal, std::size_t index) {
    if (index >= 10000 || signal.isEmpty) {
        return false;
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
    return true;
}

inline bool TwinSameBaseName(const TwinSignal& a, const TwinSignal& b) {
    if (!a.hasNameSuffix && !b.hasNameSuffix) {
        return a.name == b.name;
    }
    const std::size_t sizeOfA = a.name.size() - (a.hasNameSuffix ? 5 : 0);
    const std::size_t sizeOfB = b.name.size() - (b.hasNameSuffix ? 5 : 0);
    return sizeOfA == sizeOfB && a.name.substr(0, sizeOfA) == b.name.substr(0, sizeOfB);
}

// Returns whether it found a duplicate.
inline bool TwinMakeSignalNamesUnique(std::vector<TwinSignal>& signals) {
    bool foundDuplicate = false;
    std::set<std::size_t> dealtWith;
    for (std::size_t i = 0; i < signals.size(); ++i) {
        if (dealtWith.size() == signals.size()) {
            break;
        }
        if (dealtWith.count(i) != 0) {
            continue;
        }
        std::size_t duplicates = 0;
        for (std::size_t j = i + 1; j < signals.size(); ++j) {
            if (TwinSameBaseName(signals[i], signals[j])) {
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
