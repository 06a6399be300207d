// Notes: comments.
// SPDX-License-Identifier: MIT
#include "frame/notes.h"

#include <algorithm>

namespace vexil {
namespace {

void AppendEscaped(LineBuffer& line, std::string_view text) {
    while (!text.empty()) {
        const std::size_t quote = std::min(text.find('"'), text.size());
        line.Append(text.substr(0, quote));
        if (quote < text.size()) {
            line.Append(line.Text().ends_with('\\') ? "\"" : "\\\"");
        }
        text.remove_prefix(std::min(quote + 1, text.size()));
    }
}

}  // namespace

void Notes::SetComment(Arena& arena, std::string_view text) {
    if (!text.empty()) {
        comments = arena.New<Note>(arena.Keep(text));
    }
}

void Notes::AppendComment(LineBuffer& line, std::size_t enough) const {
    for (const Note* note = comments; note != nullptr && line.Size() < enough; note = note->next) {
        AppendEscaped(line, note->text.substr(0, enough - line.Size()));
    }
}

std::string_view Notes::Comment(LineBuffer& scratch, std::size_t enough) const {
    if (comments == nullptr) {
        return {};
    }
    const std::string_view front = comments->text.substr(0, enough);
    if (comments->next == nullptr && front.find('"') == std::string_view::npos) {
        return front;
    }
    scratch.Clear();
    AppendComment(scratch, enough);
    return scratch.Text();
}

}  // namespace vexil
