// The steps of a save on Windows.
// SPDX-License-Identifier: MIT
#include <fcntl.h>
#include <io.h>
#include <share.h>
#include <windows.h>

#include "file/file_place.h"
#include "file/saved_file.h"
#include "file/temporary_file.h"

namespace vexil::tool {
namespace {

// Reads the identity of a file.
bool Identify(HANDLE file, BY_HANDLE_FILE_INFORMATION& identity) {
    return file != INVALID_HANDLE_VALUE && GetFileInformationByHandle(file, &identity) != 0;
}

// Returns whether the path is a pipe or a device such as NUL and CON, which has no attributes.
bool IsDevice(const std::wstring& path) {
    HANDLE file = CreateFileW(path.c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                              OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return false;
    }
    const bool isDevice = GetFileType(file) != FILE_TYPE_DISK;
    CloseHandle(file);
    return isDevice;
}

std::error_code WriteThrough(const std::wstring& path, std::string_view bytes) {
    Descriptor device(_wsopen(path.c_str(), _O_WRONLY | _O_BINARY | _O_NOINHERIT, _SH_DENYNO, 0));
    if (!device.IsOpen()) {
        return LastError();
    }
    const std::error_code error = WriteAll(device.Value(), bytes);
    return error ? error : device.Close();
}

}  // namespace

std::error_code SaveFile(const std::string& path, std::string_view bytes) {
    FilePlace place;
    if (const std::error_code error = FindFileBehindLinks(path, place)) {
        return error;
    }
    const std::wstring wide = WidePath(place.name);
    const DWORD attributes = GetFileAttributesW(wide.c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
        return std::make_error_code(std::errc::is_a_directory);
    }
    if (IsDevice(WidePath(path))) {
        return WriteThrough(WidePath(path), bytes);
    }
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0) {
        return std::make_error_code(std::errc::permission_denied);
    }
    TemporaryFile file;
    std::error_code error = file.MakeBeside(place);
    if (!error) {
        error = WriteAll(file.File().Value(), bytes);
    }
    if (!error && _commit(file.File().Value()) != 0) {
        error = LastError();
    }
    if (!error) {
        error = file.File().Close();
    }
    return error ? error : file.MoveTo(place);
}

bool IsSameFile(const std::string& path, int descriptor) {
    BY_HANDLE_FILE_INFORMATION one{};
    BY_HANDLE_FILE_INFORMATION other{};
    HANDLE file = CreateFileW(WidePath(path).c_str(), 0,
                              FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                              OPEN_EXISTING, 0, nullptr);
    const bool isKnown = Identify(file, one) &&
                         Identify(reinterpret_cast<HANDLE>(_get_osfhandle(descriptor)), other);
    if (file != INVALID_HANDLE_VALUE) {
        CloseHandle(file);
    }
    return isKnown && one.dwVolumeSerialNumber == other.dwVolumeSerialNumber &&
           one.nFileIndexHigh == other.nFileIndexHigh && one.nFileIndexLow == other.nFileIndexLow;
}

}  // namespace vexil::tool
