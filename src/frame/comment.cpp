// Comment: taking and sharing texts.
// SPDX-License-Identifier: MIT
#include "frame/comment.h"

#include <utility>

#include "frame/model_text.h"

namespace vexil {

Comment& Comment::operator=(std::string_view text) {
    content = std::string();
    Append(text);
    return *this;
}

Comment::operator std::string_view() const noexcept {
    if (const auto* own = std::get_if<std::string>(&content)) {
        return *own;
    }
    const auto* tail = std::get_if<Tail>(&content);
    return std::string_view(tail->Whole()).substr(tail->Start());
}

void Comment::Clear() noexcept {
    if (auto* own = std::get_if<std::string>(&content)) {
        own->clear();
    } else {
        content = std::string();
    }
}

void Comment::Append(std::string_view text) {
    auto* own = std::get_if<std::string>(&content);
    std::string& whole = own != nullptr ? *own : std::get_if<Tail>(&content)->Whole();
    const std::size_t seam = whole.size();
    whole += text;
    // What stands in front of the seam is escaped already.
    EscapeQuotes(whole, seam);
}

void Comment::Follow(Comment& other, std::string_view text) {
    if (auto* own = std::get_if<std::string>(&other.content)) {
        Tail shared;
        shared.Whole() = std::move(*own);
        other.content = std::move(shared);
    }
    const Tail& tail = *std::get_if<Tail>(&other.content);
    // A backslash at the end of what stands there already will escape a quote that comes first.
    // Here the quote has nothing in front of it and gets a backslash of its own: that one will do.
    const std::string& whole = tail.Whole();
    const bool isEscaped = text.starts_with('"') && whole.ends_with('\\');
    content = Tail(tail, whole.size() - (isEscaped ? 1 : 0));
}

}  // namespace vexil
