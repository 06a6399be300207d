// HashIndex, the positions of a list's entries by the hashes of the entries.
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <new>
#include <vector>

namespace vexil {

// A hash table without keys and values: the list holds those. Slots are searched onward from the
// one of the hash, so that a lookup touches little memory but the entry that it finds.
// Precondition: the hashes are keyed, see keyed_hash.h.
class HashIndex {
  public:
    // Returns the position of the entry of the hash for which isEntry(position) holds, to be read
    // or replaced until the next Add; null when there is none.
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

    // Adds an entry that is not there yet. Throws std::bad_alloc with nothing changed when memory
    // ends, as which a position of 2^32 - 1 counts.
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

    // Gives the memory back, too.
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

    std::vector<Slot> slots;  // as many as a power of two, a quarter of them free at least
    std::size_t count = 0;    // slots that are not free
};

}  // namespace vexil
