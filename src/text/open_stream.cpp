// From a caller's path to an open file stream.
// SPDX-License-Identifier: MIT
#include "text/open_stream.h"

#include "text/utf8_text.h"
#include "vexil64.h"

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#include <share.h>
#include <sys/stat.h>
#include <utf8.h>

#include <ext/stdio_filebuf.h>
#include <iterator>
#include <utility>
#endif

namespace vexil {

std::string CheckedPath(const char* path, std::uint32_t pathBufferSize, std::uint32_t& state) {
    std::string text;
    if (pathBufferSize > MaxPathBufferSize) {
        state = StatePathTooLong;
    } else if (!CopyUtf8Text(text, path, path == nullptr ? 0 : pathBufferSize)) {
        state = StatePathInvalid;
    } else if (text.empty()) {
        state = StatePathEmpty;
    }
    return text;
}

#ifdef _WIN32

// Names of files are UTF-16 there. The standard opening of a stream would do, but for a host that
// has made binary files the default of the runtime; this one is text whatever the host does.
void OpenStream(std::fstream& stream, const std::string& path, OpenMode mode) {
    std::wstring widePath;
    utf8::utf8to16(path.begin(), path.end(), std::back_inserter(widePath));
    const bool isRead = mode == OpenMode::Read;
    const int access = isRead ? _O_RDONLY : _O_WRONLY | _O_CREAT | _O_TRUNC;
    const int file = _wsopen(widePath.c_str(), access | _O_TEXT, _SH_DENYNO, _S_IREAD | _S_IWRITE);
    stream.clear();
    if (file < 0) {
        stream.setstate(std::ios_base::failbit);
        return;
    }
    *stream.rdbuf() =
        __gnu_cxx::stdio_filebuf<char>(file, isRead ? std::ios_base::in : std::ios_base::out);
}

#else

void OpenStream(std::fstream& stream, const std::string& path, OpenMode mode) {
    stream.clear();
    stream.open(path, mode == OpenMode::Read ? std::ios_base::in : std::ios_base::out);
}

#endif

}  // namespace vexil
