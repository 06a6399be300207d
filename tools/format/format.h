// Formatted text.
// SPDX-License-Identifier: MIT
#pragma once

#include <fmt/core.h>

#include <string>

namespace vexil::tool {

// Formats the arguments. One source has the formatting library in it, which takes seconds to
// compile.
std::string FormatArguments(fmt::string_view form, fmt::format_args arguments);

// Returns the text of a form such as "{} of {}" with its arguments, as fmt::format does. The form
// is checked when the call is compiled.
template <typename... Arguments>
std::string Format(fmt::format_string<Arguments...> form, Arguments&&... arguments) {
    return FormatArguments(form, fmt::make_format_args(arguments...));
}

}  // namespace vexil::tool
