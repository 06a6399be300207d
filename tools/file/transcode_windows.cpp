// Transcoding on Windows is not available, because Windows has no iconv.
// SPDX-License-Identifier: MIT
#include "file/transcode.h"

namespace vexil::tool {

Transcoded Transcode(std::string_view, const std::string&) {
    return {TranscodeResult::NotAvailable, "", 0};
}

}  // namespace vexil::tool
