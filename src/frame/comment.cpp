// Comment: taking and sharing texts.
// SPDX-License-Identifier: MIT
#include "frame/comment.h"

#include "frame/model_text.h"

namespace vexil {

Comment& Comment::operator=(std::string_view text) {
    tail.Clear();
    if (!text.empty()) {
        Append(text);
    }
    return *this;
}

void Comment::Append(std::string_view text) {
    std::string& whole = tail.Whole();
    const std::size_t seam = whole.size();
    whole += text;
    // What stands in front of the seam is escaped already.
    EscapeQuotes(whole, seam);
}

void Comment::Follow(Comment& other, std::string_view text) {
    // A backslash at the end of what stands there already will escape a quote that comes first.
    // Here the quote has nothing in front of it and gets a backslash of its own: that one will do.
    const std::string& whole = other.tail.Whole();
    const bool isEscaped = text.starts_with('"') && whole.ends_with('\\');
    tail.Follow(other.tail, whole.size() - (isEscaped ? 1 : 0));
}

}  // namespace vexil
