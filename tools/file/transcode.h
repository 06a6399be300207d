// Converts text in other encodings to UTF-8.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vexil::tool {

enum class TranscodeResult {
    Done,
    UnknownEncoding,  // the system does not have an encoding with this name
    InvalidText,      // the text is not valid in this encoding
    NotAvailable      // this build supports no encodings
};

struct Transcoded {
    TranscodeResult result = TranscodeResult::Done;
    std::string text;          // UTF-8 without a byte order mark; with InvalidText: up to position
    std::size_t position = 0;  // with InvalidText: the first byte that is not valid
};

// Converts a text to UTF-8.
//   encoding  a name that iconv accepts, such as windows-1252
Transcoded Transcode(std::string_view bytes, const std::string& encoding);

}  // namespace vexil::tool
