// Pairs the elements of two lists, and finds the pairs that have moved.
//
// Both lists are sorted by a key, so the time never grows with the product of their lengths.
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace vexil::tool {

// Means that there is no index.
inline constexpr std::uint32_t Nowhere = 0xFFFFFFFFU;

// Indexes into the two lists.
struct Pair {
    std::uint32_t before = Nowhere;
    std::uint32_t after = Nowhere;

    bool IsInBoth() const { return before != Nowhere && after != Nowhere; }

    bool operator==(const Pair&) const = default;
};

// The indexes from first on.
struct IndexRange {
    std::uint32_t first = 0;
    std::uint32_t count = 0;
};

class Pairing {
  public:
    Pairing(IndexRange before, IndexRange after)
        : unpairedBefore(AllOf(before)), unpairedAfter(AllOf(after)) {}

    // Pairs the unpaired elements that have equal keys, in their order.
    template <typename KeyBefore, typename KeyAfter>
    void PairEqual(KeyBefore keyBefore, KeyAfter keyAfter) {
        if (unpairedBefore.empty() || unpairedAfter.empty()) {
            return;
        }
        const auto before = SortedByKey(unpairedBefore, keyBefore);
        const auto after = SortedByKey(unpairedAfter, keyAfter);
        unpairedBefore.clear();
        unpairedAfter.clear();
        auto left = before.begin();
        auto right = after.begin();
        while (left != before.end() && right != after.end()) {
            if (left->first < right->first) {
                unpairedBefore.push_back((left++)->second);
            } else if (right->first < left->first) {
                unpairedAfter.push_back((right++)->second);
            } else {
                pairs.push_back({(left++)->second, (right++)->second});
            }
        }
        for (; left != before.end(); ++left) {
            unpairedBefore.push_back(left->second);
        }
        for (; right != after.end(); ++right) {
            unpairedAfter.push_back(right->second);
        }
    }

    // Returns all pairs: first the elements that are only in the first list, then all elements of
    // the second list, in its order.
    std::vector<Pair> All() const {
        std::vector<Pair> all = pairs;
        all.reserve(pairs.size() + unpairedBefore.size() + unpairedAfter.size());
        for (const std::uint32_t index : unpairedAfter) {
            all.push_back({Nowhere, index});
        }
        for (const std::uint32_t index : unpairedBefore) {
            all.push_back({index, Nowhere});
        }
        const auto rank = [](const Pair& pair) {
            return pair.after == Nowhere ? std::pair(0, pair.before) : std::pair(1, pair.after);
        };
        std::sort(all.begin(), all.end(),
                  [&rank](const Pair& one, const Pair& other) { return rank(one) < rank(other); });
        return all;
    }

  private:
    static std::vector<std::uint32_t> AllOf(IndexRange range) {
        std::vector<std::uint32_t> indexes(range.count);
        for (std::uint32_t offset = 0; offset < range.count; ++offset) {
            indexes[offset] = range.first + offset;
        }
        return indexes;
    }

    template <typename Key>
    static auto SortedByKey(const std::vector<std::uint32_t>& indexes, Key key) {
        std::vector<std::pair<decltype(key(0U)), std::uint32_t>> keyed;
        keyed.reserve(indexes.size());
        for (const std::uint32_t index : indexes) {
            keyed.emplace_back(key(index), index);
        }
        std::sort(keyed.begin(), keyed.end());
        return keyed;
    }

    std::vector<std::uint32_t> unpairedBefore;
    std::vector<std::uint32_t> unpairedAfter;
    std::vector<Pair> pairs;
};

// Returns the fewest pairs without which the others have the same order in both lists, as indexes
// into the second list, ascending.
//   pairs  in the order of the second list; those with one index do not count
std::vector<std::uint32_t> FindMoved(const std::vector<Pair>& pairs);

}  // namespace vexil::tool
