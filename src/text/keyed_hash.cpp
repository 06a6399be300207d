// The hash of the library's tables.
// SPDX-License-Identifier: MIT
#include "text/keyed_hash.h"

#include <chrono>
#include <cstring>
#include <functional>

namespace vexil {
namespace {

// Combines the two halves of a product of 64-bit numbers. Every bit depends on every bit of a
// secret factor, so that no difference between two texts cancels out for every secret.
std::uint64_t Fold(std::uint64_t a, std::uint64_t b) noexcept {
    __extension__ using Product = unsigned __int128;
    const Product product = static_cast<Product>(a) * b;
    return static_cast<std::uint64_t>(product) ^ static_cast<std::uint64_t>(product >> 64U);
}

// Returns a number whose every bit depends on every bit of the argument: the end of splitmix64.
std::uint64_t Spread(std::uint64_t number) noexcept {
    number = (number ^ (number >> 30U)) * 0xbf58476d1ce4e5b9U;
    number = (number ^ (number >> 27U)) * 0x94d049bb133111ebU;
    return number ^ (number >> 31U);
}

// Values that an attacker cannot know: the start time of the process and the address of its data.
struct Secret {
    explicit Secret(const void* place) noexcept
        : start(Spread(static_cast<std::uint64_t>(
              std::chrono::steady_clock::now().time_since_epoch().count()))),
          factor(Spread(start + std::hash<const void*>{}(place)) | 1U) {}

    std::uint64_t start;
    std::uint64_t factor;
};

const Secret& ProcessSecret() noexcept {
    static const Secret secret(&secret);
    return secret;
}

}  // namespace

PrefixHash::PrefixHash(std::uint64_t number, std::string_view text) noexcept
    : state(Fold(ProcessSecret().start ^ number, ProcessSecret().factor)), whole(text) {}

std::size_t PrefixHash::UpTo(std::size_t size) noexcept {
    const std::uint64_t factor = ProcessSecret().factor;
    std::uint64_t word = 0;
    for (; size - done >= sizeof(word); done += sizeof(word)) {
        std::memcpy(&word, whole.data() + done, sizeof(word));
        state = Fold(state ^ word, factor);
    }
    word = 0;
    for (std::size_t at = size; at > done; --at) {
        word = (word << 8U) | static_cast<unsigned char>(whole[at - 1]);
    }
    return Fold(Fold(state ^ word, factor) ^ size, factor);
}

}  // namespace vexil
