// Arena: chunks and their release.
// SPDX-License-Identifier: MIT
#include "text/arena.h"

#include <algorithm>

namespace vexil {
namespace {

// A small file needs one chunk, a large file few.
constexpr std::size_t FirstChunkSize = std::size_t{16} * 1024;
constexpr std::size_t LargestChunkSize = std::size_t{256} * 1024;

}  // namespace

void Arena::AddChunk(std::size_t size) {
    const std::size_t ordinary = std::max(nextChunkSize, FirstChunkSize);
    const std::size_t rounded = (size + Alignment - 1) / Alignment * Alignment;
    const std::size_t chunkSize = std::max(ordinary, rounded + sizeof(Chunk));
    source = source == nullptr ? std::pmr::new_delete_resource() : source;
    void* memory = source->allocate(chunkSize, Alignment);
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): Release frees it
    chunks = ::new (memory) Chunk{chunks, chunkSize};
    next = static_cast<std::byte*>(memory) + sizeof(Chunk);
    room = chunkSize - sizeof(Chunk);
    nextChunkSize = std::min(ordinary * 2, LargestChunkSize);
}

void Arena::Release() noexcept {
    while (chunks != nullptr) {
        Chunk* chunk = std::exchange(chunks, chunks->earlier);
        source->deallocate(chunk, chunk->size, Alignment);
    }
    next = nullptr;
    room = 0;
    nextChunkSize = 0;
}

}  // namespace vexil
