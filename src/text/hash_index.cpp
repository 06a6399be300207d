// HashIndex: adding and growing.
// SPDX-License-Identifier: MIT
#include "text/hash_index.h"

#include <algorithm>
#include <utility>

namespace vexil {
namespace {

constexpr std::size_t FirstSlotCount = 16;

}  // namespace

void HashIndex::Add(std::size_t hash, std::size_t position) {
    if ((count + 1) * 4 > slots.size() * 3) {
        std::vector<Slot> old(std::max(FirstSlotCount, slots.size() * 2));
        old.swap(slots);
        for (const Slot& slot : old) {
            if (slot.position != npos) {
                Place(slot);
            }
        }
    }
    Place({hash, position});
    ++count;
}

void HashIndex::Clear() {
    std::vector<Slot>().swap(slots);
    count = 0;
}

void HashIndex::Place(Slot slot) {
    std::size_t at = slot.hash & Mask();
    while (slots[at].position != npos) {
        at = (at + 1) & Mask();
    }
    slots[at] = slot;
}

}  // namespace vexil
