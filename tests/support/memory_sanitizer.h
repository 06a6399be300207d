// Annotations for the memory sanitizer, without effect in other builds.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

extern "C" [[gnu::weak]] void __msan_unpoison(const volatile void* bytes, std::size_t size);

namespace vexil::test {

// Marks bytes as initialised. For functions that replace those of the C library: the sanitizer
// intercepts only the latter, so it does not see what the system writes for the replacement.
inline void MarkAsInitialised(const void* bytes, std::size_t size) {
    if (__msan_unpoison != nullptr) {
        __msan_unpoison(bytes, size);
    }
}

}  // namespace vexil::test
