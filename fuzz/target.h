// The one function of a target: libFuzzer calls it, and so does the replay program.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
