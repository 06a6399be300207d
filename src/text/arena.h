// Arena, the memory of all data that lives until the next clear or read.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory_resource>
#include <new>
#include <string_view>
#include <type_traits>
#include <utility>

namespace vexil {

// Allocates by moving a pointer and frees all memory at once. Objects in it are never destroyed, so
// they must not need a destructor. Chunks are smaller than the size from which allocators keep
// freed memory, so that a release returns it to the system.
class Arena {
  public:
    // upstream: the source of chunks. Null means operator new, and not the default resource of the
    // process, which a host may replace and destroy.
    explicit constexpr Arena(std::pmr::memory_resource* upstream = nullptr) noexcept
        : source(upstream) {}
    Arena(const Arena&) = delete;
    Arena& operator=(const Arena&) = delete;
    ~Arena() { Release(); }

    // Returns size bytes for any object, valid until Release. Throws std::bad_alloc and then
    // changes nothing.
    void* Allocate(std::size_t size) {
        const std::size_t padding = room % Alignment;  // chunks end at a multiple of it
        if (size + padding > room) {
            AddChunk(size);
            return Take(size);
        }
        Take(padding);
        return Take(size);
    }

    // Returns a copy of text that lives until Release.
    std::string_view Keep(std::string_view text) {
        if (text.empty()) {
            return {};
        }
        if (text.size() > room) {
            AddChunk(text.size());
        }
        auto* copy = static_cast<char*>(static_cast<void*>(Take(text.size())));
        std::memcpy(copy, text.data(), text.size());
        return {copy, text.size()};
    }

    // The characters of a text in this arena, to overwrite them in place.
    static char* Characters(std::string_view kept) noexcept {
        return const_cast<char*>(kept.data());  // NOLINT(cppcoreguidelines-pro-type-const-cast)
    }

    // Returns a new object that lives until Release.
    template <typename T, typename... Arguments>
    T* New(Arguments&&... arguments) {
        static_assert(std::is_trivially_destructible_v<T> && alignof(T) <= Alignment);
        // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the arena owns it
        return ::new (Allocate(sizeof(T))) T{std::forward<Arguments>(arguments)...};
    }

    // Returns uninitialised room for count objects.
    template <typename T>
    T* NewArray(std::size_t count) {
        static_assert(std::is_trivially_copyable_v<T> && alignof(T) <= Alignment);
        // NOLINTNEXTLINE(bugprone-sizeof-expression): T may be a pointer
        return static_cast<T*>(Allocate(count * sizeof(T)));
    }

    // Frees all memory.
    void Release() noexcept;

  private:
    static constexpr std::size_t Alignment = alignof(std::uint64_t);

    struct Chunk {
        Chunk* earlier;
        std::size_t size;
    };

    // Adds a chunk with room for size bytes.
    void AddChunk(std::size_t size);

    std::byte* Take(std::size_t size) noexcept {
        room -= size;
        return std::exchange(next, next + size);
    }

    std::pmr::memory_resource* source;
    Chunk* chunks = nullptr;    // the newest; the memory of each follows it
    std::byte* next = nullptr;  // the free memory in the newest chunk
    std::size_t room = 0;       // its size in bytes
    std::size_t nextChunkSize = 0;
};

}  // namespace vexil
