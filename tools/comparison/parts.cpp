// Receivers are a set, value descriptions a list in the order of the values.
// SPDX-License-Identifier: MIT
#include "comparison/parts.h"

#include <algorithm>
#include <cstddef>

namespace vexil::tool {
namespace {

const DescriptionFacts* FirstOf(const Snapshot& snapshot, const SignalFacts& signal) {
    return snapshot.descriptions.data() + signal.firstDescription;
}

}  // namespace

std::vector<std::string_view> ReceiversOf(const Snapshot& snapshot, const SignalFacts& signal) {
    std::vector<std::string_view> names;
    std::string_view list = snapshot.Text(signal.receiverList);
    while (!list.empty()) {
        const std::size_t end = std::min(list.find(','), list.size());
        if (end != 0) {
            names.push_back(list.substr(0, end));
        }
        list.remove_prefix(std::min(end + 1, list.size()));
    }
    std::sort(names.begin(), names.end());
    names.erase(std::unique(names.begin(), names.end()), names.end());
    return names;
}

std::vector<DescriptionDifference> CompareDescriptions(const Snapshot& before,
                                                       const SignalFacts& signalBefore,
                                                       const Snapshot& after,
                                                       const SignalFacts& signalAfter) {
    std::vector<DescriptionDifference> differences;
    const DescriptionFacts* left = FirstOf(before, signalBefore);
    const DescriptionFacts* right = FirstOf(after, signalAfter);
    const DescriptionFacts* const leftEnd = left + signalBefore.descriptionCount;
    const DescriptionFacts* const rightEnd = right + signalAfter.descriptionCount;
    while (left != leftEnd || right != rightEnd) {
        const bool takesLeft =
            right == rightEnd || (left != leftEnd && left->value <= right->value);
        const bool takesRight =
            left == leftEnd || (right != rightEnd && right->value <= left->value);
        const DescriptionDifference each{takesLeft ? left++ : nullptr,
                                         takesRight ? right++ : nullptr};
        if (!takesLeft || !takesRight ||
            before.Text(each.before->text) != after.Text(each.after->text)) {
            differences.push_back(each);
        }
    }
    return differences;
}

}  // namespace vexil::tool
