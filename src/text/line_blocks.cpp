// LineBlocks: reading, cleaning and marking.
// SPDX-License-Identifier: MIT
#include "text/line_blocks.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <span>
#include <utility>

#include "text/char_class.h"
#include "text/keywords.h"
#include "text/utf8_text.h"

namespace vexil {
namespace {

constexpr std::size_t BlockSize = std::size_t{64} * 1024;

// Inner loops over this number of bytes have no branch, so that the compiler can vectorise them.
constexpr std::size_t Width = 64;

constexpr bool IsRemoved(char ch) {
    return IsControl(ch) & !IsSpace(ch);
}

// Whether the byte may require a change of its line.
constexpr bool IsUnclean(char ch) {
    return (static_cast<unsigned char>(ch - ' ') > '~' - ' ') &
           (static_cast<unsigned char>(ch - '\t') > '\r' - '\t');
}

// Returns the first byte that is not plain ASCII text, or last.
char* FindUnclean(char* first, char* last) {
    for (; static_cast<std::size_t>(last - first) >= Width; first += Width) {
        unsigned char found = 0;
        for (std::size_t at = 0; at < Width; ++at) {
            found |= static_cast<unsigned char>(IsUnclean(first[at]));
        }
        if (found != 0) {
            break;
        }
    }
    return std::find_if(first, last, IsUnclean);
}

// Repairs the UTF-8 of whole lines and removes control characters. Returns the new end.
char* Clean(char* first, char* last) {
    char* firstRemoved = last;
    for (char* at = FindUnclean(first, last); at != last; at = FindUnclean(at, last)) {
        if (IsRemoved(*at)) {
            firstRemoved = std::min(firstRemoved, at);
            ++at;
        } else {
            // No character continues into ASCII, so the run of other bytes can be repaired alone.
            char* const stop = std::find_if(
                at, last, [](char ch) { return static_cast<unsigned char>(ch) < 0x80; });
            ReplaceInvalidUtf8(std::span(at, stop));
            at = stop;
        }
    }
    return std::remove_if(firstRemoved, last, IsRemoved);
}

constexpr bool IsMark(char before, char ch) {
    return (ch == '\n') | (IsSpace(ch) & MayEndKeyword(before));
}

// Appends the positions of the marks of buffer from from up to to. Precondition: from > 0.
void AppendMarks(const char* buffer, std::size_t from, std::size_t to,
                 std::vector<std::size_t>& marks) {
    for (; to - from >= Width; from += Width) {
        std::array<unsigned char, Width> isMark{};
        for (std::size_t at = 0; at < Width; ++at) {
            isMark[at] = IsMark(buffer[from + at - 1], buffer[from + at]);
        }
        for (std::size_t word = 0; word < Width; word += sizeof(std::uint64_t)) {
            std::uint64_t anyMark = 0;  // most words have none
            std::memcpy(&anyMark, &isMark[word], sizeof(anyMark));
            for (std::size_t at = word; anyMark != 0 && at < word + sizeof(anyMark); ++at) {
                if (isMark[at] != 0) {
                    marks.push_back(from + at);
                }
            }
        }
    }
    for (; from < to; ++from) {
        if (IsMark(buffer[from - 1], buffer[from])) {
            marks.push_back(from);
        }
    }
}

}  // namespace

LineBlocks::Outcome LineBlocks::Read(File& file, std::size_t keepFrom) {
    marks.clear();
    GiveUp(keepFrom);
    std::size_t linesEnd = 0;
    const Outcome outcome = ReadLines(file, linesEnd);
    if (outcome == Outcome::Lines) {
        // The beginning of the next line stays raw. It moves up, since removing control characters
        // left a gap before it.
        const char* const clean = Clean(buffer.get() + end, buffer.get() + linesEnd);
        const auto cleanEnd = static_cast<std::size_t>(clean - buffer.get());
        std::copy(buffer.get() + linesEnd, buffer.get() + rawEnd, buffer.get() + cleanEnd);
        rawEnd -= linesEnd - cleanEnd;
        AppendMarks(buffer.get(), end, cleanEnd, marks);
        end = cleanEnd;
    }
    return outcome;
}

void LineBlocks::GiveUp(std::size_t keepFrom) {
    const std::size_t distance = keepFrom - Start;
    if (distance > 0) {
        std::copy(buffer.get() + keepFrom, buffer.get() + rawEnd, buffer.get() + Start);
        end -= distance;
        rawEnd -= distance;
    }
}

// Ensures room for at least half a block, which includes the line feed of the last line.
void LineBlocks::MakeRoom() {
    if (capacity > rawEnd + BlockSize / 2) {
        return;
    }
    const std::size_t larger = std::max(capacity * 2, BlockSize);
    auto moved = std::make_unique_for_overwrite<char[]>(larger);
    if (buffer == nullptr) {
        moved[0] = '\n';
    } else {
        std::copy_n(buffer.get(), rawEnd, moved.get());
    }
    buffer = std::move(moved);
    capacity = larger;
}

// Reads until a line is complete. linesEnd: the position after the last complete line.
LineBlocks::Outcome LineBlocks::ReadLines(File& file, std::size_t& linesEnd) {
    while (!isAtEnd) {
        MakeRoom();
        char* const place = buffer.get() + rawEnd;
        const std::ptrdiff_t count = file.Read(std::span(place, capacity - rawEnd));
        if (count < 0) {
            return Outcome::Failure;
        }
        if (count == 0) {
            isAtEnd = true;
            if (rawEnd == end) {
                break;
            }
            buffer[rawEnd++] = '\n';
            linesEnd = rawEnd;
            return Outcome::Lines;
        }
        rawEnd += static_cast<std::size_t>(count);
        const std::size_t lineFeed =
            std::string_view(place, static_cast<std::size_t>(count)).rfind('\n');
        if (lineFeed != std::string_view::npos) {
            linesEnd = static_cast<std::size_t>(place - buffer.get()) + lineFeed + 1;
            return Outcome::Lines;
        }
    }
    return Outcome::EndOfFile;
}

}  // namespace vexil
