// The steps that parse an SG_ statement, in the order of the statement:
//
//   SG_ name [M|m number] : start|length@order sign (factor,offset) [min|max] "unit" receivers
//
// Intentional: a step searches for its separators and does not require them at a position, so it
// may find one in a later field.
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <string>
#include <utility>

#include "frame/can_signal.h"
#include "frame/model_text.h"
#include "text/char_class.h"
#include "text/lexical.h"

namespace vexil {
namespace {

// Parses "open first middle second close", a pair of numbers with separators at any position.
// next: the position after close; unchanged after false.
bool ParseNumberPair(std::string_view text, Position from, std::string_view separators,
                     double& first, double& second, Position& next) {
    const Position open = text.find(separators[0], from);
    if (open == npos) {
        return false;
    }
    Position middle = npos;
    if (!TryParseDouble(TextUpToChar(text, open + 1, separators[1], middle), first)) {
        return false;
    }
    Position close = npos;
    if (!TryParseDouble(TextUpToChar(text, middle + 1, separators[2], close), second)) {
        return false;
    }
    next = close + 1;
    return true;
}

// The position of the last "m" or "M", or npos.
Position FindLastM(std::string_view text) {
    for (Position at = text.size(); at != 0; --at) {
        if (text[at - 1] == 'm' || text[at - 1] == 'M') {
            return at - 1;
        }
    }
    return npos;
}

}  // namespace

bool CANSignal::ParseNameAndMultiplex(Arena& arena, std::string_view text, Position from,
                                      Position& next) {
    Position colon = npos;
    const std::string_view head = TextUpToChar(text, from, ':', colon);
    if (head.empty() || colon == text.size() - 1) {
        return false;
    }
    Position nameEnd = head.size();
    ParseMultiplexIndicator(head, nameEnd);
    rawName = arena.Keep(Trimmed(head.substr(0, nameEnd)));
    MakeNames(arena, rawName, longName, name);
    next = colon + 1;
    return true;
}

// Parses the multiplex indicator at the end of head, the text from the white space after the
// keyword to the colon: " M", or " m" and a number. nameEnd: set to the indicator when there is
// one. Intentional: only the last "m" or "M" counts, so "m0M" is part of a name, and a signal with
// the name M or m1 has an empty name.
void CANSignal::ParseMultiplexIndicator(std::string_view head, Position& nameEnd) {
    const Position at = FindLastM(head);
    if (at == npos || !IsSpace(head[at - 1])) {
        return;
    }
    const std::string_view rest = head.substr(at + 1);
    if (head[at] == 'M') {
        if (FindNonSpace(rest, 0) != npos) {
            return;
        }
        multiplexType = MultiplexSelector;
    } else {
        // Hexadecimal digits are accepted, but the number is read as a decimal one.
        if (rest.find_first_not_of("0123456789abcdefABCDEFx \t") != npos ||
            !TryParseU32(rest, multiplexValue)) {
            return;
        }
        multiplexType = MultiplexSelected;
    }
    nameEnd = at;
}

bool CANSignal::ParseBitLayout(std::string_view text, Position from, Position& next) {
    Position bar = npos;
    const std::string_view start = TextUpToChar(text, from, '|', bar);
    if (start.empty() || !TryParseU32(start, startBit)) {
        return false;
    }
    Position at = npos;
    const std::string_view length = TextUpToChar(text, bar + 1, '@', at);
    if (at == npos) {
        // Without an "@" the signal is unsigned and little-endian.
        if (!TryParseU32(text.substr(bar + 1), bitLength)) {
            return false;
        }
        next = bar + 1 + DigitCount(bitLength);
        return true;
    }
    if (!TryParseU32(length, bitLength)) {
        return false;
    }
    const Position last = text.size() - 1;
    const Position order = FindNonSpace(text, at + 1);
    if (order >= last || (text[order] != '0' && text[order] != '1')) {
        return false;
    }
    const Position sign = FindNonSpace(text, order + 1);
    if (sign >= last) {
        return false;
    }
    byteOrder = text[order] == '0' ? ByteOrderBigEndian : ByteOrderLittleEndian;
    valueType = text[sign] == '-' ? ValueSigned : ValueUnsigned;
    next = sign;
    return true;
}

bool CANSignal::ParseScaling(std::string_view text, Position from, Position& next) {
    return ParseNumberPair(text, from, "(,)", factor, offset, next);
}

bool CANSignal::ParseRange(std::string_view text, Position from, Position& next) {
    if (!ParseNumberPair(text, from, "[|]", minimum, maximum, next)) {
        return false;
    }
    if (minimum > maximum) {
        std::swap(minimum, maximum);
    }
    return true;
}

void CANSignal::ParseUnit(Arena& arena, std::string_view text, Position from, Position& next) {
    // Without quotes, one character of any kind is skipped before the receivers.
    next = from + 1;
    const Position quote = text.find('"', from);
    if (quote == npos) {
        return;
    }
    Position closing = npos;
    unitUtf8 = arena.Keep(Trimmed(TextUpToChar(text, quote + 1, '"', closing)));
    unit = AsciiForm(arena, unitUtf8);
    if (closing != npos) {
        next = closing + 1;
    }
}

void CANSignal::ParseReceivers(Arena& arena, std::string_view list) {
    std::string joined;
    while (!list.empty()) {
        const std::size_t comma = std::min(list.find(','), list.size());
        const std::string_view receiver = Trimmed(list.substr(0, comma));
        if (!receiver.empty()) {
            joined.append(joined.empty() ? "" : ",");
            joined.append(MakeCIdentifier(receiver));
        }
        list.remove_prefix(std::min(comma + 1, list.size()));
    }
    receivers = arena.Keep(joined);
}

}  // namespace vexil
