// SG_ statements that were read: detects which parts were changed.
// SPDX-License-Identifier: MIT

#include <algorithm>

#include "account/classify.h"
#include "account/lexical.h"
#include "format/format.h"
#include "source/keywords.h"

namespace vexil::tool {
namespace {

constexpr std::size_t LongestUnit = ShortTextSize - 1;
constexpr std::size_t LongestText = LongTextSize - 1;

// Returns the part of the statement up to a character, or the rest if there is none.
std::string_view TakeUpTo(std::string_view& rest, char ch) {
    const std::size_t end = std::min(rest.find(ch), rest.size());
    const std::string_view part = rest.substr(0, end);
    rest.remove_prefix(std::min(end + 1, rest.size()));
    return part;
}

bool IsDigitOf(std::string_view text, std::size_t at) {
    return at < text.size() && text[at] >= '0' && text[at] <= '9';
}

// Detects a changed name. A multiplex indicator that the library did not recognise is a part of it.
Outcome ClassifyName(std::string_view written, std::string_view kept, const SignalFacts& facts) {
    if (written.empty() && facts.multiplexType != MultiplexNone) {
        return {Cause::NameTakenForMultiplexing, "the signal has no name"};
    }
    const std::string detail = Format("\"{}\" is kept as {}", Shown(written), kept);
    const std::size_t gap = written.find_last_of(" \f\n\r\t\v");
    if (gap != std::string_view::npos) {
        const std::string_view last = written.substr(gap + 1);
        if (last == "m") {
            return {Cause::BareM, detail};
        }
        if (last.size() > 2 && last.front() == 'm' && last.back() == 'M' && IsDigitOf(last, 1)) {
            return {Cause::ExtendedMultiplexing, detail};
        }
    }
    if (written.size() > LongestText) {
        return {Cause::TextTooLong, Format("the name has {} bytes", written.size())};
    }
    return {HasIdentifierCharacters(written) ? Cause::NameCut : Cause::NameMadeIdentifier, detail};
}

bool IsPlainNumber(std::string_view text) {
    text = Trim(text);
    return !text.empty() &&
           std::all_of(text.begin(), text.end(), [](char ch) { return ch >= '0' && ch <= '9'; });
}

bool IsWholeDouble(std::string_view text) {
    const auto number = ReadLeadingDouble(text);
    return number && number->isWhole;
}

// Checks start bit and length, up to the factor.
Outcome ClassifyLayout(std::string_view layout) {
    const std::string_view start = TakeUpTo(layout, '|');
    const std::size_t at = layout.find('@');
    if (at == std::string_view::npos) {
        return {Cause::LayoutAssumed, Format("no byte order in \"{}\"", Shown(layout))};
    }
    const std::string_view length = layout.substr(0, at);
    if (!IsPlainNumber(start) || !IsPlainNumber(length)) {
        return {Cause::NumberReadInPart, Format("\"{}|{}\"", Shown(start), Shown(length))};
    }
    const std::string_view order = Trim(layout.substr(at + 1));
    const std::string_view sign = order.empty() ? order : Trim(order.substr(1));
    if (sign != "+" && sign != "-") {
        return {Cause::LayoutAssumed, Format("no sign in \"@{}\"", Shown(order))};
    }
    return {};
}

// Checks the two numbers between brackets.
Outcome ClassifyPair(std::string_view pair, char separator) {
    const std::string_view whole = pair;
    const std::string_view first = TakeUpTo(pair, separator);
    if (IsWholeDouble(first) && IsWholeDouble(pair)) {
        return {};
    }
    return {Cause::NumberReadInPart, Format("\"{}\"", Shown(whole))};
}

Outcome ClassifyRange(std::string_view range) {
    Outcome outcome = ClassifyPair(range, '|');
    const auto minimum = ReadLeadingDouble(TakeUpTo(range, '|'));
    const auto maximum = ReadLeadingDouble(range);
    if (minimum && maximum && minimum->value > maximum->value) {
        return {Cause::RangeReversed, Format("[{:.10g}|{:.10g}]", minimum->value, maximum->value)};
    }
    return outcome;
}

Outcome ClassifyUnit(std::string_view written, const Snapshot& snapshot, const SignalFacts& facts) {
    const std::string_view unit = Trim(written);
    if (unit.size() > LongestUnit) {
        return {Cause::TextTooLong, Format("the unit has {} bytes", unit.size())};
    }
    if (snapshot.Text(facts.unit) != unit) {
        return {Cause::UnitFolded,
                Format(R"("{}" has the form "{}")", unit, snapshot.Text(facts.unit))};
    }
    if (unit.size() != written.size()) {
        return {Cause::UnitTrimmed, Format("\"{}\"", Shown(written))};
    }
    return {};
}

// Checks the text after the unit.
Outcome ClassifyReceivers(std::string_view written, std::string_view kept) {
    if (Trim(written) == kept) {
        return {};
    }
    const std::string_view whole = Trim(written);
    std::string joined;
    Outcome outcome;
    while (!written.empty()) {
        const std::string_view name = Trim(TakeUpTo(written, ','));
        if (name.empty()) {
            continue;
        }
        if (!IsIdentifier(name) && outcome.cause == Cause::Kept) {
            const bool isOneName = Words(name).Peek().size() == name.size();
            outcome.cause = isOneName ? Cause::NodeNameChanged : Cause::TextAfterSignal;
            outcome.detail = Format("\"{}\" is kept as {}", Shown(name), MakeIdentifier(name));
        }
        joined += joined.empty() ? "" : ",";
        joined += name;
    }
    if (outcome.cause == Cause::Kept && joined != kept) {
        return {Cause::TextTooLong, Format("the receivers have {} bytes", whole.size())};
    }
    return outcome;
}

bool IsKept(const Outcome& outcome) {
    return outcome.cause == Cause::Kept;
}

// Checks the text after the colon.
Outcome ClassifyRest(std::string_view rest, const Snapshot& snapshot, const SignalFacts& facts) {
    Outcome outcome = ClassifyLayout(TakeUpTo(rest, '('));
    if (IsKept(outcome)) {
        outcome = ClassifyPair(TakeUpTo(rest, ')'), ',');
    } else {
        TakeUpTo(rest, ')');
    }
    TakeUpTo(rest, '[');
    if (const Outcome range = ClassifyRange(TakeUpTo(rest, ']')); IsKept(outcome)) {
        outcome = range;
    }
    if (!IsKept(outcome)) {
        return outcome;
    }
    const std::size_t open = rest.find('"');
    const std::size_t close = open == std::string_view::npos ? open : rest.find('"', open + 1);
    if (close == std::string_view::npos) {
        // If there is no unit, the library skips one character.
        return ClassifyReceivers(rest.substr(std::min<std::size_t>(1, rest.size())),
                                 snapshot.Text(facts.receiverList));
    }
    outcome = ClassifyUnit(rest.substr(open + 1, close - open - 1), snapshot, facts);
    return IsKept(outcome)
               ? ClassifyReceivers(rest.substr(close + 1), snapshot.Text(facts.receiverList))
               : outcome;
}

}  // namespace

Outcome ClassifySignal(std::string_view text, const Snapshot& snapshot, const SignalFacts& facts,
                       std::string_view& name) {
    constexpr std::size_t KeywordSize = 3;
    std::string_view rest = text.substr(std::min(text.size(), KeywordSize));
    std::string_view head = TakeUpTo(rest, ':');
    std::string_view indicator;
    if (facts.multiplexType != MultiplexNone) {
        const std::size_t at = std::min(head.find_last_of("mM"), head.size());
        indicator = head.substr(at);
        head = head.substr(0, at);
    }
    name = Trim(head);
    if (name != snapshot.Text(facts.name)) {
        return ClassifyName(name, snapshot.Text(facts.name), facts);
    }
    if (name.empty()) {
        return {facts.multiplexType != MultiplexNone ? Cause::NameTakenForMultiplexing
                                                     : Cause::NameMadeIdentifier,
                "the signal has no name"};
    }
    if (facts.multiplexType == MultiplexSelected &&
        !IsPlainNumber(indicator.substr(std::min<std::size_t>(1, indicator.size())))) {
        return {Cause::NumberReadInPart, Format("\"{}\"", Shown(indicator))};
    }
    return ClassifyRest(rest, snapshot, facts);
}

}  // namespace vexil::tool
