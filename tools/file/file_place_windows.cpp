// Finds the place of a file on Windows, which is its whole path.
// SPDX-License-Identifier: MIT
#include <fcntl.h>
#include <io.h>
#include <share.h>
#include <windows.h>

#include <cerrno>

#include "file/file_place.h"

namespace vexil::tool {
namespace {

std::wstring Utf16(const std::string& text) {
    const int size = MultiByteToWideChar(CP_UTF8, 0, text.c_str(), -1, nullptr, 0);
    std::wstring wide(static_cast<std::size_t>(size), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, text.c_str(), -1, wide.data(), size);
    wide.pop_back();  // the NUL
    return wide;
}

std::wstring FullPath(const std::wstring& path) {
    const DWORD size = GetFullPathNameW(path.c_str(), 0, nullptr, nullptr);
    std::wstring full(size, L'\0');
    full.resize(GetFullPathNameW(path.c_str(), size, full.data(), nullptr));
    return full;
}

}  // namespace

std::wstring WidePath(const std::string& path) {
    const std::wstring full = FullPath(Utf16(path));
    // Keeps a short path in its usual form, in which devices such as NUL are recognised.
    if (full.size() < MAX_PATH || full.starts_with(L"\\\\")) {
        return full;
    }
    return L"\\\\?\\" + full;
}

std::error_code FindFile(std::string_view path, FilePlace& place) {
    place.name = path;
    return path.empty() ? std::make_error_code(std::errc::no_such_file_or_directory)
                        : std::error_code();
}

// Windows follows links when it opens a file, so the name of the opened file is that of the target.
std::error_code FindFileBehindLinks(std::string_view path, FilePlace& place) {
    if (const std::error_code error = FindFile(path, place)) {
        return error;
    }
    HANDLE file = CreateFileW(WidePath(place.name).c_str(), 0,
                              FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                              OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return {};  // it does not exist
    }
    std::wstring target(GetFinalPathNameByHandleW(file, nullptr, 0, 0), L'\0');
    target.resize(
        GetFinalPathNameByHandleW(file, target.data(), static_cast<DWORD>(target.size()), 0));
    CloseHandle(file);
    if (!target.empty()) {
        const int size =
            WideCharToMultiByte(CP_UTF8, 0, target.c_str(), -1, nullptr, 0, nullptr, nullptr);
        place.name.resize(static_cast<std::size_t>(size));
        WideCharToMultiByte(CP_UTF8, 0, target.c_str(), -1, place.name.data(), size, nullptr,
                            nullptr);
        place.name.pop_back();  // the NUL
    }
    return {};
}

Descriptor OpenToRead(const FilePlace& place) {
    const std::wstring path = WidePath(place.name);
    const DWORD attributes = GetFileAttributesW(path.c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
        errno = EISDIR;
        return {};
    }
    return Descriptor(_wsopen(path.c_str(), _O_RDONLY | _O_BINARY | _O_NOINHERIT, _SH_DENYNO, 0));
}

}  // namespace vexil::tool
