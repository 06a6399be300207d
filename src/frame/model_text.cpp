// The forms in which the model stores texts.
// SPDX-License-Identifier: MIT
#include "frame/model_text.h"

#include <algorithm>

#include "text/lexical.h"
#include "text/utf8_text.h"

namespace vexil {

std::string_view DisplayForm(Arena& arena, std::string_view text) {
    const auto isReplaced = [](char ch) { return ch >= '\t' && ch <= '\r'; };
    if (std::none_of(text.begin(), text.end(), isReplaced)) {
        return text;
    }
    const std::string_view copy = arena.Keep(text);
    char* const characters = Arena::Characters(copy);
    std::replace_if(characters, characters + copy.size(), isReplaced, ' ');
    return copy;
}

std::string_view IdentifierForm(Arena& arena, std::string_view text) {
    return IsValidCIdentifier(text) ? text : arena.Keep(MakeCIdentifier(text));
}

std::string_view AsciiForm(Arena& arena, std::string_view text) {
    return IsAscii(text) ? text : arena.Keep(FoldToAscii(text));
}

void MakeNames(Arena& arena, std::string_view text, std::string_view& longName,
               std::string_view& name) {
    const bool isIdentifier = IsValidCIdentifier(text);
    longName = isIdentifier ? text : DisplayForm(arena, text);
    name = isIdentifier ? text : arena.Keep(MakeCIdentifier(longName));
}

}  // namespace vexil
