// The causes: why a statement has its fate, and the kinds of findings about a file. Each has a row
// with a name, which reports show and the command "explain" takes.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "account/fate.h"

namespace vexil::tool {

enum class Cause : std::uint8_t {
    // refused
    MessageId,
    MessageName,
    MessageSize,
    SignalName,
    SignalLayout,
    SignalScaling,
    SignalRange,
    // dropped
    SignalOfRefusedMessage,
    SignalOfDroppedMessage,
    SignalAfterRefusedSignal,
    SignalAfterStatement,
    SignalWithoutMessage,
    UnknownMessage,
    UnknownSignal,
    BeforeItsOwner,
    Swallowed,
    Beyond4096Bytes,
    Beyond10000Signals,
    HiddenByByteOrderMark,
    KeywordNotApart,
    Malformed,
    AttributeOwner,
    AttributeType,
    AttributeNotDefined,
    BeforeItsDefinition,
    RepeatedDefinition,
    RepeatedValue,
    OverwrittenDefault,
    StrayText,
    // changed
    InvalidUtf8,
    ControlCharacters,
    CutAtKeyword,
    CutAt4096Bytes,
    NameMadeIdentifier,
    NameCut,
    NodeNameChanged,
    BareM,
    ExtendedMultiplexing,
    NameTakenForMultiplexing,
    UnitFolded,
    UnitTrimmed,
    RangeReversed,
    LayoutAssumed,
    TextTooLong,
    TextAfterMessage,
    TextAfterSignal,
    TextAfterComment,
    NumberReadInPart,
    ValueTypeLength,
    DescriptionsJoined,
    DescriptionsShifted,
    CommentsJoined,
    AttributeTextFolded,
    // ignored
    Version,
    Symbols,
    BitTiming,
    Nodes,
    ValueTable,
    EnvironmentVariable,
    SecondSenders,
    SignalGroup,
    SignalType,
    MultiplexRanges,
    RelationAttribute,
    Category,
    OtherAttribute,
    NodeComment,
    NetworkComment,
    EnvironmentVariableComment,
    // kept
    Kept,
    KeptWithoutEffect,
    // about the file as a whole
    NoStatement,
    ByteOrderMark,
    Utf16Text,
    NulBytes,
    LoneCarriageReturns,
    SameMessageId,
    SameMessageName,
    SameSignalName,
    NamesNumbered,
    NamesCutToOne,
    CommentsDouble,
    // about the layout of signals
    SignalsOverlap,
    SignalOutsideMessage,
    MultiplexedWithoutSelector,
    RangeBeyondRawValues,
    // about a rewrite
    MoreThanTenDigits,
    AttributeNotWritten,
    PlaceholderNode,
    UnitWrittenInAscii,
    DescriptionsOfFloat
};

// The object to which a cause applies.
enum class Scope : std::uint8_t { Statement, File, Layout, Rewrite };

struct CauseRow {
    Cause cause;
    Scope scope;
    Fate fate;
    std::string_view name;
    std::string_view summary;  // one line
    std::string_view remedy;   // how to fix the file
    std::string_view example;  // a file with this cause
};

// Returns all rows, in the order of the enumeration.
std::span<const CauseRow> Causes();

const CauseRow& RowOf(Cause cause);

// Returns the row with a name, or null.
const CauseRow* FindCause(std::string_view name);

inline std::string_view NameOf(Cause cause) {
    return RowOf(cause).name;
}

inline Fate FateOf(Cause cause) {
    return RowOf(cause).fate;
}

}  // namespace vexil::tool
