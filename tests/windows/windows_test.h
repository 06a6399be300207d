// Helpers of the tests for Windows: make and find files directly through the system, without the
// runtime that the library uses.
// SPDX-License-Identifier: MIT
#pragma once

#include <windows.h>

#include <memory>
#include <string>

#include "api/api_test.h"

namespace vexil::test {

struct HandleCloser {
    void operator()(HANDLE handle) const { CloseHandle(handle); }
};

// The handle of an open file, or null.
using File = std::unique_ptr<void, HandleCloser>;

// Opens a file with access and sharing constants of the system.
inline File OpenFile(const std::wstring& path, DWORD access, DWORD sharing, DWORD creation) {
    HANDLE handle = CreateFileW(path.c_str(), access, sharing, nullptr, creation,
                                FILE_ATTRIBUTE_NORMAL, nullptr);
    return File(handle == INVALID_HANDLE_VALUE ? nullptr : handle);
}

inline bool Exists(const std::wstring& path) {
    return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

inline constexpr DWORD FullSharing = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

}  // namespace vexil::test
