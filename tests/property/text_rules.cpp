// What the library does to single texts.
// SPDX-License-Identifier: MIT
#include "property/text_rules.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>

#include "support/reference_text.h"
#include "support/token_twin.h"

namespace vexil::test {
namespace {

constexpr std::string_view Whitespace = " \f\n\r\t\v";

bool IsWhitespace(char ch) {
    return Whitespace.find(ch) != std::string_view::npos;
}

bool IsControl(char ch) {
    const auto byte = static_cast<unsigned char>(ch);
    return byte < 32 || byte == 127;
}

// Whether white space after one of the tokens makes it a keyword.
bool HoldsKeywordToken(const std::string& text) {
    std::string token;
    for (const char ch : text) {
        if (!IsWhitespace(ch)) {
            token += ch;
        } else {
            if (IsKeyword(token)) {
                return true;
            }
            token.clear();
        }
    }
    return false;
}

}  // namespace

std::string CutText(const std::string& text, std::size_t size) {
    std::size_t end = 0;
    while (end < text.size()) {
        const std::size_t next = end + reference::CharacterLength(text, end);
        if (next > size) {
            break;
        }
        end = next;
    }
    return text.substr(0, end);
}

std::string IdentifierOf(const std::string& text) {
    return reference::MakeCIdentifier(text);
}

std::vector<std::string> ReceiversOf(const std::string& list) {
    std::vector<std::string> receivers;
    std::size_t start = 0;
    while (start <= list.size()) {
        const std::size_t end = std::min(list.find(',', start), list.size());
        const std::string piece = reference::Trimmed(list.substr(start, end - start));
        if (!piece.empty()) {
            receivers.push_back(IdentifierOf(piece));
        }
        start = end + 1;
    }
    return receivers;
}

std::string WithoutLineControls(std::string text) {
    for (char& ch : text) {
        ch = IsWhitespace(ch) ? ' ' : ch;
    }
    return text;
}

std::string WithoutControls(std::string text) {
    std::erase_if(text, [](char ch) { return IsControl(ch) && !IsWhitespace(ch); });
    return text;
}

std::string WithEscapedQuotes(const std::string& text) {
    std::string escaped;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == '"' && (at == 0 || text[at - 1] != '\\')) {
            escaped += '\\';
        }
        escaped += text[at];
    }
    return escaped;
}

bool IsKeyword(const std::string& token) {
    return std::any_of(reference::Keywords.begin(), reference::Keywords.end(),
                       [&](const reference::Keyword& keyword) { return keyword.text == token; });
}

bool HoldsKeyword(const std::string& text) {
    return HoldsKeywordToken('"' + WithoutControls(text) + '"');
}

bool HoldsKeywordBehindItsFirstLine(const std::string& text) {
    const std::size_t lineEnd = text.find('\n');
    return lineEnd != std::string::npos &&
           HoldsKeywordToken(WithoutControls(text.substr(lineEnd)) + '"');
}

bool NumberByFile(double& number) {
    char text[64];
    std::snprintf(text, sizeof text, "%.10g", number);
    errno = 0;
    number = std::strtod(text, nullptr);
    return errno != ERANGE;
}

bool AttributeText(const std::string& statement, std::size_t tokenAt, std::string& text) {
    const std::vector<std::string> tokens = TwinTokens(statement, " \f\n\r\t\v;,");
    if (tokenAt >= tokens.size()) {
        return false;
    }
    const std::string& token = tokens[tokenAt];
    const std::size_t first = token.find('"');
    const std::size_t last = token.rfind('"');
    if (first == std::string::npos || last - first < 2) {
        return false;
    }
    text = token.substr(first + 1, last - first - 1);
    return true;
}

void AddDescriptions(const std::string& text, std::map<std::int32_t, std::string>& enums) {
    std::size_t start = 0;
    for (;;) {
        const std::size_t opening = text.find('"', start);
        if (opening == std::string::npos) {
            return;
        }
        std::int32_t value = 0;
        if (!reference::TryParseI32(text.substr(start, opening - start), value)) {
            start = opening + 1;
            continue;
        }
        const std::size_t closing = text.find('"', opening + 1);
        const std::string description =
            closing == std::string::npos ? "" : text.substr(opening + 1, closing - opening - 1);
        const auto [entry, isNew] = enums.emplace(value, description);
        if (!isNew) {
            entry->second += " - " + description;
        }
        if (closing == std::string::npos) {
            return;
        }
        start = closing + 1;
    }
}

Indicator IndicatorOf(const std::string& head) {
    const Indicator none{0, 0, reference::Trimmed(head)};
    const std::size_t at = head.find_last_of("mM");
    if (at == std::string::npos || at == 0 || !IsWhitespace(head[at - 1])) {
        return none;
    }
    const std::string rest = head.substr(at + 1);
    const std::string name = reference::Trimmed(head.substr(0, at));
    if (head[at] == 'M') {
        return reference::Trimmed(rest).empty() ? Indicator{1, 0, name} : none;
    }
    std::uint32_t value = 0;
    if (rest.find_first_not_of("0123456789abcdefABCDEFx \t") != std::string::npos ||
        !reference::TryParseU32(rest, value)) {
        return none;
    }
    return {2, value, name};
}

}  // namespace vexil::test
