// Transcoding by iconv of the C library.
// SPDX-License-Identifier: MIT
#include "file/transcode.h"

#include <iconv.h>

#include <array>
#include <cerrno>

namespace vexil::tool {
namespace {

constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

// Owns a conversion to UTF-8.
class Conversion {
  public:
    explicit Conversion(const std::string& from) : handle(iconv_open("UTF-8", from.c_str())) {}
    Conversion(const Conversion&) = delete;
    Conversion& operator=(const Conversion&) = delete;
    ~Conversion() {
        if (IsKnown()) {
            iconv_close(handle);
        }
    }

    bool IsKnown() const {
        // NOLINTNEXTLINE(cppcoreguidelines-pro-type-cstyle-cast,performance-no-int-to-ptr)
        return handle != (iconv_t)-1;
    }

    // Takes what it can of the bytes and appends what becomes of it. Without bytes: what the
    // encoding still holds back. Returns false on a sequence that is not valid, or cut off.
    bool Convert(std::string_view& bytes, std::string& text) {
        // iconv does not write to what it reads, although its parameter would allow it.
        char* from =
            const_cast<char*>(bytes.data());  // NOLINT(cppcoreguidelines-pro-type-const-cast)
        std::size_t left = bytes.size();
        bool isDone = false;
        bool isStuck = false;
        while (!isDone && !isStuck) {
            char* to = room.data();
            std::size_t free = room.size();
            isDone = iconv(handle, left == 0 ? nullptr : &from, &left, &to, &free) != Failed;
            isStuck = !isDone && errno != E2BIG;
            text.append(room.data(), room.size() - free);
        }
        bytes.remove_prefix(bytes.size() - left);
        return isDone;
    }

  private:
    static constexpr auto Failed = static_cast<std::size_t>(-1);

    iconv_t handle;
    std::array<char, 16384> room{};
};

}  // namespace

Transcoded Transcode(std::string_view bytes, const std::string& encoding) {
    Conversion conversion(encoding);
    Transcoded out;
    if (!conversion.IsKnown()) {
        out.result = TranscodeResult::UnknownEncoding;
        return out;
    }
    std::string_view left = bytes;
    if (!conversion.Convert(left, out.text) || !conversion.Convert(left, out.text)) {
        out.result = TranscodeResult::InvalidText;
        out.position = bytes.size() - left.size();
    }
    // A mark that only says how the bytes were ordered would hide the keyword after it.
    if (out.text.starts_with(ByteOrderMark)) {
        out.text.erase(0, ByteOrderMark.size());
    }
    return out;
}

}  // namespace vexil::tool
