// BO_ statements that were read: detects which parts were changed.
// SPDX-License-Identifier: MIT

#include "account/classify.h"
#include "account/lexical.h"
#include "format/format.h"
#include "source/keywords.h"

namespace vexil::tool {

namespace {

constexpr std::size_t LongestDisplayName = LongTextSize - 1;

Outcome ClassifyName(std::string_view written, std::string_view kept) {
    if (written == kept) {
        return {};
    }
    if (written.size() > LongestDisplayName) {
        return {Cause::TextTooLong, Format("the name has {} bytes", written.size())};
    }
    const bool isCut = HasIdentifierCharacters(written);
    return {isCut ? Cause::NameCut : Cause::NameMadeIdentifier,
            Format("\"{}\" is kept as {}", Shown(written), kept)};
}

// The library takes all text after the size as the transmitter.
Outcome ClassifySender(std::string_view written, std::string_view kept) {
    if (written == kept) {
        return {};
    }
    const bool isOneName = Words(written).Peek().size() == written.size();
    return {isOneName ? Cause::NodeNameChanged : Cause::TextAfterMessage,
            Format("\"{}\" is kept as the sender {}", Shown(written), kept)};
}

}  // namespace

Outcome ClassifyMessage(std::string_view text, const Snapshot& snapshot, const MessageFacts& facts,
                        std::string_view& name) {
    Words words(text);
    words.Next();
    words.Next();
    const std::string_view rest = words.Rest();
    const std::size_t colon = rest.find(':');
    name = Trim(rest.substr(0, colon));
    if (colon == std::string_view::npos) {
        return {};
    }
    Outcome outcome = ClassifyName(name, snapshot.Text(facts.name));
    if (outcome.cause != Cause::Kept) {
        return outcome;
    }
    const std::size_t size = rest.find_first_not_of(" \f\n\r\t\v", colon + 1);
    const std::size_t after = rest.find_first_not_of("0123456789", size);
    const std::string_view sender =
        after == std::string_view::npos ? std::string_view() : Trim(rest.substr(after));
    return ClassifySender(sender, snapshot.Text(facts.transmitter));
}

}  // namespace vexil::tool
