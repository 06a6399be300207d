// Rows of the causes that a statement is dropped.
// SPDX-License-Identifier: MIT
#include "account/cause_rows.h"

namespace vexil::tool {

const std::array<CauseRow, DroppedCount> DroppedRows = {{
    {Cause::SignalOfRefusedMessage, Scope::Statement, Fate::Dropped, "signal-of-refused-message",
     "the message of the signal was refused", "Correct the message.",
     "BO_ 0x1 Engine: 8 ECU\n"
     " SG_ Speed : 0|8@1+ (1,0) [0|255] \"\" Dash\n"},
    {Cause::SignalOfDroppedMessage, Scope::Statement, Fate::Dropped, "signal-of-dropped-message",
     "the message of the signal was dropped", "Correct what became of the message.",
     "CM_ \"a comment without its semicolon\"\n"
     "BO_ 1 Engine: 8 ECU\n"
     " SG_ Speed : 0|8@1+ (1,0) [0|255] \"\" Dash\n"},
    {Cause::SignalAfterRefusedSignal, Scope::Statement, Fate::Dropped,
     "signal-after-refused-signal",
     "an earlier signal of the message was refused, which ends its signals",
     "Correct the refused signal.",
     "BO_ 1 Engine: 8 ECU\n"
     " SG_ Gear 0|8@1+ (1,0) [0|255] \"\" Dash\n"
     " SG_ Speed : 8|8@1+ (1,0) [0|255] \"\" Dash\n"},
    {Cause::SignalAfterStatement, Scope::Statement, Fate::Dropped, "signal-after-statement",
     "another statement is between the message and the signal, which ends its signals",
     "Move the other statement after the last signal of the message.",
     "BO_ 1 Engine: 8 ECU\n"
     "CM_ BO_ 1 \"in the wrong place\";\n"
     " SG_ Speed : 0|8@1+ (1,0) [0|255] \"\" Dash\n"},
    {Cause::SignalWithoutMessage, Scope::Statement, Fate::Dropped, "signal-without-message",
     "no message precedes the signal", "Put the signal after the BO_ statement of its message.",
     " SG_ Speed : 0|8@1+ (1,0) [0|255] \"\" Dash\n"
     "BO_ 1 Engine: 8 ECU\n"},
    {Cause::UnknownMessage, Scope::Statement, Fate::Dropped, "unknown-message",
     "the file has no message of this id",
     "Correct the id, or delete the statement. Ids of extended frames have bit 31 set.",
     "BO_ 1 Engine: 8 ECU\n"
     " SG_ Speed : 0|8@1+ (1,0) [0|255] \"km/h\" Dash\n"
     "CM_ BO_ 2 \"of no message\";\n"},
    {Cause::UnknownSignal, Scope::Statement, Fate::Dropped, "unknown-signal",
     "the message has no signal of this name", "Write the name as in the SG_ statement.",
     "BO_ 1 Engine: 8 ECU\n"
     " SG_ Speed : 0|8@1+ (1,0) [0|255] \"km/h\" Dash\n"
     "CM_ SG_ 1 Sped \"of no signal\";\n"},
    {Cause::BeforeItsOwner, Scope::Statement, Fate::Dropped, "before-its-owner",
     "the message or signal that the statement refers to comes later in the file",
     "Move the statement after the message.",
     "CM_ BO_ 1 \"too early\";\n"
     "BO_ 1 Engine: 8 ECU\n"
     " SG_ Speed : 0|8@1+ (1,0) [0|255] \"km/h\" Dash\n"},
    {Cause::Swallowed, Scope::Statement, Fate::Dropped, "swallowed",
     "an earlier statement without its semicolon took this one for its text",
     "Add the semicolon to the earlier statement, and let nothing but white space follow it.",
     "CM_ \"a comment without its semicolon\"\n"
     "BO_ 1 Engine: 8 ECU\n"},
    {Cause::Beyond4096Bytes, Scope::Statement, Fate::Dropped, "beyond-4096-bytes",
     "an earlier statement of more than 4,096 bytes took this one, or lost its own end",
     "Shorten the long statement.", ""},
    {Cause::Beyond10000Signals, Scope::Statement, Fate::Dropped, "beyond-10000-signals",
     "the message has 10,000 signals already", "Split the message.", ""},
    {Cause::HiddenByByteOrderMark, Scope::Statement, Fate::Dropped, "hidden-by-byte-order-mark",
     "the byte order mark at the front of the file hides the keyword",
     "Save the file as UTF-8 without a byte order mark.",
     "\xEF\xBB\xBF"
     "BO_ 1 Engine: 8 ECU\n"},
    {Cause::KeywordNotApart, Scope::Statement, Fate::Dropped, "keyword-not-apart",
     "no white space follows the keyword, so it is not read as one",
     "Put a blank after the keyword.",
     "BO_ 1 Engine: 8 ECU\n"
     " SG_ Speed : 0|8@1+ (1,0) [0|255] \"km/h\" Dash\n"
     "VAL_: 1 Speed 0 \"still\" ;\n"},
    {Cause::Malformed, Scope::Statement, Fate::Dropped, "malformed",
     "the statement has not the form of its kind",
     "Compare it with the form that the detail gives.",
     "BO_ 1 Engine: 8 ECU\n"
     " SG_ Speed : 0|8@1+ (1,0) [0|255] \"km/h\" Dash\n"
     "CM_ BO_ 1 no quotes;\n"},
    {Cause::AttributeOwner, Scope::Statement, Fate::Dropped, "attribute-owner",
     "the attribute belongs to owners of another kind",
     "Define and use the attribute for the kind that the detail gives.",
     "BA_DEF_ SG_ \"GenMsgCycleTime\" INT 0 1000;\n"},
    {Cause::AttributeType, Scope::Statement, Fate::Dropped, "attribute-type",
     "the attribute has another type, or the value does not fit the type",
     "Define the attribute with the type that the detail gives, and give it a value of that type.",
     "BA_DEF_ SG_ \"GenSigStartValue\" FLOAT 0 100;\n"},
    {Cause::AttributeNotDefined, Scope::Statement, Fate::Dropped, "attribute-not-defined",
     "the file does not define the attribute", "Add its BA_DEF_ statement before this one.",
     "BO_ 1 Engine: 8 ECU\n"
     " SG_ Speed : 0|8@1+ (1,0) [0|255] \"km/h\" Dash\n"
     "BA_ \"GenMsgCycleTime\" BO_ 1 100;\n"},
    {Cause::BeforeItsDefinition, Scope::Statement, Fate::Dropped, "before-its-definition",
     "the definition of the attribute comes later in the file",
     "Move the statement after the BA_DEF_ statement.",
     "BO_ 1 Engine: 8 ECU\n"
     " SG_ Speed : 0|8@1+ (1,0) [0|255] \"km/h\" Dash\n"
     "BA_ \"GenMsgCycleTime\" BO_ 1 100;\n"
     "BA_DEF_ BO_ \"GenMsgCycleTime\" INT 0 1000;\n"},
    {Cause::RepeatedDefinition, Scope::Statement, Fate::Dropped, "repeated-definition",
     "the attribute is already defined; the first definition counts",
     "Delete one of the definitions.",
     "BA_DEF_ BO_ \"GenMsgCycleTime\" INT 0 1000;\n"
     "BA_DEF_ BO_ \"GenMsgCycleTime\" INT 0 65535;\n"},
    {Cause::RepeatedValue, Scope::Statement, Fate::Dropped, "repeated-value",
     "the owner already has a value of the attribute; the first value counts",
     "Delete one of the values.",
     "BO_ 1 Engine: 8 ECU\n"
     " SG_ Speed : 0|8@1+ (1,0) [0|255] \"km/h\" Dash\n"
     "BA_DEF_ BO_ \"GenMsgCycleTime\" INT 0 1000;\n"
     "BA_ \"GenMsgCycleTime\" BO_ 1 100;\n"
     "BA_ \"GenMsgCycleTime\" BO_ 1 200;\n"},
    {Cause::OverwrittenDefault, Scope::Statement, Fate::Dropped, "overwritten-default",
     "a later default of the attribute replaces this one", "Delete one of the defaults.",
     "BA_DEF_ BO_ \"GenMsgCycleTime\" INT 0 1000;\n"
     "BA_DEF_DEF_ \"GenMsgCycleTime\" 100;\n"
     "BA_DEF_DEF_ \"GenMsgCycleTime\" 200;\n"},
    {Cause::StrayText, Scope::Statement, Fate::Dropped, "stray-text",
     "the text belongs to no statement",
     "Delete it. After a CM_, BA_ or BA_DEF_ statement it makes the statement swallow the next "
     "one.",
     "BO_ 1 Engine: 8 ECU\n"
     " SG_ Speed : 0|8@1+ (1,0) [0|255] \"km/h\" Dash\n"
     "VAL_ 1 Speed 0 \"still\" ; // no comment in this format\n"},
}};

}  // namespace vexil::tool
