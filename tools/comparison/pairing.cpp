// Finds the longest increasing subsequence; the other pairs have moved.
// SPDX-License-Identifier: MIT
#include "comparison/pairing.h"

namespace vexil::tool {

std::vector<std::uint32_t> FindMoved(const std::vector<Pair>& pairs) {
    const auto none = static_cast<std::uint32_t>(pairs.size());
    // The ends of the rising sequences of each length: that with the lowest last element.
    std::vector<std::uint32_t> ends;
    std::vector<std::uint32_t> previous(pairs.size(), none);
    for (std::uint32_t at = 0; at < none; ++at) {
        if (!pairs[at].IsInBoth()) {
            continue;
        }
        const auto end = std::partition_point(
            ends.begin(), ends.end(),
            [&pairs, at](std::uint32_t each) { return pairs[each].before < pairs[at].before; });
        if (end != ends.begin()) {
            previous[at] = *(end - 1);
        }
        if (end == ends.end()) {
            ends.push_back(at);
        } else {
            *end = at;
        }
    }
    std::vector<bool> isInPlace(pairs.size(), false);
    for (std::uint32_t at = ends.empty() ? none : ends.back(); at != none; at = previous[at]) {
        isInPlace[at] = true;
    }
    std::vector<std::uint32_t> moved;
    for (std::uint32_t at = 0; at < none; ++at) {
        if (pairs[at].IsInBoth() && !isInPlace[at]) {
            moved.push_back(pairs[at].after);
        }
    }
    return moved;
}

}  // namespace vexil::tool
