// Assertions of the targets. A failed assertion prints its reason and aborts, which both the fuzzer
// and the tests detect.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdlib>
#include <iostream>
#include <string>

namespace vexil::fuzz {

[[noreturn]] inline void Fail(const std::string& message) {
    std::cerr << "\nDoes not hold: " << message << std::endl;
    std::abort();
}

inline void Expect(bool holds, const char* what) {
    if (!holds) {
        Fail(what);
    }
}

// Compares two texts or two numbers, which must be equal.
template <typename Value, typename Other>
void ExpectSame(const Value& value, const Other& expected, const char* what) {
    if (!(value == expected)) {
        std::cerr << "\nIs:\n" << value << "\nShould be:\n" << expected << '\n';
        Fail(what);
    }
}

}  // namespace vexil::fuzz
