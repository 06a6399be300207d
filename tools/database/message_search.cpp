// Words compared with the names and ids of messages.
// SPDX-License-Identifier: MIT
#include "database/message_search.h"

#include <charconv>
#include <optional>

#include "database/frame_id.h"

namespace vexil::tool {
namespace {

std::optional<std::uint32_t> ReadId(std::string_view word) {
    constexpr int Decimal = 10;
    constexpr int Hexadecimal = 16;
    const bool isHex = word.starts_with("0x") || word.starts_with("0X");
    word.remove_prefix(isHex ? 2 : 0);
    std::uint32_t id = 0;
    const char* const end = word.data() + word.size();
    const auto result = std::from_chars(word.data(), end, id, isHex ? Hexadecimal : Decimal);
    return result.ec == std::errc() && result.ptr == end ? std::optional(id) : std::nullopt;
}

// Where the character after the one at a place begins.
std::size_t NextCharacter(std::string_view text, std::size_t at) {
    constexpr unsigned ContinuationMask = 0xC0;
    constexpr unsigned Continuation = 0x80;
    do {
        ++at;
    } while (at < text.size() &&
             (static_cast<unsigned char>(text[at]) & ContinuationMask) == Continuation);
    return at;
}

}  // namespace

bool MatchesPattern(std::string_view text, std::string_view pattern) {
    std::size_t at = 0;
    std::size_t wanted = 0;
    // After the last star, and what it has taken up to now. An earlier star never has to take more.
    std::size_t afterStar = std::string_view::npos;
    std::size_t starEnd = 0;
    while (at < text.size()) {
        if (wanted < pattern.size() && pattern[wanted] == '*') {
            afterStar = ++wanted;
            starEnd = at;
        } else if (wanted < pattern.size() && pattern[wanted] == '?') {
            at = NextCharacter(text, at);
            ++wanted;
        } else if (wanted < pattern.size() && pattern[wanted] == text[at]) {
            ++at;
            ++wanted;
        } else if (afterStar != std::string_view::npos) {
            starEnd = NextCharacter(text, starEnd);
            at = starEnd;
            wanted = afterStar;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of('*', wanted) == std::string_view::npos;
}

std::vector<std::uint32_t> FindMessages(const Snapshot& snapshot, std::string_view word) {
    const std::optional<std::uint32_t> id = ReadId(word);
    std::vector<std::uint32_t> found;
    for (std::uint32_t index = 0; index < snapshot.messages.size(); ++index) {
        const MessageFacts& message = snapshot.messages[index];
        if (id == message.id || (IsExtended(message.id) && id == IdOnBus(message.id)) ||
            MatchesPattern(snapshot.Text(message.name), word) ||
            MatchesPattern(snapshot.Text(message.longName), word)) {
            found.push_back(index);
        }
    }
    return found;
}

}  // namespace vexil::tool
