// HashIndex, the positions of a list's entries by the hashes of the entries.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "text/constants.h"

namespace vexil {

// A hash table that holds neither keys nor values: the list does, side by side and in its own
// order. Slots are searched onward from the one of the hash, so that a lookup touches little memory
// but the entry that it finds. Made for hashes that nobody can plan; see keyed_hash.h.
class HashIndex {
  public:
    // Returns the position of the entry of the hash for which isEntry(position) holds, or npos.
    template <typename IsEntry>
    std::size_t Find(std::size_t hash, IsEntry isEntry) const {
        if (slots.empty()) {
            return npos;
        }
        const auto kept = static_cast<std::uint32_t>(hash);
        for (std::size_t at = kept & Mask(); slots[at].position != NoPosition;
             at = (at + 1) & Mask()) {
            if (slots[at].hash == kept && isEntry(slots[at].position)) {
                return slots[at].position;
            }
        }
        return npos;
    }

    // Adds an entry. Whether it is there already is the caller's to know. Throws std::bad_alloc
    // when memory ends, as which a position of 2^32 - 1 counts.
    void Add(std::size_t hash, std::size_t position);

    // Gives its memory back, too.
    void Clear();

  private:
    static constexpr std::uint32_t NoPosition = ~std::uint32_t{0};

    // Small, since the slots of a big table are what misses the caches.
    struct Slot {
        std::uint32_t hash = 0;               // its low half
        std::uint32_t position = NoPosition;  // NoPosition: the slot is free
    };

    std::size_t Mask() const { return slots.size() - 1; }
    void Place(Slot slot);

    std::vector<Slot> slots;  // as many as a power of two, a quarter of them free at least
    std::size_t count = 0;    // slots that are not free
};

}  // namespace vexil
