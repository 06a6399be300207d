// CM_ statements.
// SPDX-License-Identifier: MIT

#include <algorithm>

#include "account/classify.h"
#include "account/lexical.h"
#include "format/format.h"

namespace vexil::tool {
namespace {

constexpr std::uint32_t LongestComment = LongTextSize - 1;

// Returns the size of a comment in which each double quote has a backslash.
std::uint32_t EscapedSize(std::string_view comment) {
    std::size_t size = comment.size();
    for (std::size_t at = 0; at < comment.size(); ++at) {
        size += comment[at] == '"' && (at == 0 || comment[at - 1] != '\\') ? 1U : 0U;
    }
    return static_cast<std::uint32_t>(size);
}

// The outcome of a comment whose owner was found.
//   collected  the size of the earlier comments of the owner
Outcome ClassifyText(std::string_view text, std::size_t open, std::size_t authorEnd,
                     std::uint32_t& collected) {
    const std::size_t close = text.rfind('"');
    if (close <= open) {
        return {Cause::Malformed, "the comment has no closing quote"};
    }
    const std::string_view comment = text.substr(open + 1, close - open - 1);
    const std::uint32_t before = collected;
    collected += EscapedSize(comment);
    if (comment.empty()) {
        return {Cause::KeptWithoutEffect, "the comment is empty"};
    }
    if (close >= authorEnd) {
        return {Cause::TextAfterComment,
                Format("it ends with \"{}\"", Shown(text.substr(authorEnd)))};
    }
    if (collected > LongestComment) {
        return {Cause::TextTooLong, Format("the comment has {} bytes", collected)};
    }
    if (before != 0) {
        return {Cause::CommentsJoined, ""};
    }
    return {};
}

Outcome Defer(ReadContext& context, std::uint32_t id, std::string_view signal) {
    context.references.push_back({context.statement, id, signal});
    return {Cause::UnknownMessage, ""};
}

}  // namespace

Outcome ClassifyComment(std::string_view text, std::size_t authorEnd, ReadContext& context) {
    Words words(text);
    words.Next();
    const std::string_view kind = words.Peek();
    if (kind.starts_with('"')) {
        return {Cause::NetworkComment, ""};
    }
    words.Next();
    if (kind == "BU_" || kind == "BU_:") {
        return {Cause::NodeComment, std::string(words.Peek())};
    }
    if (kind == "EV_") {
        return {Cause::EnvironmentVariableComment, std::string(words.Peek())};
    }
    if (kind != "BO_" && kind != "SG_") {
        return {Cause::Malformed, "CM_, then BO_ ID or SG_ ID NAME, then the text in quotes"};
    }
    const auto id = TakeId(words);
    if (!id) {
        return {Cause::Malformed, "the id is not a plain number"};
    }
    const std::string_view rest = words.Rest();
    const std::size_t quote = rest.find('"');
    const std::string_view name = Trim(rest.substr(0, quote));
    if (quote == std::string_view::npos) {
        return {Cause::Malformed, "the comment has no quotes"};
    }
    if (kind == "BO_" && !name.empty()) {
        return {Cause::Malformed, Format("\"{}\" is before the text", Shown(name))};
    }
    const std::size_t open = text.size() - rest.size() + quote;
    const std::uint32_t message = context.owners.FirstMessage(*id);
    if (message >= context.owners.MessagesRead()) {
        return Defer(context, *id, kind == "SG_" ? name : std::string_view());
    }
    if (kind == "BO_") {
        return ClassifyText(text, open, authorEnd, context.collected.messageComments[message]);
    }
    const std::uint32_t signal = context.owners.FirstSignal(*id, name);
    if (signal == NoIndex) {
        return Defer(context, *id, name);
    }
    return ClassifyText(text, open, authorEnd, context.collected.signalComments[signal]);
}

Outcome ClassifyMissingOwner(const Reference& reference, const Owners& owners) {
    const std::uint32_t message = owners.FirstMessage(reference.id);
    if (message == NoIndex) {
        return {Cause::UnknownMessage, Format("no message has the id {}", reference.id)};
    }
    const bool hasSignal = reference.signal.data() != nullptr;
    if (hasSignal && owners.FirstSignal(reference.id, reference.signal) == NoIndex) {
        return {Cause::UnknownSignal,
                Format("message {} has no signal {}", reference.id, Shown(reference.signal))};
    }
    return {Cause::BeforeItsOwner,
            hasSignal ? Format("signal {} of message {}", Shown(reference.signal), reference.id)
                      : Format("message {}", reference.id)};
}

}  // namespace vexil::tool
