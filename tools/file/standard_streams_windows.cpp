// The standard streams on Windows, in binary mode, so that their line ends stay as they are.
// SPDX-License-Identifier: MIT
#include <fcntl.h>
#include <io.h>

#include "file/descriptor.h"
#include "file/standard_streams.h"

namespace vexil::tool {

void PrepareStandardStreams() {
    _setmode(0, _O_BINARY);
}

std::error_code WriteStandardOutput(std::string_view bytes) {
    constexpr int StandardOutput = 1;
    _setmode(StandardOutput, _O_BINARY);
    return WriteAll(StandardOutput, bytes);
}

}  // namespace vexil::tool
