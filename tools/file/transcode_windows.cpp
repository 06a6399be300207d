// Transcoding, which needs iconv, which Windows does not have.
// SPDX-License-Identifier: MIT
#include "file/transcode.h"

namespace vexil::tool {

Transcoded Transcode(std::string_view, const std::string&) {
    return {TranscodeResult::NotAvailable, "", 0};
}

}  // namespace vexil::tool
