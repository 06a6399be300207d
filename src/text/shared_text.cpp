// SharedText: making, sharing and giving back.
// SPDX-License-Identifier: MIT
#include "text/shared_text.h"

#include <algorithm>

namespace vexil {

SharedText::SharedText(std::string_view text) {
    if (text.empty()) {
        return;
    }
    block = std::allocator<Block>().allocate(BlocksOf(text.size()));
    std::construct_at(block, Block{1, text.size()});
    std::copy(text.begin(), text.end(), static_cast<char*>(static_cast<void*>(block + 1)));
}

SharedText::SharedText(const SharedText& other) noexcept : block(other.block) {
    if (block != nullptr) {
        ++block->users;
    }
}

void SharedText::Clear() noexcept {
    if (block != nullptr && --block->users == 0) {
        std::allocator<Block>().deallocate(block, BlocksOf(block->size));
    }
    block = nullptr;
}

}  // namespace vexil
