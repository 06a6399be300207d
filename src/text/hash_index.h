// HashIndex, the positions of a list's entries by the hashes of the entries.
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <new>
#include <vector>

namespace vexil {

// A hash table without keys and values, which are in the list. A search starts at the slot of the
// hash and continues with the next ones, so that a lookup touches little memory besides the entry.
// Precondition: the hashes are keyed, see keyed_hash.h.
class HashIndex {
  public:
    // Returns the position of the entry with the hash for which isEntry(position) holds, or null.
    // The caller may read or replace the position until the next Add.
    template <typename IsEntry>
    std::uint32_t* Find(std::size_t hash, IsEntry isEntry) {
        if (slots.empty()) {
            return nullptr;
        }
        const auto kept = static_cast<std::uint32_t>(hash);
        for (std::size_t at = kept & Mask(); slots[at].position != NoPosition;
             at = (at + 1) & Mask()) {
            if (slots[at].hash == kept && isEntry(slots[at].position)) {
                return &slots[at].position;
            }
        }
        return nullptr;
    }

    // Adds a new entry. Throws std::bad_alloc and then changes nothing when memory runs out; a
    // position of 2^32 - 1 counts as out of memory.
    void Add(std::size_t hash, std::size_t position) {
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

    // Also frees the memory.
    void Clear() { *this = HashIndex(); }

  private:
    static constexpr std::size_t FirstSlotCount = 16;
    static constexpr std::uint32_t NoPosition = ~std::uint32_t{0};

    struct Slot {
        std::uint32_t hash = 0;               // its low half
        std::uint32_t position = NoPosition;  // NoPosition: the slot is free
    };

    std::size_t Mask() const { return slots.size() - 1; }

    void Place(Slot slot) {
        std::size_t at = slot.hash & Mask();
        while (slots[at].position != NoPosition) {
            at = (at + 1) & Mask();
        }
        slots[at] = slot;
    }

    std::vector<Slot> slots;  // a power of two of them, at least a quarter free
    std::size_t count = 0;    // of the slots that are not free
};

}  // namespace vexil
