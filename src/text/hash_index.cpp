// HashIndex: adding and growing.
// SPDX-License-Identifier: MIT
#include "text/hash_index.h"

#include <algorithm>
#include <new>
#include <utility>

namespace vexil {
namespace {

constexpr std::size_t FirstSlotCount = 16;

}  // namespace

void HashIndex::Add(std::size_t hash, std::size_t position) {
    if (position >= NoPosition) {
        throw std::bad_alloc();
    }
    if ((count + 1) * 4 > slots.size() * 3) {
        std::vector<Slot> old(std::max(FirstSlotCount, slots.size() * 2));
        old.swap(slots);
        for (const Slot& slot : old) {
            if (slot.position != NoPosition) {
                Place(slot);
            }
        }
    }
    Place({static_cast<std::uint32_t>(hash), static_cast<std::uint32_t>(position)});
    ++count;
}

void HashIndex::Clear() {
    *this = HashIndex();
}

void HashIndex::Place(Slot slot) {
    std::size_t at = slot.hash & Mask();
    while (slots[at].position != NoPosition) {
        at = (at + 1) & Mask();
    }
    slots[at] = slot;
}

}  // namespace vexil
