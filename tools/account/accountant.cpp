// The walk: each statement of the author with the statements of the library that begin in it.
// SPDX-License-Identifier: MIT
#include "account/accountant.h"

#include <fmt/format.h>

#include <algorithm>
#include <utility>

#include "account/bytes.h"
#include "account/ignored_kind.h"
#include "account/lexical.h"

namespace vexil::tool {
namespace {

bool HasEffect(Fate fate) {
    return fate == Fate::Refused || fate == Fate::Changed || fate == Fate::Kept;
}

// Whether the text of a parse error is the front of a statement: without its last byte, at most 254
// bytes, and cut at a character.
bool IsFrontOf(std::string_view front, std::string_view text) {
    constexpr std::size_t LongestFront = 254;
    constexpr std::size_t LongestCharacter = 4;
    const std::size_t size = std::min(text.size() - 1, LongestFront);
    return front.size() <= size && front.size() + LongestCharacter > size &&
           text.starts_with(front);
}

}  // namespace

Accountant::Accountant(const SourceText& source, const Snapshot& snapshot)
    : source_(source),
      snapshot_(snapshot),
      text_(source.Text()),
      statements_(ScanStatements(text_)),
      cuts_(CutLikeLibrary(text_)),
      context_{snapshot, Owners(snapshot), Collected(snapshot), {}, 0},
      signalsLost_(statements_.size()) {}

Account Accountant::Run() {
    account_.statements.reserve(statements_.size());
    account_.signalStatements.reserve(snapshot_.signals.size());
    for (std::uint32_t index = 0; index < statements_.size(); ++index) {
        AddStatement(index);
    }
    AddLateOutcomes();
    AddDroppedDefinitions();
    CountLostSignals();
    return std::move(account_);
}

std::string Accountant::LineOf(std::uint32_t statement) const {
    return statement == NoIndex ? "an earlier line"
                                : fmt::format("line {}", account_.statements[statement].line);
}

void Accountant::AddStatement(std::uint32_t index) {
    const SourceStatement& statement = statements_[index];
    const Place place = source_.PlaceOf(source_.ByteOffset(statement.begin));
    account_.statements.push_back(
        {Cause::Kept, place.line, place.column, RowOf(statement.keyword).text,
         text_.substr(statement.begin, statement.end - statement.begin), ""});
    context_.statement = index;
    const std::size_t nextBegin =
        index + 1 < statements_.size() ? statements_[index + 1].begin : std::string_view::npos;
    Outcome outcome = WithBytes(ClassifyStatement(statement, nextBegin), statement);
    if (statement.keyword == Keyword::Bo) {
        signals_.message = index;
        signals_.messageCause = outcome.cause;
    }
    account_.statements.back().cause = outcome.cause;
    account_.statements.back().detail = std::move(outcome.detail);
}

Outcome Accountant::ClassifyStatement(const SourceStatement& statement, std::size_t nextBegin) {
    std::optional<Outcome> outcome = IgnoredKind(
        statement.keyword, text_.substr(statement.begin, statement.end - statement.begin));
    const bool isCut = nextCut_ < cuts_.size() && cuts_[nextCut_].begin == statement.begin;
    const LibraryStatement* const own = isCut ? &cuts_[nextCut_] : nullptr;
    if (isCut) {
        Outcome ofCut = ClassifyNextCut(statement.end - statement.begin);
        outcome = outcome ? outcome : std::move(ofCut);
    } else if (!outcome) {
        outcome = ClassifyUncut(statement);
    }
    return WithInside(*std::move(outcome), statement, own, TakeInside(nextBegin));
}

Outcome Accountant::ClassifyNextCut(std::size_t authorEnd) {
    lastCut_ = &cuts_[nextCut_++];
    lastCutOwner_ = context_.statement;
    return ClassifyCut(*lastCut_, authorEnd);
}

// The statements that the library found before a position, inside one of the author.
Accountant::Inside Accountant::TakeInside(std::size_t end) {
    Inside inside;
    while (nextCut_ < cuts_.size() && cuts_[nextCut_].begin < end) {
        const std::size_t references = context_.references.size();
        const Fate fate = FateOf(ClassifyNextCut(std::string_view::npos).cause);
        context_.references.resize(references);
        if (inside.first == nullptr) {
            inside.first = lastCut_;
        }
        if (inside.effective == nullptr && HasEffect(fate)) {
            inside.effective = lastCut_;
        }
    }
    return inside;
}

// The outcome, or what comes of it when the library ended the statement early or found others
// inside.
Outcome Accountant::WithInside(Outcome outcome, const SourceStatement& statement,
                               const LibraryStatement* own, const Inside& inside) const {
    const Fate fate = FateOf(outcome.cause);
    const bool isCutShort = own != nullptr && own->end < statement.end;
    const bool isIgnored = fate == Fate::Ignored && inside.effective == nullptr;
    if (fate == Fate::Refused || isIgnored || (!isCutShort && inside.effective == nullptr)) {
        return outcome;
    }
    const LibraryStatement* const end =
        inside.effective != nullptr ? inside.effective : inside.first;
    if (end == nullptr) {
        return {fate == Fate::Dropped ? Cause::Beyond4096Bytes : Cause::CutAt4096Bytes,
                fmt::format("{} bytes", statement.end - statement.begin)};
    }
    const Place place = source_.PlaceOf(source_.ByteOffset(end->begin));
    std::string detail = fmt::format("at {} in line {}", RowOf(end->keyword).text, place.line);
    if (fate == Fate::Dropped && inside.effective == nullptr) {
        return {outcome.cause, fmt::format("it is cut {}", detail)};
    }
    return {Cause::CutAtKeyword, std::move(detail)};
}

Outcome Accountant::ClassifyCut(const LibraryStatement& cut, std::size_t authorEnd) {
    const std::string_view text = text_.substr(cut.begin, cut.end - cut.begin);
    if (cut.keyword == Keyword::Bo) {
        return ClassifyMessageCut(cut, text);
    }
    if (cut.keyword == Keyword::Sg) {
        return ClassifySignalCut(cut, text);
    }
    CloseSignals(Cause::SignalAfterStatement);
    switch (cut.keyword) {
        case Keyword::Cm:
            return ClassifyComment(text, authorEnd, context_);
        case Keyword::Val:
            return ClassifyDescriptions(text, context_);
        case Keyword::SigValtype:
            return ClassifyValueType(text, context_);
        case Keyword::Ba:
            return attributes_.AddValue(text, context_.statement);
        case Keyword::BaDef:
            return attributes_.AddDefinition(text, context_.statement);
        case Keyword::BaDefDef:
            return attributes_.AddDefault(text, context_.statement);
        default:
            return {Cause::Category, ""};
    }
}

Outcome Accountant::ClassifyMessageCut(const LibraryStatement& cut, std::string_view text) {
    if (auto refusal = TakeRefusal(cut, text)) {
        CloseSignals(Cause::SignalOfRefusedMessage);
        return *std::move(refusal);
    }
    const std::uint32_t message = context_.owners.MessagesRead();
    if (message == snapshot_.messages.size()) {
        return {Cause::Malformed, ""};
    }
    signals_.isOpen = true;
    std::string_view name;
    Outcome outcome = ClassifyMessage(text, snapshot_, snapshot_.messages[message], name);
    context_.owners.AddMessage(name);
    account_.messageStatements.push_back(context_.statement);
    return outcome;
}

Outcome Accountant::ClassifySignalCut(const LibraryStatement& cut, std::string_view text) {
    if (!signals_.isOpen) {
        return ClassifyOrphan();
    }
    if (auto refusal = TakeRefusal(cut, text)) {
        CloseSignals(Cause::SignalAfterRefusedSignal);
        return *std::move(refusal);
    }
    const MessageFacts& message = snapshot_.messages[context_.owners.MessagesRead() - 1];
    const std::uint32_t signal = context_.owners.SignalsRead();
    if (signal == message.firstSignal + message.signalCount) {
        return {Cause::Beyond10000Signals, ""};
    }
    std::string_view name;
    Outcome outcome = ClassifySignal(text, snapshot_, snapshot_.signals[signal], name);
    context_.owners.AddSignal(name);
    account_.signalStatements.push_back(context_.statement);
    return outcome;
}

// The parse error of the cut, if the library has refused it.
std::optional<Outcome> Accountant::TakeRefusal(const LibraryStatement& cut, std::string_view text) {
    if (nextError_ == snapshot_.errors.size()) {
        return std::nullopt;
    }
    const ErrorFacts& error = snapshot_.errors[nextError_];
    if (error.line != cut.line || !IsFrontOf(snapshot_.Text(error.text), text)) {
        return std::nullopt;
    }
    const bool isMessage = error.code <= StepMessageSize;
    if (isMessage != (cut.keyword == Keyword::Bo) || error.code > StepSignalRange) {
        return std::nullopt;
    }
    ++nextError_;
    return Outcome{static_cast<Cause>(static_cast<std::uint32_t>(Cause::MessageId) + error.code),
                   isMessage ? "the form is BO_ 291 Engine: 8 ECU1"
                             : "the form is SG_ Speed : 0|16@1+ (0.1,0) [0|250] \"km/h\" ECU1"};
}

void Accountant::CloseSignals(Cause cause) {
    if (signals_.isOpen || cause == Cause::SignalOfRefusedMessage) {
        signals_.isOpen = false;
        signals_.closed = cause;
        signals_.closedBy = context_.statement;
    }
}

// A signal without a message that takes it.
Outcome Accountant::ClassifyOrphan() const {
    if (signals_.message == NoIndex) {
        return {Cause::SignalWithoutMessage, ""};
    }
    const Fate fate = FateOf(signals_.messageCause);
    if (fate == Fate::Refused || fate == Fate::Dropped) {
        return {
            fate == Fate::Refused ? Cause::SignalOfRefusedMessage : Cause::SignalOfDroppedMessage,
            fmt::format("the message in {}", LineOf(signals_.message))};
    }
    if (signals_.closedBy == NoIndex) {
        return {Cause::SignalWithoutMessage, ""};
    }
    const AccountedStatement& by = account_.statements[signals_.closedBy];
    return {signals_.closed, fmt::format("after {} in line {}", by.keyword, by.line)};
}

// A statement that the library has not seen as one.
Outcome Accountant::ClassifyUncut(const SourceStatement& statement) const {
    if (statement.keyword == Keyword::None) {
        return {Cause::StrayText, ""};
    }
    if (source_.ByteOrderMarkSize() != 0 && statement.begin == source_.ByteOrderMarkSize()) {
        return {Cause::HiddenByByteOrderMark, ""};
    }
    if (statement.isGlued) {
        return {Cause::KeywordNotApart, ""};
    }
    const bool isInside = lastCut_ != nullptr && statement.begin < lastCut_->end;
    if (!isInside || lastCut_->overflowed) {
        return {Cause::Beyond4096Bytes,
                fmt::format("of the statement in {}", LineOf(lastCutOwner_))};
    }
    return {Cause::Swallowed, fmt::format("by {} in {}", account_.statements[lastCutOwner_].keyword,
                                          LineOf(lastCutOwner_))};
}

// The outcome, or what the bytes of the statement come to where that is more.
Outcome Accountant::WithBytes(Outcome outcome, const SourceStatement& statement) {
    const std::size_t begin = source_.ByteOffset(statement.begin);
    const std::size_t end = source_.ByteOffset(statement.end);
    const auto take = [begin, end](const std::vector<std::size_t>& bytes, std::size_t& next) {
        while (next < bytes.size() && bytes[next] < begin) {
            ++next;
        }
        const std::size_t first = next;
        while (next < bytes.size() && bytes[next] < end) {
            ++next;
        }
        return std::pair(first, next - first);
    };
    const auto [invalid, invalidCount] = take(source_.InvalidBytes(), nextInvalid_);
    const auto [removed, removedCount] = take(source_.RemovedBytes(), nextRemoved_);
    const Fate fate = FateOf(outcome.cause);
    if (fate != Fate::Changed && outcome.cause != Cause::Kept) {
        return outcome;
    }
    if (invalidCount != 0) {
        return {Cause::InvalidUtf8, DescribeInvalidBytes(source_, invalid, invalidCount)};
    }
    if (removedCount != 0) {
        return {Cause::ControlCharacters, fmt::format("{} in the statement", removedCount)};
    }
    return outcome;
}

}  // namespace vexil::tool
