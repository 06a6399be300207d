// Lists whose elements live in an arena.
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "text/arena.h"

namespace vexil {

// A short list in one block of memory, which doubles when it is full.
template <typename T>
class ArenaList {
  public:
    // Adds an element. Throws std::bad_alloc and then changes nothing.
    void Add(Arena& arena, const T& element) {
        if (count == capacity) {
            const std::uint32_t doubled = std::max(capacity * 2, FirstCapacity);
            T* larger = arena.NewArray<T>(doubled);
            std::copy_n(elements, count, larger);
            elements = larger;
            capacity = doubled;
        }
        elements[count++] = element;
    }

    std::size_t Size() const noexcept { return count; }
    T& operator[](std::size_t position) const noexcept { return elements[position]; }

    // For the range-based for loop.
    T* begin() const noexcept { return elements; }        // NOLINT(readability-identifier-naming)
    T* end() const noexcept { return elements + count; }  // NOLINT(readability-identifier-naming)

  private:
    static constexpr std::uint32_t FirstCapacity = 8;

    T* elements = nullptr;
    std::uint32_t count = 0;
    std::uint32_t capacity = 0;
};

// A list of any length in pages of one size. Elements never move, and no allocation is larger than
// a page.
template <typename T>
class PagedList {
  public:
    // Adds an element and returns it. Throws std::bad_alloc and then changes nothing.
    T& Add(Arena& arena, const T& element) {
        if (count == pages.Size() * PageSize) {
            pages.Add(arena, arena.NewArray<T>(PageSize));
        }
        T* place = &(*this)[count];
        ++count;
        return *::new (place) T(element);
    }

    std::size_t Size() const noexcept { return count; }
    T& operator[](std::size_t position) const noexcept {
        return pages[position / PageSize][position % PageSize];
    }

    // Removes the elements. The arena frees their memory.
    void Clear() noexcept { *this = PagedList(); }

  private:
    static constexpr std::size_t PageSize = 128;

    ArenaList<T*> pages;
    std::size_t count = 0;
};

}  // namespace vexil
