// Comment, the comment of a message or signal.
// SPDX-License-Identifier: MIT
#pragma once

#include <ostream>
#include <string>
#include <string_view>
#include <variant>

#include "frame/shared_tail.h"

namespace vexil {

// Each double quote of it stands behind a backslash. Nearly every comment has one owner; several of
// one id and name share what a file gives them.
class Comment {
  public:
    // Becomes text, with its quotes escaped. No other comment changes.
    Comment& operator=(std::string_view text);

    operator std::string_view() const noexcept;
    bool IsEmpty() const noexcept { return std::string_view(*this).empty(); }
    void Clear() noexcept;

    // Appends text with its quotes escaped, to the comments of all that share this one. Kept on
    // purpose: a second comment lands behind the first, with nothing between them, and a backslash
    // at the end of the first escapes a quote at the start of the second.
    void Append(std::string_view text);

    // Shares with other what is appended to it from now on, which is text first. REQUIRES: empty.
    void Follow(Comment& other, std::string_view text);

    friend bool operator==(const Comment& a, std::string_view b) noexcept {
        return std::string_view(a) == b;
    }
    friend std::ostream& operator<<(std::ostream& out, const Comment& comment) {
        return out << std::string_view(comment);
    }

  private:
    using Tail = SharedTail<std::string>;

    std::variant<std::string, Tail> content;  // of its own, or shared
};

// Appends text to the comment of each of the owners. REQUIRES: neither owners nor text is empty,
// and the owners are those of all earlier calls with later ones behind them.
template <typename Owners>
void AppendComment(const Owners& owners, std::string_view text) {
    const auto isNew = [](const auto& owner) { return owner.comment.IsEmpty(); };
    for (const auto& newcomer : Newcomers(owners, isNew)) {
        newcomer->comment.Follow(owners[0]->comment, text);
    }
    owners[0]->comment.Append(text);
}

}  // namespace vexil
