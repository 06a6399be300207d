// The formatting library, compiled once.
// SPDX-License-Identifier: MIT
#include "format/format.h"

#include <fmt/format.h>

namespace vexil::tool {

std::string FormatArguments(fmt::string_view form, fmt::format_args arguments) {
    return fmt::vformat(form, arguments);
}

}  // namespace vexil::tool
