// The parts of the table of causes, each in its own file.
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>

#include "account/cause.h"

namespace vexil::tool {

inline constexpr std::size_t RefusedCount = 7;
inline constexpr std::size_t DroppedCount = 22;
inline constexpr std::size_t ChangedCount = 24;
inline constexpr std::size_t IgnoredCount = 18;
inline constexpr std::size_t OtherCount = 20;

extern const std::array<CauseRow, RefusedCount> RefusedRows;
extern const std::array<CauseRow, DroppedCount> DroppedRows;
extern const std::array<CauseRow, ChangedCount> ChangedRows;
extern const std::array<CauseRow, IgnoredCount> IgnoredRows;
extern const std::array<CauseRow, OtherCount> OtherRows;

}  // namespace vexil::tool
