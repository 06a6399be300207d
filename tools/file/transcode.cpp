// Transcoding with iconv of the C library.
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

    // Converts as many of the bytes as possible and appends the result. Without bytes, appends what
    // the conversion still has in its state. Returns false on an invalid or incomplete sequence.
    bool Convert(std::string_view& bytes, std::string& text) {
        // iconv does not write to its input, although the type of its parameter allows it.
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
    // Removes a byte order mark, after which the library would not recognise a keyword.
    if (out.text.starts_with(ByteOrderMark)) {
        out.text.erase(0, ByteOrderMark.size());
    }
    return out;
}

}  // namespace vexil::tool
