// Rows of the causes about a file as a whole, its layout or its rewrite.
// SPDX-License-Identifier: MIT
#include "account/cause_rows.h"

namespace vexil::tool {

using namespace std::string_view_literals;  // for an example that contains a NUL

const std::array<CauseRow, OtherCount> OtherRows = {{
    {Cause::NoStatement, Scope::File, Fate::Dropped, "no-statement",
     "the file has no statement at all", "Check that it is a DBC file.", "no keyword in here\n"},
    {Cause::ByteOrderMark, Scope::File, Fate::Changed, "byte-order-mark",
     "the file begins with a byte order mark, which hides its first keyword",
     "Save the file as UTF-8 without a byte order mark.",
     "\xEF\xBB\xBFVERSION \"\"\n"
     "BO_ 1 Engine: 8 ECU\n"},
    {Cause::Utf16Text, Scope::File, Fate::Dropped, "utf-16",
     "the file is UTF-16 text, which is not read as such",
     "Convert the file to UTF-8, for example with rewrite --from utf-16.", ""},
    {Cause::NulBytes, Scope::File, Fate::Changed, "nul-bytes",
     "the file has NUL bytes, which are removed", "Check where they come from; text has none.",
     "BO_ 1 Engine: 8 ECU\x00\n"sv},
    {Cause::LoneCarriageReturns, Scope::File, Fate::Changed, "lone-carriage-returns",
     "lines end with a carriage return alone, so the file is one line for the library",
     "Convert the line ends to line feeds.", "BO_ 1 Engine: 8 ECU\rBO_ 2 Door: 8 ECU\r"},
    {Cause::SameMessageId, Scope::File, Fate::Changed, "same-message-id",
     "messages have the same id; comments, descriptions and attributes reach all of them",
     "Give each message its own id.",
     "BO_ 1 Engine: 8 ECU\n"
     "BO_ 1 Door: 8 ECU\n"},
    {Cause::SameMessageName, Scope::File, Fate::Changed, "same-message-name",
     "messages have the same name", "Rename all but one.",
     "BO_ 1 Engine: 8 ECU\n"
     "BO_ 2 Engine: 8 ECU\n"},
    {Cause::SameSignalName, Scope::File, Fate::Changed, "same-signal-name",
     "signals of one message have the same name; the next write numbers them",
     "Rename all but one.",
     "BO_ 1 Engine: 8 ECU\n"
     " SG_ Speed : 0|8@1+ (1,0) [0|255] \"km/h\" Dash\n"
     " SG_ Speed : 8|8@1+ (1,0) [0|255] \"\" Dash\n"},
    {Cause::NamesNumbered, Scope::File, Fate::Changed, "names-numbered",
     "signals of one message get the same identifier; the next write numbers them",
     "Choose names that differ in their first 32 characters and by more than punctuation.",
     "BO_ 1 Engine: 8 ECU\n"
     " SG_ Speed-1 : 0|8@1+ (1,0) [0|255] \"\" Dash\n"
     " SG_ Speed+1 : 8|8@1+ (1,0) [0|255] \"\" Dash\n"},
    {Cause::NamesCutToOne, Scope::File, Fate::Changed, "names-cut-to-one",
     "the next write cuts and numbers groups of signals to the same names",
     "Choose names that differ in their first 27 characters.",
     "BO_ 1 Engine: 8 ECU\n"
     " SG_ SpeedOfTheRearWheelInTheMidA : 0|8@1+ (1,0) [0|9] \"\" Dash\n"
     " SG_ SpeedOfTheRearWheelInTheMidA : 8|8@1+ (1,0) [0|9] \"\" Dash\n"
     " SG_ SpeedOfTheRearWheelInTheMidB : 16|8@1+ (1,0) [0|9] \"\" Dash\n"
     " SG_ SpeedOfTheRearWheelInTheMidB : 24|8@1+ (1,0) [0|9] \"\" Dash\n"},
    {Cause::CommentsDouble, Scope::File, Fate::Changed, "comments-double",
     "comments or descriptions of owners with one id and one name double with each round trip",
     "Give each message its own id.",
     "BO_ 1 Engine: 8 ECU\n"
     "BO_ 1 Door: 8 ECU\n"
     "CM_ BO_ 1 \"one comment for both\";\n"},
    {Cause::SignalsOverlap, Scope::Layout, Fate::Changed, "signals-overlap",
     "two signals share bits of their message", "Check start bits and lengths.",
     "BO_ 1 Engine: 8 ECU\n"
     " SG_ Speed : 0|8@1+ (1,0) [0|255] \"km/h\" Dash\n"
     " SG_ Gear : 4|8@1+ (1,0) [0|255] \"\" Dash\n"},
    {Cause::SignalOutsideMessage, Scope::Layout, Fate::Changed, "signal-outside-message",
     "a signal reaches beyond the size of its message",
     "Check start bit, length and byte order, and the size of the message.",
     "BO_ 1 Engine: 1 ECU\n"
     " SG_ Speed : 4|8@1+ (1,0) [0|255] \"\" Dash\n"},
    {Cause::MultiplexedWithoutSelector, Scope::Layout, Fate::Changed,
     "multiplexed-without-selector", "a message has multiplexed signals but no selector",
     "Mark the selector with M.",
     "BO_ 1 Engine: 8 ECU\n"
     " SG_ Speed m1 : 0|8@1+ (1,0) [0|255] \"\" Dash\n"},
    {Cause::RangeBeyondRawValues, Scope::Layout, Fate::Changed, "range-beyond-raw-values",
     "no raw value reaches a part of the range", "Check range, factor, offset and length.",
     "BO_ 1 Engine: 8 ECU\n"
     " SG_ Speed : 0|8@1+ (1,0) [0|1000] \"\" Dash\n"},
    {Cause::MoreThanTenDigits, Scope::Rewrite, Fate::Changed, "more-than-ten-digits",
     "a number with more than ten digits is written with ten",
     "Keep the original file if this matters.",
     "BO_ 1 Engine: 8 ECU\n"
     " SG_ Speed : 0|8@1+ (0.333333333333,0) [0|255] \"\" Dash\n"},
    {Cause::AttributeNotWritten, Scope::Rewrite, Fate::Dropped, "attribute-not-written",
     "an attribute that is read but not written", "Keep the original file if this matters.",
     "BO_ 1 Engine: 8 ECU\n"
     " SG_ Speed : 0|8@1+ (1,0) [0|255] \"km/h\" Dash\n"
     "BA_DEF_ BO_ \"GenMsgCycleTime\" INT 0 1000;\n"
     "BA_ \"GenMsgCycleTime\" BO_ 1 100;\n"},
    {Cause::PlaceholderNode, Scope::Rewrite, Fate::Changed, "placeholder-node",
     "a message without a sender or a signal without receivers is written with a placeholder",
     "Name the node.",
     "BO_ 1 Engine: 8\n"
     " SG_ Speed : 0|8@1+ (1,0) [0|255] \"\"\n"},
    {Cause::UnitWrittenInAscii, Scope::Rewrite, Fate::Changed, "unit-written-in-ascii",
     "a unit is written in its ASCII form", "Keep the original file if this matters.",
     "BO_ 1 Engine: 8 ECU\n"
     " SG_ Heat m : 0|8@1+ (1,0) [0|255] \"\xC2\xB0"
     "C\" Dash\n"},
    {Cause::DescriptionsOfFloat, Scope::Rewrite, Fate::Dropped, "descriptions-of-float",
     "the value descriptions of a floating-point signal are not written",
     "Keep the original file if this matters.",
     "BO_ 1 Engine: 8 ECU\n"
     " SG_ Speed : 0|32@1- (1,0) [0|255] \"\" Dash\n"
     "SIG_VALTYPE_ 1 Speed : 1;\n"
     "VAL_ 1 Speed 0 \"still\" ;\n"},
}};

}  // namespace vexil::tool
