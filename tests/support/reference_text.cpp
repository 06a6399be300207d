// Plain forms of the text functions: UTF-8, tokens, identifiers and numbers.
// SPDX-License-Identifier: MIT
#include "support/reference_text.h"

#include <cerrno>
#include <cstdlib>

namespace vexil::test::reference {
namespace {

// strtoull and strtoll, whose 64 bits hold every number of 32. False when nothing was converted or
// the number does not fit.
template <typename Number, typename Convert>
bool Converted(const std::string& text, Number& number, Convert convert) {
    char* end = nullptr;
    errno = 0;
    number = convert(text.c_str(), &end);
    return end != text.c_str() && errno != ERANGE;
}

bool IsSpace(char ch) {
    return ch == ' ' || ch == '\f' || ch == '\n' || ch == '\r' || ch == '\t' || ch == '\v';
}

bool IsDigit(char ch) {
    return ch >= '0' && ch <= '9';
}

bool IsIdentifierByte(char ch) {
    return IsDigit(ch) || (ch >= 'a' && ch <= 'z') || (ch >= 'A' && ch <= 'Z') || ch == '_';
}

// The first position at or after from that is, or is not, white space.
std::uint64_t FindSpace(const std::string& text, std::uint64_t from, bool isSpace) {
    for (std::uint64_t at = from; at < text.size(); ++at) {
        if (IsSpace(text[at]) == isSpace) {
            return at;
        }
    }
    return npos;
}

unsigned Byte(const std::string& text, std::size_t at) {
    return static_cast<unsigned char>(text[at]);
}

}  // namespace

const std::array<Keyword, 35> Keywords = {{
    {"SG_", false},
    {"CM_", true},
    {"BO_", false},
    {"VAL_", false},
    {"BA_", true},
    {"BA_DEF_", true},
    {"SIG_VALTYPE_", false},
    {"BU_", false},
    {"BS_", false},
    {"VERSION", false},
    {"NS_", false},
    {"EV_", false},
    {"NS_DESC_", false},
    {"CAT_DEF_", false},
    {"CAT_", false},
    {"FILTER", false},
    {"BA_DEF_DEF_", false},
    {"EV_DATA_", false},
    {"ENVVAR_DATA_", false},
    {"SGTYPE_", false},
    {"SGTYPE_VAL_", false},
    {"BA_DEF_SGTYPE_", false},
    {"BA_SGTYPE_", false},
    {"SIG_TYPE_REF_", false},
    {"VAL_TABLE_", false},
    {"SIG_GROUP_", false},
    {"SIGTYPE_VALTYPE_", false},
    {"BO_TX_BU_", false},
    {"BA_DEF_REL_", false},
    {"BA_REL_", false},
    {"BA_DEF_DEF_REL_", false},
    {"BU_SG_REL_", false},
    {"BU_EV_REL_", false},
    {"BU_BO_REL_", false},
    {"SG_MUL_VAL_", false},
}};

std::size_t CharacterLength(const std::string& text, std::size_t at) {
    const unsigned lead = Byte(text, at);
    std::size_t length = 0;
    unsigned codePoint = 0;
    unsigned smallest = 0;  // below it, a shorter form exists
    if (lead < 0x80) {
        return 1;
    } else if (lead >= 0xC0 && lead < 0xE0) {
        length = 2;
        codePoint = lead & 0x1FU;
        smallest = 0x80;
    } else if (lead >= 0xE0 && lead < 0xF0) {
        length = 3;
        codePoint = lead & 0x0FU;
        smallest = 0x800;
    } else if (lead >= 0xF0 && lead < 0xF8) {
        length = 4;
        codePoint = lead & 0x07U;
        smallest = 0x10000;
    } else {
        return 0;
    }
    if (at + length > text.size()) {
        return 0;
    }
    for (std::size_t next = at + 1; next < at + length; ++next) {
        if (Byte(text, next) < 0x80 || Byte(text, next) > 0xBF) {
            return 0;
        }
        codePoint = codePoint * 64 + (Byte(text, next) & 0x3FU);
    }
    const bool isSurrogate = codePoint >= 0xD800 && codePoint <= 0xDFFF;
    return codePoint < smallest || isSurrogate || codePoint > 0x10FFFF ? 0 : length;
}

bool IsValidUtf8(const std::string& text) {
    std::size_t at = 0;
    while (at < text.size()) {
        const std::size_t length = CharacterLength(text, at);
        if (length == 0) {
            return false;
        }
        at += length;
    }
    return true;
}

std::string CleanLine(std::string line) {
    ReplaceInvalidUtf8(line);
    std::erase_if(line, [](char ch) {
        const auto byte = static_cast<unsigned char>(ch);
        return (byte < 32 || byte == 127) && !IsSpace(ch);
    });
    return line;
}

// A text that ends inside a character is cut before it: the lead byte of a character of two, three
// or four bytes is among the last one, two or three bytes. Of an invalid text of at most three
// bytes that cannot be cut so, nothing is left.
bool Utf8FitLength(const std::string& text, std::uint64_t bufferSize, std::uint64_t& length) {
    length = bufferSize < 2 ? 0 : bufferSize - 1;
    if (bufferSize < 2 || text.size() < length || IsValidUtf8(text.substr(0, length))) {
        return bufferSize >= 2;
    }
    const std::string start = text.substr(0, length);
    constexpr std::array<unsigned, 3> Leads = {0xC0, 0xE0, 0xF0};
    length = 0;
    for (std::size_t cut = 1; cut <= Leads.size() && cut < start.size(); ++cut) {
        const std::string front = start.substr(0, start.size() - cut);
        if (Byte(start, front.size()) >= Leads[cut - 1] && IsValidUtf8(front)) {
            length = front.size();
            return true;
        }
    }
    return start.size() <= Leads.size();
}

bool CopyUtf8Text(std::string& out, const char* buffer, std::uint64_t bufferSize) {
    out = "";
    if (bufferSize == 0) {
        return true;
    }
    std::uint64_t nul = 0;
    while (nul < bufferSize && buffer[nul] != '\0') {
        ++nul;
    }
    if (nul == 0) {
        return true;
    }
    const std::string text(buffer, nul < bufferSize ? nul : bufferSize - 1);
    std::uint64_t length = 0;
    if (!Utf8FitLength(text, text.size() + 1, length)) {
        return false;
    }
    out = text.substr(0, length);
    return true;
}

void ReplaceInvalidUtf8(std::string& line) {
    std::size_t at = 0;
    while (at < line.size()) {
        const std::size_t length = CharacterLength(line, at);
        if (length == 0) {
            line[at] = '_';
        } else {
            at += length;
        }
    }
}

std::string FoldToAscii(const std::string& text) {
    std::string folded;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t length = CharacterLength(text, at);
        folded += length == 1 ? text[at] : '_';
        at += length;
    }
    return folded;
}

