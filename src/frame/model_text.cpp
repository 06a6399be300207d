// What the texts of the model go through on their way in.
// SPDX-License-Identifier: MIT
#include "frame/model_text.h"

#include <algorithm>

#include "text/lexical.h"

namespace vexil {
namespace {

bool IsCleaned(char ch) {
    return ch >= '\t' && ch <= '\r';
}

}  // namespace

void CleanControlChars(std::string& text) {
    std::replace_if(text.begin(), text.end(), IsCleaned, ' ');
}

void EscapeQuotes(std::string& text, std::size_t from) {
    std::size_t quote = text.find('"', from);
    if (quote == std::string::npos) {
        return;
    }
    const std::string tail = text.substr(quote);
    text.resize(quote);
    for (const char ch : tail) {
        if (ch == '"' && (text.empty() || text.back() != '\\')) {
            text += '\\';
        }
        text += ch;
    }
}

std::string IdentifierForm(std::string_view text) {
    return IsValidCIdentifier(text) ? std::string(text) : MakeCIdentifier(text);
}

SharedText IdentifierForm(const SharedText& text) {
    return IsValidCIdentifier(text) ? text : SharedText(MakeCIdentifier(text));
}

SharedText DisplayForm(const SharedText& text) {
    const std::string_view characters = text;
    if (std::none_of(characters.begin(), characters.end(), IsCleaned)) {
        return text;
    }
    std::string cleaned(characters);
    CleanControlChars(cleaned);
    return SharedText(cleaned);
}

}  // namespace vexil
