// The hash of the library's tables. It is keyed with a secret of the process, so that nobody can
// write a file whose names or ids all fall into one bucket. The value never reaches a caller or a
// file. SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace vexil {

// SipHash with one round for each eight bytes and three at the end, of number and text together.
std::size_t KeyedHash(std::uint64_t number, std::string_view text) noexcept;

}  // namespace vexil
