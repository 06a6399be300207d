// SharedText, a text that does not change and that its copies share.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <memory>
#include <ostream>
#include <string_view>
#include <utility>

namespace vexil {

// Of the size of a pointer, which suits names: most stand in the model three times and are the same
// each time. Copies count themselves without regard to threads, as nothing in the library does.
class SharedText {
  public:
    SharedText() noexcept = default;
    explicit SharedText(std::string_view text);
    SharedText(const SharedText& other) noexcept;
    SharedText(SharedText&& other) noexcept : block(std::exchange(other.block, nullptr)) {}
    ~SharedText() { Clear(); }

    SharedText& operator=(const SharedText& other) noexcept { return *this = SharedText(other); }
    SharedText& operator=(SharedText&& other) noexcept {
        std::swap(block, other.block);
        return *this;
    }
    SharedText& operator=(std::string_view text) { return *this = SharedText(text); }

    operator std::string_view() const noexcept {
        return block == nullptr ? std::string_view() : std::string_view(Characters(), block->size);
    }
    std::size_t Size() const noexcept { return block == nullptr ? 0 : block->size; }
    bool IsEmpty() const noexcept { return block == nullptr; }
    void Clear() noexcept;

    friend bool operator==(const SharedText& a, const SharedText& b) noexcept {
        return a.block == b.block || std::string_view(a) == std::string_view(b);
    }
    friend bool operator==(const SharedText& a, std::string_view b) noexcept {
        return std::string_view(a) == b;
    }
    friend std::ostream& operator<<(std::ostream& out, const SharedText& text) {
        return out << std::string_view(text);
    }

  private:
    // Stands in front of the characters, in one allocation.
    struct Block {
        std::size_t users;
        std::size_t size;
    };

    // How many blocks the first one takes together with the characters behind it.
    static std::size_t BlocksOf(std::size_t size) noexcept { return 2 + size / sizeof(Block); }

    const char* Characters() const noexcept {
        return static_cast<const char*>(static_cast<const void*>(block + 1));
    }

    Block* block = nullptr;  // null for the empty text
};

}  // namespace vexil
