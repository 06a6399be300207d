// The memory and time that a call of the library may take, in proportion to the bytes that it takes
// in and puts out. A call that takes more ends the process.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <type_traits>

#include "allocated_bytes.h"

namespace vexil::fuzz {

// Counts from its construction on, so it is constructed directly before the call. There is one at a
// time.
class Budget {
  public:
    Budget();

    // Checks the cost of a read against the bytes of its file.
    void ExpectRead(std::uint64_t fileBytes) const;

    // Checks the cost of any other call, or of several, against the bytes of the texts and records
    // that the library went through or put out.
    void ExpectCall(std::uint64_t bytes) const;

  private:
    AllocatedBytes startBytes;
    std::int64_t startNanoseconds;
};

// Makes a call other than a read under a budget for the bytes, and returns its result.
template <typename Call>
auto Within(std::uint64_t bytes, Call call) {
    const Budget budget;
    if constexpr (std::is_void_v<std::invoke_result_t<Call>>) {
        call();
        budget.ExpectCall(bytes);
    } else {
        const auto result = call();
        budget.ExpectCall(bytes);
        return result;
    }
}

// The bytes that the messages and signals of the database come to in a file. A comment or value
// description that several of them share counts for each, as a fetch and a write go through it for
// each. Counting stops above enough.
std::uint64_t HeldBytes(std::uint64_t enough = ~std::uint64_t{0});

}  // namespace vexil::fuzz
