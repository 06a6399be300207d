// The command line in UTF-8.
// SPDX-License-Identifier: MIT
#include "arguments.h"

#ifdef _WIN32
#include <windows.h>

namespace vexil::tool {
namespace {

std::string Utf8(const wchar_t* wide) {
    const int size = WideCharToMultiByte(CP_UTF8, 0, wide, -1, nullptr, 0, nullptr, nullptr);
    std::string text(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(CP_UTF8, 0, wide, -1, text.data(), size, nullptr, nullptr);
    text.pop_back();  // the NUL
    return text;
}

}  // namespace

std::vector<std::string> Utf8Arguments(int, const char* const*) {
    int count = 0;
    wchar_t** const wide = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::string> arguments;
    for (int index = 1; wide != nullptr && index < count; ++index) {
        arguments.push_back(Utf8(wide[index]));
    }
    LocalFree(wide);
    return arguments;
}

}  // namespace vexil::tool

#else
#include <algorithm>

namespace vexil::tool {

std::vector<std::string> Utf8Arguments(int argc, const char* const* argv) {
    return {argv + std::min(1, argc), argv + argc};
}

}  // namespace vexil::tool

#endif
