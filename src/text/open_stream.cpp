// From a caller's path to an open file stream.
// SPDX-License-Identifier: MIT
#include "text/open_stream.h"

#include <utf8.h>

#include "text/utf8_text.h"
#include "vexil64.h"

namespace vexil {

std::string CheckedPath(const char* path, std::uint32_t pathBufferSize, std::uint32_t& state) {
    std::string text;
    if (pathBufferSize > MaxPathBufferSize) {
        state = StatePathTooLong;
    } else if (!CopyUtf8Text(text, path, path == nullptr ? 0 : pathBufferSize)) {
        state = StatePathInvalid;
    } else if (text.empty()) {
        state = StatePathEmpty;
    } else if (!utf8::is_valid(text)) {
        state = StatePathInvalid;
        text.clear();
    }
    return text;
}

void OpenStream(std::fstream& stream, const std::string& path, OpenMode mode) {
    stream.clear();
    stream.open(path, mode == OpenMode::Read ? std::ios_base::in : std::ios_base::out);
}

}  // namespace vexil
