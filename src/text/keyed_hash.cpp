// The hash of the library's tables.
// SPDX-License-Identifier: MIT
#include "text/keyed_hash.h"

#include <array>
#include <bit>
#include <chrono>
#include <cstring>

namespace vexil {
namespace {

// What an attacker cannot know: where the process has its data, and when it was started.
struct Secret {
    Secret() noexcept
        : first(static_cast<std::uint64_t>(
              std::chrono::steady_clock::now().time_since_epoch().count())),
          second(std::bit_cast<std::uintptr_t>(this)) {}

    std::uint64_t first;
    std::uint64_t second;
};

class SipState {
  public:
    SipState(std::uint64_t first, std::uint64_t second) noexcept
        : v{first ^ 0x736f6d6570736575U, second ^ 0x646f72616e646f6dU, first ^ 0x6c7967656e657261U,
            second ^ 0x7465646279746573U} {}

    void Add(std::uint64_t word) noexcept {
        v[3] ^= word;
        Round();
        v[0] ^= word;
    }

    std::uint64_t Finish() noexcept {
        v[2] ^= 0xff;
        Round();
        Round();
        Round();
        return v[0] ^ v[1] ^ v[2] ^ v[3];
    }

  private:
    void Round() noexcept {
        v[0] += v[1];
        v[1] = std::rotl(v[1], 13) ^ v[0];
        v[0] = std::rotl(v[0], 32);
        v[2] += v[3];
        v[3] = std::rotl(v[3], 16) ^ v[2];
        v[0] += v[3];
        v[3] = std::rotl(v[3], 21) ^ v[0];
        v[2] += v[1];
        v[1] = std::rotl(v[1], 17) ^ v[2];
        v[2] = std::rotl(v[2], 32);
    }

    std::array<std::uint64_t, 4> v;
};

}  // namespace

std::size_t KeyedHash(std::uint64_t number, std::string_view text) noexcept {
    static const Secret secret;
    SipState state(secret.first, secret.second);
    state.Add(number);
    const std::size_t size = text.size();
    std::uint64_t word = 0;
    while (text.size() >= sizeof(word)) {
        std::memcpy(&word, text.data(), sizeof(word));
        state.Add(word);
        text.remove_prefix(sizeof(word));
    }
    word = 0;
    if (!text.empty()) {
        std::memcpy(&word, text.data(), text.size());
    }
    state.Add(word | (static_cast<std::uint64_t>(size) << 56U));
    return state.Finish();
}

}  // namespace vexil
