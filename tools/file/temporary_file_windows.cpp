// Temporary files on Windows, where a separate thread handles Ctrl-C. This thread removes them.
// SPDX-License-Identifier: MIT
#include <fcntl.h>
#include <io.h>
#include <share.h>
#include <sys/stat.h>
#include <windows.h>

#include <algorithm>
#include <cerrno>
#include <mutex>
#include <vector>

#include "file/temporary_file.h"
#include "file/temporary_name.h"

namespace vexil::tool {
namespace {

struct Entry {
    std::wstring path;
    int descriptor;
};

std::mutex entriesMutex;
std::vector<Entry> entries;

BOOL WINAPI RemoveAll(DWORD) {
    // Locked until the process ends, so that no file is made or renamed after this.
    entriesMutex.lock();
    for (const Entry& entry : entries) {
        _close(entry.descriptor);
        DeleteFileW(entry.path.c_str());
    }
    return FALSE;  // ends the process
}

void Unlist(const std::wstring& path) {
    std::erase_if(entries, [&path](const Entry& entry) { return entry.path == path; });
}

}  // namespace

void RemoveTemporaryFilesOnSignals() {
    SetConsoleCtrlHandler(RemoveAll, TRUE);
}

TemporaryFile::~TemporaryFile() {
    if (exists) {
        const std::lock_guard lock(entriesMutex);
        const std::wstring path = WidePath(place.name);
        static_cast<void>(file.Close());
        DeleteFileW(path.c_str());
        Unlist(path);
    }
}

std::error_code TemporaryFile::MakeBeside(const FilePlace& other) {
    const std::lock_guard lock(entriesMutex);
    const std::size_t folderSize = other.name.find_last_of("/\\:") + 1;
    constexpr int MostTries = 100;
    for (int tries = 0; tries < MostTries; ++tries) {
        name = TemporaryName(NameSize);
        place.name = other.name.substr(0, folderSize) + name;
        const std::wstring path = WidePath(place.name);
        file = Descriptor(_wsopen(path.c_str(),
                                  _O_RDWR | _O_CREAT | _O_EXCL | _O_BINARY | _O_NOINHERIT,
                                  _SH_DENYNO, _S_IREAD | _S_IWRITE));
        if (file.IsOpen()) {
            entries.push_back({path, file.Value()});
            exists = true;
            return {};
        }
        if (errno != EEXIST) {
            return LastError();
        }
    }
    return std::make_error_code(std::errc::file_exists);
}

std::error_code TemporaryFile::MoveTo(const FilePlace& other) {
    const std::lock_guard lock(entriesMutex);
    const std::wstring path = WidePath(place.name);
    if (MoveFileExW(path.c_str(), WidePath(other.name).c_str(),
                    MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) == 0) {
        return std::make_error_code(std::errc::permission_denied);
    }
    Unlist(path);
    exists = false;
    return {};
}

}  // namespace vexil::tool
