// Transcode: encodings made UTF-8, and where a text is not in its encoding.
// SPDX-License-Identifier: MIT
#include "file/transcode.h"

#include <gtest/gtest.h>

namespace vexil::tool {
namespace {

using namespace std::string_view_literals;

void ExpectText(std::string_view bytes, const char* encoding, std::string_view text) {
    const Transcoded out = Transcode(bytes, encoding);
    EXPECT_EQ(out.result, TranscodeResult::Done);
    EXPECT_EQ(out.text, text);
}

TEST(Transcode, MakesUtf8OfACodePage) {
    ExpectText("20 \xB0\x43, 5 \x80", "windows-1252", "20 °C, 5 €");
    ExpectText("20 \xB0\x43", "ISO-8859-1", "20 °C");
    ExpectText("\x93\xFA", "SHIFT-JIS", "日");
}

TEST(Transcode, KeepsTextThatIsUtf8Already) {
    ExpectText("20 °C\r\n", "UTF-8", "20 °C\r\n");
}

TEST(Transcode, ConvertsEmptyTextToEmptyText) {
    ExpectText("", "windows-1252", "");
}

TEST(Transcode, LeavesOutAByteOrderMark) {
    ExpectText("\xEF\xBB\xBF\x42", "UTF-8", "B");
    ExpectText("\xFF\xFE\x42\x00"sv, "UTF-16", "B");
    ExpectText("\xFF\xFE\x42\x00"sv, "UTF-16LE", "B");
    ExpectText("\xFE\xFF\x00\x42"sv, "UTF-16", "B");
}

// More than the room of one step, with a character across each of its ends.
TEST(Transcode, MakesUtf8OfALongText) {
    std::string bytes(100'001, '\xB0');
    std::string text;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        text += "°";
    }
    ExpectText(bytes, "windows-1252", text);
}

TEST(Transcode, FlushesCharactersThatTheEncoderHoldsBack) {
    // A letter that a combining accent could still change.
    ExpectText("a\xE2", "CP1258", "aâ");
}

TEST(Transcode, ReportsAnUnknownEncoding) {
    EXPECT_EQ(Transcode("a", "windows-9999").result, TranscodeResult::UnknownEncoding);
    EXPECT_EQ(Transcode("a", "no such thing").result, TranscodeResult::UnknownEncoding);
}

TEST(Transcode, ReportsTheFirstByteThatIsNotValidInTheEncoding) {
    const Transcoded out = Transcode("ab\n\xC3\xA9\xFF\x41", "UTF-8");
    EXPECT_EQ(out.result, TranscodeResult::InvalidText);
    EXPECT_EQ(out.position, 5U);
    EXPECT_EQ(out.text, "ab\né");
}

TEST(Transcode, ReportsACharacterThatIsCutOffAtTheEnd) {
    const Transcoded out = Transcode("a\xC3", "UTF-8");
    EXPECT_EQ(out.result, TranscodeResult::InvalidText);
    EXPECT_EQ(out.position, 1U);
}

TEST(Transcode, ReportsAByteThatACodePageDoesNotHave) {
    const Transcoded out = Transcode("a\x81", "windows-1252");
    EXPECT_EQ(out.result, TranscodeResult::InvalidText);
    EXPECT_EQ(out.position, 1U);
}

}  // namespace
}  // namespace vexil::tool
