// A memory resource for tests: it records the allocations, and may run out.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <memory_resource>
#include <new>
#include <vector>

namespace vexil::test {

class CountingResource : public std::pmr::memory_resource {
  public:
    std::vector<std::size_t> sizes;  // of each piece that it gave
    std::size_t inUse = 0;           // blocks that were not freed
    std::size_t left = ~std::size_t{0};

  private:
    void* do_allocate(std::size_t size, std::size_t alignment) override {
        if (left == 0) {
            throw std::bad_alloc();
        }
        --left;
        ++inUse;
        sizes.push_back(size);
        return std::pmr::new_delete_resource()->allocate(size, alignment);
    }
    void do_deallocate(void* piece, std::size_t size, std::size_t alignment) override {
        --inUse;
        std::pmr::new_delete_resource()->deallocate(piece, size, alignment);
    }
    bool do_is_equal(const std::pmr::memory_resource& other) const noexcept override {
        return this == &other;
    }
};

}  // namespace vexil::test
