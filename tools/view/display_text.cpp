// Escaping, measuring and breaking text character by character.
// SPDX-License-Identifier: MIT
#include "view/display_text.h"

#include <algorithm>
#include <cstdint>

#include "source/utf8.h"
#include "view/character_width.h"

namespace vexil::tool {
namespace {

// A character of a text, or a byte that is none.
struct Character {
    std::string_view bytes;
    std::uint32_t number = 0;
    bool isValid = false;
};

// Precondition: at is in the text.
Character CharacterAt(std::string_view text, std::size_t at) {
    constexpr std::uint32_t LeadMasks[] = {0, 0x7F, 0x1F, 0x0F, 0x07};
    const std::size_t size = Utf8Length(text, at);
    Character character{text.substr(at, std::max<std::size_t>(1, size)), 0, size != 0};
    character.number = static_cast<unsigned char>(text[at]) & LeadMasks[size];
    for (const char byte : character.bytes.substr(1)) {
        character.number = character.number << 6U | (static_cast<unsigned char>(byte) & 0x3FU);
    }
    return character;
}

bool IsLineEndOrTab(std::uint32_t character) {
    return character >= '\t' && character <= '\r';
}

// C0 and C1 codes, and characters that reorder or break the line they are in.
bool ControlsATerminal(std::uint32_t character) {
    return character < ' ' || (character >= 0x7F && character < 0xA0) || character == 0x61C ||
           character == 0x200E || character == 0x200F ||
           (character >= 0x2028 && character <= 0x202E) ||
           (character >= 0x2066 && character <= 0x2069) || character == 0xFEFF;
}

void AppendEscaped(std::string& out, std::string_view bytes) {
    constexpr std::string_view Digits = "0123456789ABCDEF";
    for (const char byte : bytes) {
        const auto value = static_cast<unsigned char>(byte);
        out += {'\\', 'x', Digits[value / 16U], Digits[value % 16U]};
    }
}

std::string Escaped(std::string_view text, bool keepsLineFeeds) {
    std::string out;
    out.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const Character character = CharacterAt(text, at);
        at += character.bytes.size();
        if (character.isValid && keepsLineFeeds && character.number == '\n') {
            out += '\n';
        } else if (character.isValid && IsLineEndOrTab(character.number)) {
            // A carriage return before a line feed belongs to it.
            const bool isHalf = character.number == '\r' && text.substr(at).starts_with('\n');
            out += isHalf ? "" : " ";
        } else if (!character.isValid || ControlsATerminal(character.number)) {
            AppendEscaped(out, character.bytes);
        } else {
            out += character.bytes;
        }
    }
    return out;
}

// Splits the text after so many columns, with at least one character before the split.
std::size_t SplitAt(std::string_view text, std::size_t columns) {
    std::size_t at = 0;
    std::size_t taken = 0;
    while (at < text.size()) {
        const Character character = CharacterAt(text, at);
        taken += CharacterWidth(character.number);
        if (taken > columns && at != 0) {
            break;
        }
        at += character.bytes.size();
    }
    return at;
}

// Collects words into lines.
class Wrapper {
  public:
    Wrapper(std::vector<std::string>& lines, std::size_t columns)
        : wrapped(lines), limit(std::max<std::size_t>(1, columns)) {}

    void AddLine(std::string_view text) {
        line.clear();
        used = 0;
        while (!text.empty()) {
            const std::size_t end = std::min(text.find(' '), text.size());
            AddWord(text.substr(0, end));
            text.remove_prefix(std::min(end + 1, text.size()));
        }
        wrapped.push_back(line);
    }

  private:
    void AddWord(std::string_view word) {
        std::size_t width = DisplayWidth(word);
        if (word.empty()) {
            return;
        }
        if (!line.empty() && used + 1 + width > limit) {
            Break();
        }
        while (width > limit) {
            const std::size_t end = SplitAt(word, limit);
            if (end == word.size()) {
                break;
            }
            wrapped.emplace_back(word.substr(0, end));
            word.remove_prefix(end);
            width = DisplayWidth(word);
        }
        if (!line.empty()) {
            line += ' ';
            ++used;
        }
        line += word;
        used += width;
    }

    void Break() {
        wrapped.push_back(line);
        line.clear();
        used = 0;
    }

    std::vector<std::string>& wrapped;
    std::size_t limit;
    std::string line;
    std::size_t used = 0;
};

}  // namespace

std::string Printable(std::string_view text) {
    return Escaped(text, false);
}

std::string PlainComment(std::string_view comment) {
    std::string plain;
    plain.reserve(comment.size());
    for (std::size_t at = 0; at < comment.size(); ++at) {
        const bool isBeforeQuote = comment.substr(at).starts_with("\\\"");
        if (!isBeforeQuote) {
            plain += comment[at];
        }
    }
    return plain;
}

std::string PrintableComment(std::string_view comment) {
    return Escaped(PlainComment(comment), true);
}

std::size_t DisplayWidth(std::string_view text) {
    const auto isAscii = [](char byte) { return static_cast<unsigned char>(byte) < 0x80; };
    if (std::all_of(text.begin(), text.end(), isAscii)) {
        return text.size();
    }
    std::size_t width = 0;
    for (std::size_t at = 0; at < text.size();) {
        const Character character = CharacterAt(text, at);
        width += CharacterWidth(character.number);
        at += character.bytes.size();
    }
    return width;
}

std::string PadRight(std::string text, std::size_t columns) {
    const std::size_t width = DisplayWidth(text);
    text.append(columns - std::min(columns, width), ' ');
    return text;
}

std::string PadLeft(const std::string& text, std::size_t columns) {
    return std::string(columns - std::min(columns, DisplayWidth(text)), ' ') + text;
}

std::string Shorten(const std::string& text, std::size_t columns, std::string_view mark) {
    if (DisplayWidth(text) <= columns) {
        return text;
    }
    const std::size_t markWidth = DisplayWidth(mark);
    if (columns <= markWidth) {
        return std::string(mark.substr(0, SplitAt(mark, columns)));
    }
    return text.substr(0, SplitAt(text, columns - markWidth)) + std::string(mark);
}

std::vector<std::string> WrapText(std::string_view text, std::size_t columns) {
    std::vector<std::string> lines;
    Wrapper wrapper(lines, columns);
    for (;;) {
        const std::size_t end = text.find('\n');
        wrapper.AddLine(text.substr(0, end));
        if (end == std::string_view::npos) {
            return lines;
        }
        text.remove_prefix(end + 1);
    }
}

}  // namespace vexil::tool
