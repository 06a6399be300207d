// Compares each statement of the author with the statements of the library that begin in it.
// SPDX-License-Identifier: MIT
#include "account/accountant.h"

#include <algorithm>
#include <utility>

#include "account/bytes.h"
#include "account/ignored_kind.h"
#include "account/lexical.h"
#include "format/format.h"

namespace vexil::tool {
namespace {

bool HasEffect(Fate fate) {
    return fate == Fate::Refused || fate == Fate::Changed || fate == Fate::Kept;
}

// Returns whether the text of a parse error is that of a statement: without its last byte, at most
// 254 bytes, and cut at the end of a character.
bool IsFrontOf(std::string_view front, std::string_view text) {
    constexpr std::size_t LongestFront = 254;
    constexpr std::size_t LongestCharacter = 4;
    const std::size_t size = std::min(text.size() - 1, LongestFront);
    return front.size() <= size && front.size() + LongestCharacter > size &&
           text.starts_with(front);
}

}  // namespace

Accountant::Accountant(const SourceText& source, const Snapshot& snapshot)
    : sourceText(source),
      database(snapshot),
      whole(source.Text()),
      authored(ScanStatements(whole)),
      cuts(CutLikeLibrary(whole)),
      context{snapshot, Owners(snapshot), Collected(snapshot), {}, 0},
      signalsLost(authored.size()) {}

Account Accountant::Run() {
    accounted.statements.reserve(authored.size());
    accounted.signalStatements.reserve(database.signals.size());
    for (std::uint32_t index = 0; index < authored.size(); ++index) {
        AddStatement(index);
    }
    AddLateOutcomes();
    AddDroppedDefinitions();
    CountLostSignals();
    return std::move(accounted);
}

std::string Accountant::LineOf(std::uint32_t statement) const {
    return statement == NoIndex ? "an earlier line"
                                : Format("line {}", accounted.statements[statement].line);
}

void Accountant::AddStatement(std::uint32_t index) {
    const SourceStatement& statement = authored[index];
    const Place place = sourceText.PlaceOf(sourceText.ByteOffset(statement.begin));
    accounted.statements.push_back(
        {Cause::Kept, place.line, place.column, RowOf(statement.keyword).text,
         whole.substr(statement.begin, statement.end - statement.begin), ""});
    context.statement = index;
    const std::size_t nextBegin =
        index + 1 < authored.size() ? authored[index + 1].begin : std::string_view::npos;
    Outcome outcome = WithBytes(ClassifyStatement(statement, nextBegin), statement);
    if (statement.keyword == Keyword::Bo) {
        signalOwner.message = index;
        signalOwner.messageCause = outcome.cause;
    }
    accounted.statements.back().cause = outcome.cause;
    accounted.statements.back().detail = std::move(outcome.detail);
}

Outcome Accountant::ClassifyStatement(const SourceStatement& statement, std::size_t nextBegin) {
    std::optional<Outcome> outcome = IgnoredKind(
        statement.keyword, whole.substr(statement.begin, statement.end - statement.begin));
    const bool isCut = nextCut < cuts.size() && cuts[nextCut].begin == statement.begin;
    const LibraryStatement* const own = isCut ? &cuts[nextCut] : nullptr;
    if (isCut) {
        Outcome ofCut = ClassifyNextCut(statement.end - statement.begin);
        outcome = outcome ? outcome : std::move(ofCut);
    } else if (!outcome) {
        outcome = ClassifyUncut(statement);
    }
    return WithInside(*std::move(outcome), statement, own, TakeInside(nextBegin));
}

Outcome Accountant::ClassifyNextCut(std::size_t authorEnd) {
    lastCut = &cuts[nextCut++];
    lastCutOwner = context.statement;
    return ClassifyCut(*lastCut, authorEnd);
}

// Returns the statements that the library found before a position, inside one of the author.
Accountant::Inside Accountant::TakeInside(std::size_t end) {
    Inside inside;
    while (nextCut < cuts.size() && cuts[nextCut].begin < end) {
        const std::size_t references = context.references.size();
        const Fate fate = FateOf(ClassifyNextCut(std::string_view::npos).cause);
        context.references.resize(references);
        if (inside.first == nullptr) {
            inside.first = lastCut;
        }
        if (inside.effective == nullptr && HasEffect(fate)) {
            inside.effective = lastCut;
        }
    }
    return inside;
}

// Returns the outcome, changed if the library ended the statement early or found others inside it.
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
                Format("{} bytes", statement.end - statement.begin)};
    }
    const Place place = sourceText.PlaceOf(sourceText.ByteOffset(end->begin));
    std::string detail = Format("at {} in line {}", RowOf(end->keyword).text, place.line);
    if (fate == Fate::Dropped && inside.effective == nullptr) {
        return {outcome.cause, Format("it is cut {}", detail)};
    }
    return {Cause::CutAtKeyword, std::move(detail)};
}

Outcome Accountant::ClassifyCut(const LibraryStatement& cut, std::size_t authorEnd) {
    const std::string_view text = whole.substr(cut.begin, cut.end - cut.begin);
    if (cut.keyword == Keyword::Bo) {
        return ClassifyMessageCut(cut, text);
    }
    if (cut.keyword == Keyword::Sg) {
        return ClassifySignalCut(cut, text);
    }
    CloseSignals(Cause::SignalAfterStatement);
    switch (cut.keyword) {
        case Keyword::Cm:
            return ClassifyComment(text, authorEnd, context);
        case Keyword::Val:
            return ClassifyDescriptions(text, context);
        case Keyword::SigValtype:
            return ClassifyValueType(text, context);
        case Keyword::Ba:
            return attributes.AddValue(text, context.statement);
        case Keyword::BaDef:
            return attributes.AddDefinition(text, context.statement);
        case Keyword::BaDefDef:
            return attributes.AddDefault(text, context.statement);
        default:
            return {Cause::Category, ""};
    }
}

