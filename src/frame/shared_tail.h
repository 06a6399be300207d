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
    // The whole of a new container, which is empty.
    SharedTail() : whole(std::make_shared<Container>()) {}

    // The container of another, from position start on.
    SharedTail(const SharedTail& other, std::size_t startPosition)
        : whole(other.whole), start(startPosition) {}

    // The container; what is put behind it is put behind every tail.
    Container& Whole() const noexcept { return *whole; }

    // Position in the container at which the tail starts.
    std::size_t Start() const noexcept { return start; }

    bool IsEmpty() const noexcept { return start == whole->size(); }

  private:
    std::shared_ptr<Container> whole;  // never null
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
