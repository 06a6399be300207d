// Limits of the memory and time of a call, proportional to the bytes that it processes and outputs.
// A call that exceeds its limits ends the process.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <type_traits>

#include "allocated_bytes.h"

namespace vexil::fuzz {

// Measures from its construction on, so construct it directly before the call. Only one object may
// exist at a time.
class Budget {
  public:
    Budget();

    // Checks the cost of a read against the bytes of its file.
    void ExpectRead(std::uint64_t fileBytes) const;

    // Checks the cost of one or more other calls against the bytes of the texts and records that
    // the library processed or output.
    void ExpectCall(std::uint64_t bytes) const;

  private:
    AllocatedBytes startBytes;
    std::int64_t startNanoseconds;
};

// Makes a call other than a read, checks its cost against the bytes, and returns its result.
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

// Returns about how many bytes the messages and signals of the database have in a written file. A
// comment or value description of several owners counts for each of them, because a fetch and a
// write process it for each. Counting stops above "enough".
std::uint64_t HeldBytes(std::uint64_t enough = ~std::uint64_t{0});

}  // namespace vexil::fuzz
