// VAL_ and SIG_VALTYPE_ statements.
// SPDX-License-Identifier: MIT

#include <algorithm>

#include "account/classify.h"
#include "account/lexical.h"
#include "format/format.h"
#include "source/keywords.h"

namespace vexil::tool {
namespace {

constexpr std::size_t LongestDescription = LongTextSize - 1;

// The most words of a name that are tried. A name may contain blanks.
constexpr int MostWords = 8;

struct FoundSignal {
    std::uint32_t signal = NoIndex;
    std::string_view name;  // the first word if there is no such signal
    std::string_view rest;
};

// Returns the signal that the words name. White space must follow the name.
FoundSignal FindSignal(const Owners& owners, std::uint32_t id, Words words) {
    const std::string_view first = words.Peek();
    for (int word = 0; word < MostWords; ++word) {
        const std::string_view last = words.Next();
        if (last.empty() || words.Rest().empty()) {
            break;
        }
        const std::string_view name(
            first.data(), static_cast<std::size_t>(last.data() + last.size() - first.data()));
        const std::uint32_t signal = owners.FirstSignal(id, name);
        if (signal != NoIndex) {
            return {signal, name, words.Rest()};
        }
    }
    return {NoIndex, first, {}};
}

struct Pairs {
    std::uint32_t count = 0;
    bool isShifted = false;
    bool isReadInPart = false;
    std::size_t longest = 0;
};

// Parses pairs of a number and a text as the library does.
Pairs ReadPairs(std::string_view text) {
    Pairs pairs;
    std::size_t at = 0;
    for (;;) {
        const std::size_t open = text.find('"', at);
        if (open == std::string_view::npos) {
            return pairs;
        }
        const auto number = ReadLeadingNumber(text.substr(at, open - at));
        if (!number) {
            // A single quote after a text is not a value: it ends the text.
            pairs.isShifted = true;
            at = open + 1;
            continue;
        }
        ++pairs.count;
        pairs.isReadInPart = pairs.isReadInPart || !number->isWhole;
        const std::size_t close = text.find('"', open + 1);
        if (close == std::string_view::npos) {
            pairs.isShifted = true;
            return pairs;
        }
        pairs.longest = std::max(pairs.longest, close - open - 1);
        at = close + 1;
    }
}

Outcome Defer(ReadContext& context, std::uint32_t id, std::string_view signal) {
    context.references.push_back({context.statement, id, signal});
    return {Cause::UnknownMessage, ""};
}

Outcome ClassifyPairs(const Pairs& pairs, std::uint32_t before, std::uint32_t kept) {
    if (pairs.isShifted) {
        return {Cause::DescriptionsShifted, Format("{} pairs are read", pairs.count)};
    }
    if (pairs.count == 0) {
        return {Cause::KeptWithoutEffect, "no value is described"};
    }
    if (before + pairs.count > kept) {
        return {Cause::DescriptionsJoined,
                Format("{} descriptions of {} values", before + pairs.count, kept)};
    }
    if (pairs.longest > LongestDescription) {
        return {Cause::TextTooLong, Format("a description has {} bytes", pairs.longest)};
    }
    if (pairs.isReadInPart) {
        return {Cause::NumberReadInPart, ""};
    }
    return {};
}

bool StartsLikeName(std::string_view word) {
    return !word.empty() && (HasIdentifierCharacters(word.substr(0, 1)));
}

}  // namespace

Outcome ClassifyDescriptions(std::string_view text, ReadContext& context) {
    Words words(text);
    words.Next();
    const std::string_view first = words.Peek();
    const auto id = TakeId(words);
    if (!id) {
        if (StartsLikeName(first)) {
            return {Cause::EnvironmentVariable, std::string(first)};
        }
        return {Cause::Malformed, "VAL_ ID SIGNAL, then numbers and texts in quotes"};
    }
    const FoundSignal found = FindSignal(context.owners, *id, words);
    if (found.signal == NoIndex) {
        const std::string_view name =
            found.name.ends_with(';') ? found.name.substr(0, found.name.size() - 1) : found.name;
        if (context.owners.FirstSignal(*id, name) != NoIndex) {
            return {Cause::Malformed, "no white space follows the name of the signal"};
        }
        return Defer(context, *id, name);
    }
    const Pairs pairs = ReadPairs(found.rest);
    std::uint32_t& collected = context.collected.descriptions[found.signal];
    const std::uint32_t before = collected;
    collected += pairs.count;
    return ClassifyPairs(pairs, before, context.snapshot.signals[found.signal].descriptionCount);
}

Outcome ClassifyValueType(std::string_view text, ReadContext& context) {
    constexpr std::uint32_t Float32Length = 32;
    constexpr std::uint32_t Float64Length = 64;
    Words words(text);
    words.Next();
    const auto id = TakeId(words);
    if (!id) {
        return {Cause::Malformed, "SIG_VALTYPE_ ID SIGNAL : TYPE ;"};
    }
    const FoundSignal found = FindSignal(context.owners, *id, words);
    if (found.signal == NoIndex) {
        const std::string_view name = found.name.substr(0, found.name.find_first_of(":;"));
        if (name.size() != found.name.size() && context.owners.FirstSignal(*id, name) != NoIndex) {
            return {Cause::Malformed, "no white space follows the name of the signal"};
        }
        return Defer(context, *id, name);
    }
    const std::string_view rest = Trim(found.rest);
    const std::size_t semicolon = rest.find(';');
    if (!rest.starts_with(':') || semicolon == std::string_view::npos) {
        return {Cause::Malformed, "SIG_VALTYPE_ ID SIGNAL : TYPE ;"};
    }
    const auto type = ReadLeadingNumber(rest.substr(1, semicolon - 1));
    if (!type) {
        return {Cause::Malformed, "the type is no number"};
    }
    bool isFloat = false;
    bool isNew = false;
    for (std::uint32_t signal = found.signal; signal != NoIndex;
         signal = context.owners.NextSignal(signal)) {
        const std::uint32_t length = context.snapshot.signals[signal].bitLength;
        if ((type->value == 1 && length == Float32Length) ||
            (type->value == 2 && length == Float64Length)) {
            isFloat = true;
            isNew = isNew || !context.collected.floats[signal];
            context.collected.floats[signal] = true;
        }
    }
    if (isFloat && !isNew) {
        return {Cause::KeptWithoutEffect, "an earlier statement says the same"};
    }
    if (isFloat) {
        return type->isWhole ? Outcome{} : Outcome{Cause::NumberReadInPart, ""};
    }
    if (type->value == 0) {
        return {Cause::KeptWithoutEffect, "the signal is an integer"};
    }
    return {Cause::ValueTypeLength, Format("type {} on {} bits", type->value,
                                           context.snapshot.signals[found.signal].bitLength)};
}

}  // namespace vexil::tool