bool ParseUnsignedToken(const std::string& text, std::uint32_t& value, std::uint64_t& end,
                        std::uint64_t from) {
    value = 0;
    end = npos;
    const std::uint64_t start = FindSpace(text, from, false);
    if (start == npos) {
        return false;
    }
    const std::uint64_t stop = FindSpace(text, start, true);
    if (stop == npos) {
        return false;
    }
    const std::string token = text.substr(start, stop - start);
    std::uint32_t number = 0;
    if (!TryParseU32(token, number)) {
        return false;
    }
    std::size_t zeros = 0;
    while (zeros < token.size() && token[zeros] == '0') {
        ++zeros;
    }
    if (number == 0 && zeros != token.size()) {
        return false;
    }
    if (number != 0 && std::to_string(number).size() != token.size() - zeros) {
        return false;
    }
    end = stop;
    value = number;
    return true;
}

std::string Trimmed(const std::string& text) {
    std::string trimmed = text;
    while (!trimmed.empty() && IsSpace(trimmed.back())) {
        trimmed.pop_back();
    }
    while (!trimmed.empty() && IsSpace(trimmed.front())) {
        trimmed.erase(0, 1);
    }
    return trimmed;
}

bool IsValidCIdentifier(const std::string& text) {
    if (text.empty() || text.size() > 32 || IsDigit(text[0])) {
        return false;
    }
    for (const char ch : text) {
        if (!IsIdentifierByte(ch)) {
            return false;
        }
    }
    return true;
}

std::string MakeCIdentifier(const std::string& text) {
    if (text.empty()) {
        return "";
    }
    std::string identifier = FoldToAscii(text).substr(0, 32);
    if (IsDigit(identifier[0])) {
        identifier[0] = '_';
    }
    for (char& ch : identifier) {
        if (!IsIdentifierByte(ch)) {
            ch = '_';
        }
    }
    return identifier;
}

bool TryParseU32(const std::string& text, std::uint32_t& value) {
    value = 0;
    unsigned long long number = 0;
    // The magnitude is what strtoul compares with its range, so a minus sign goes first.
    std::string magnitude = text;
    std::size_t at = 0;
    while (at < text.size() && IsSpace(text[at])) {
        ++at;
    }
    const bool isNegative = at < text.size() && text[at] == '-';
    if (isNegative) {
        magnitude[at] = '+';
    }
    const auto convert = [](const char* from, char** end) { return std::strtoull(from, end, 10); };
    if (!Converted(magnitude, number, convert) || number > 0xFFFFFFFFU) {
        return false;
    }
    value = static_cast<std::uint32_t>(isNegative ? 0x100000000U - number : number);
    return true;
}

bool TryParseI32(const std::string& text, std::int32_t& value) {
    value = 0;
    std::int64_t number = 0;
    if (!TryParseI64(text, number) || number < -2147483648LL || number > 2147483647LL) {
        return false;
    }
    value = static_cast<std::int32_t>(number);
    return true;
}

bool TryParseI64(const std::string& text, std::int64_t& value) {
    value = 0;
    long long number = 0;
    const auto convert = [](const char* from, char** end) { return std::strtoll(from, end, 10); };
    if (!Converted(text, number, convert)) {
        return false;
    }
    value = number;
    return true;
}

}  // namespace vexil::test::reference
