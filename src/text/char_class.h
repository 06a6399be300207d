// Character classes of the classic locale. The host's locale has no say: a byte of 128 or above is
// in none of them.
// SPDX-License-Identifier: MIT
#pragma once

namespace vexil {

constexpr bool IsSpace(char ch) noexcept {
    return ch == ' ' || (ch >= '\t' && ch <= '\r');
}

constexpr bool IsDigit(char ch) noexcept {
    return ch >= '0' && ch <= '9';
}

constexpr bool IsAlnum(char ch) noexcept {
    return IsDigit(ch) || (ch >= 'a' && ch <= 'z') || (ch >= 'A' && ch <= 'Z');
}

constexpr bool IsControl(char ch) noexcept {
    return static_cast<unsigned char>(ch) < 32 || ch == '\x7f';
}

}  // namespace vexil
