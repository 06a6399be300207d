// The public header after standard ones, and twice. Compiling this is the test.
// SPDX-License-Identifier: MIT
#include <string>
#include <type_traits>

#include "vexil64.h"

static_assert(!std::is_same<std::string, ParseError>::value, "both headers were included");
static_assert(std::is_trivially_copyable<CanMessageRecord>::value, "records are plain bytes");
static_assert(std::is_trivially_copyable<CanSignalRecord>::value, "records are plain bytes");
static_assert(std::is_trivially_copyable<CanEnumRecord>::value, "records are plain bytes");
static_assert(std::is_trivially_copyable<ParseError>::value, "records are plain bytes");

// Once more, for its guard.
#include "vexil64.h"
