// SharedTail, the end of a container that several owners share and that grows for all of them.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <memory>
#include <span>

namespace vexil {

// What is given to many owners is kept once: their tails lie in one container, each from the moment
// on at which its owner came, and all of them up to its end. Copies count themselves without regard
// to threads, as nothing in the library does.
template <typename Container>
class SharedTail {
  public:
    bool IsEmpty() const noexcept { return whole == nullptr || start == whole->size(); }

    void Clear() noexcept {
        whole.reset();
        start = 0;
    }

    // The container, made when there is none; what is put behind it is put behind every tail.
    Container& Whole() {
        if (whole == nullptr) {
            whole = std::make_shared<Container>();
        }
        return *whole;
    }

    // The same for a look. REQUIRES: not IsEmpty().
    Container& Present() const noexcept { return *whole; }

    // Position in the container at which the tail starts.
    std::size_t Start() const noexcept { return start; }

    // Whether the container is there and no other tail lies in it.
    bool IsAlone() const noexcept { return whole.use_count() == 1; }

    // Becomes a tail of the container of other, from position on.
    void Follow(SharedTail& other, std::size_t position) {
        other.Whole();
        whole = other.whole;
        start = position;
    }

  private:
    std::shared_ptr<Container> whole;
    std::size_t start = 0;
};

// The owners for which isNew(owner) is true: those behind the first that came after the last
// addition, and so at the end. REQUIRES: owners is not empty and in the order in which they came.
template <typename Owners, typename IsNew>
auto Newcomers(const Owners& owners, IsNew isNew) {
    std::size_t count = 0;
    while (count + 1 < owners.size() && isNew(*owners[owners.size() - 1 - count])) {
        ++count;
    }
    return std::span(owners).last(count);
}

}  // namespace vexil
