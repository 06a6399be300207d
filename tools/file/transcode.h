// Text in another encoding made UTF-8.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vexil::tool {

enum class TranscodeResult {
    Done,
    UnknownEncoding,  // the system has no encoding of the name
    InvalidText,      // the text is not in that encoding
    NotAvailable      // this build has no encodings
};

struct Transcoded {
    TranscodeResult result = TranscodeResult::Done;
    std::string text;  // UTF-8 without a byte order mark; with InvalidText: all before position
    std::size_t position = 0;  // with InvalidText: the first byte that is not in the encoding
};

// Makes UTF-8 of a text.
//   encoding  a name that iconv takes, such as windows-1252
Transcoded Transcode(std::string_view bytes, const std::string& encoding);

}  // namespace vexil::tool
