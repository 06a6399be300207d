// The templates, the style and the script of a report. CMake makes them of the files in
// view/report.
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace vexil::tool {

extern const std::string_view ReportPage;
extern const std::string_view ReportFile;
extern const std::string_view ReportMessage;
extern const std::string_view ReportStyle;
extern const std::string_view ReportScript;

// The SHA-256 hashes of the style and the script in base64: a page names them, and a browser then
// takes no other style or script.
extern const std::string_view ReportStyleHash;
extern const std::string_view ReportScriptHash;

}  // namespace vexil::tool