Outcome Accountant::ClassifyMessageCut(const LibraryStatement& cut, std::string_view text) {
    if (auto refusal = TakeRefusal(cut, text)) {
        CloseSignals(Cause::SignalOfRefusedMessage);
        return *std::move(refusal);
    }
    const std::uint32_t message = context.owners.MessagesRead();
    if (message == database.messages.size()) {
        return {Cause::Malformed, ""};
    }
    signalOwner.isOpen = true;
    std::string_view name;
    Outcome outcome = ClassifyMessage(text, database, database.messages[message], name);
    context.owners.AddMessage(name);
    accounted.messageStatements.push_back(context.statement);
    return outcome;
}

Outcome Accountant::ClassifySignalCut(const LibraryStatement& cut, std::string_view text) {
    if (!signalOwner.isOpen) {
        return ClassifyOrphan();
    }
    const MessageFacts& message = database.messages[context.owners.MessagesRead() - 1];
    const std::uint32_t signal = context.owners.SignalsRead();
    if (signal == message.firstSignal + message.signalCount) {
        // A refused message has no signals: the library drops the following ones.
        if (auto refusal = TakeRefusal(cut, text)) {
            CloseSignals(Cause::SignalAfterRefusedSignal);
            return *std::move(refusal);
        }
        return {Cause::Beyond10000Signals, ""};
    }
    std::string_view name;
    Outcome outcome = ClassifySignal(text, database, database.signals[signal], name);
    context.owners.AddSignal(name);
    accounted.signalStatements.push_back(context.statement);
    return outcome;
}

// Returns the parse error of the statement, if the library refused it.
std::optional<Outcome> Accountant::TakeRefusal(const LibraryStatement& cut, std::string_view text) {
    if (nextError == database.errors.size()) {
        return std::nullopt;
    }
    const ErrorFacts& error = database.errors[nextError];
    if (error.line != cut.line || !IsFrontOf(database.Text(error.text), text)) {
        return std::nullopt;
    }
    const bool isMessage = error.code <= StepMessageSize;
    if (isMessage != (cut.keyword == Keyword::Bo) || error.code > StepSignalRange) {
        return std::nullopt;
    }
    ++nextError;
    return Outcome{static_cast<Cause>(static_cast<std::uint32_t>(Cause::MessageId) + error.code),
                   isMessage ? "the form is BO_ 291 Engine: 8 ECU1"
                             : "the form is SG_ Speed : 0|16@1+ (0.1,0) [0|250] \"km/h\" ECU1"};
}

void Accountant::CloseSignals(Cause cause) {
    if (signalOwner.isOpen || cause == Cause::SignalOfRefusedMessage) {
        signalOwner.isOpen = false;
        signalOwner.closed = cause;
        signalOwner.closedBy = context.statement;
    }
}

// The outcome of a signal without a message to which it can belong.
Outcome Accountant::ClassifyOrphan() const {
    if (signalOwner.message == NoIndex) {
        return {Cause::SignalWithoutMessage, ""};
    }
    const Fate fate = FateOf(signalOwner.messageCause);
    if (fate == Fate::Refused || fate == Fate::Dropped) {
        return {
            fate == Fate::Refused ? Cause::SignalOfRefusedMessage : Cause::SignalOfDroppedMessage,
            Format("the message in {}", LineOf(signalOwner.message))};
    }
    if (signalOwner.closedBy == NoIndex) {
        return {Cause::SignalWithoutMessage, ""};
    }
    const AccountedStatement& by = accounted.statements[signalOwner.closedBy];
    return {signalOwner.closed, Format("after {} in line {}", by.keyword, by.line)};
}

// The outcome of a statement that the library did not recognise as one.
Outcome Accountant::ClassifyUncut(const SourceStatement& statement) const {
    if (statement.keyword == Keyword::None) {
        return {Cause::StrayText, ""};
    }
    if (sourceText.ByteOrderMarkSize() != 0 && statement.begin == sourceText.ByteOrderMarkSize()) {
        return {Cause::HiddenByByteOrderMark, ""};
    }
    if (statement.isGlued) {
        return {Cause::KeywordNotApart, ""};
    }
    const bool isInside = lastCut != nullptr && statement.begin < lastCut->end;
    if (!isInside || lastCut->overflowed) {
        return {Cause::Beyond4096Bytes, Format("of the statement in {}", LineOf(lastCutOwner))};
    }
    return {Cause::Swallowed, Format("by {} in {}", accounted.statements[lastCutOwner].keyword,
                                     LineOf(lastCutOwner))};
}

// Returns the outcome. For a kept or changed statement, invalid or removed bytes take precedence.
Outcome Accountant::WithBytes(Outcome outcome, const SourceStatement& statement) {
    const std::size_t begin = sourceText.ByteOffset(statement.begin);
    const std::size_t end = sourceText.ByteOffset(statement.end);
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
    const auto [invalid, invalidCount] = take(sourceText.InvalidBytes(), nextInvalid);
    const auto [removed, removedCount] = take(sourceText.RemovedBytes(), nextRemoved);
    const Fate fate = FateOf(outcome.cause);
    if (fate != Fate::Changed && outcome.cause != Cause::Kept) {
        return outcome;
    }
    if (invalidCount != 0) {
        return {Cause::InvalidUtf8, DescribeInvalidBytes(sourceText, invalid, invalidCount)};
    }
    if (removedCount != 0) {
        return {Cause::ControlCharacters, Format("{} in the statement", removedCount)};
    }
    return outcome;
}

}  // namespace vexil::tool
