// Rows of the causes that a statement is changed.
// SPDX-License-Identifier: MIT
#include "account/cause_rows.h"

namespace vexil::tool {

const std::array<CauseRow, ChangedCount> ChangedRows = {{
    {Cause::InvalidUtf8, Scope::Statement, Fate::Changed, "invalid-utf8",
     "a byte is not valid UTF-8; each such byte becomes an underscore",
     "Convert the file to UTF-8, for example with rewrite --from windows-1252.",
     "BO_ 1 Engine: 8 ECU\n"
     " SG_ Heat : 0|8@1+ (1,0) [0|255] \"\xB0"
     "C\" Dash\n"},
    {Cause::ControlCharacters, Scope::Statement, Fate::Changed, "control-characters",
     "control characters are removed",
     "Delete the control characters. In UTF-16 text every other byte is one.",
     "BO_ 1 Engine: 8 \x01"
     "ECU\n"},
    {Cause::CutAtKeyword, Scope::Statement, Fate::Changed, "cut-at-keyword",
     "a keyword inside the statement ends it there",
     "Write the keyword in another way, for example without its underscore.",
     "BO_ 1 Engine: 8 ECU\n"
     " SG_ Speed : 0|8@1+ (1,0) [0|255] \"see VAL_ below\" Dash\n"},
    {Cause::CutAt4096Bytes, Scope::Statement, Fate::Changed, "cut-at-4096-bytes",
     "the statement has more than 4,096 bytes; the lines after that are lost",
     "Shorten it, or write it on one line.", ""},
    {Cause::NameMadeIdentifier, Scope::Statement, Fate::Changed, "name-made-identifier",
     "the name is no identifier; other characters become underscores",
     "Use letters, digits and underscores, and no digit at the front.",
     "BO_ 1 Engine Data: 8 ECU\n"},
    {Cause::NameCut, Scope::Statement, Fate::Changed, "name-cut",
     "the name has more than 32 characters and is cut",
     "Shorten the name, and carry the long one in an attribute.",
     "BO_ 1 EngineDataOfTheSecondControlUnitInFront: 8 ECU\n"},
    {Cause::NodeNameChanged, Scope::Statement, Fate::Changed, "node-name-changed",
     "a sender or receiver is no identifier of at most 32 characters", "Rename the node.",
     "BO_ 1 Engine: 8 ECU-1\n"},
    {Cause::BareM, Scope::Statement, Fate::Changed, "bare-m",
     "an m without a number is taken as a part of the name",
     "Write M for the selector, or m and the value of the selector.",
     "BO_ 1 Engine: 8 ECU\n"
     " SG_ Gear m : 0|8@1+ (1,0) [0|255] \"\" Dash\n"},
    {Cause::ExtendedMultiplexing, Scope::Statement, Fate::Changed, "extended-multiplexing",
     "an indicator of extended multiplexing, such as m0M, is taken as a part of the name",
     "Describe the signal with M or with m and a number.",
     "BO_ 1 Engine: 8 ECU\n"
     " SG_ Gear m0M : 0|8@1+ (1,0) [0|255] \"\" Dash\n"},
    {Cause::NameTakenForMultiplexing, Scope::Statement, Fate::Changed,
     "name-taken-for-multiplexing", "the name of the signal is taken for a multiplex indicator",
     "Rename the signal.",
     "BO_ 1 Engine: 8 ECU\n"
     " SG_ M : 0|8@1+ (1,0) [0|255] \"\" Dash\n"},
    {Cause::UnitFolded, Scope::Statement, Fate::Changed, "unit-folded",
     "the ASCII form of the unit has an underscore for each other character",
     "None is needed where unitUtf8 is used; a written file has the ASCII form.",
     "BO_ 1 Engine: 8 ECU\n"
     " SG_ Heat : 0|8@1+ (1,0) [0|255] \"\xC2\xB0"
     "C\" Dash\n"},
    {Cause::UnitTrimmed, Scope::Statement, Fate::Changed, "unit-trimmed",
     "white space around the unit is removed", "Remove it in the file.",
     "BO_ 1 Engine: 8 ECU\n"
     " SG_ Speed : 0|8@1+ (1,0) [0|255] \" km/h\" Dash\n"},
    {Cause::RangeReversed, Scope::Statement, Fate::Changed, "range-reversed",
     "the minimum is larger than the maximum; the two are exchanged", "Exchange them in the file.",
     "BO_ 1 Engine: 8 ECU\n"
     " SG_ Speed : 0|8@1+ (1,0) [255|0] \"\" Dash\n"},
    {Cause::LayoutAssumed, Scope::Statement, Fate::Changed, "layout-assumed",
     "byte order or sign is missing; little-endian and unsigned are assumed",
     "Write the byte order and the sign, as in 0|16@1+.",
     "BO_ 1 Engine: 8 ECU\n"
     " SG_ Speed : 0|8@1 (1,0) [0|255] \"\" Dash\n"},
    {Cause::TextTooLong, Scope::Statement, Fate::Changed, "text-too-long",
     "the text is longer than the field of the record and is cut there",
     "Shorten it: 255 bytes for comments, display names, receivers and descriptions, 32 for units.",
     "BO_ 1 Engine: 8 ECU\n"
     " SG_ Speed : 0|8@1+ (1,0) [0|255] \"kilometres travelled in each hour\" Dash\n"},
    {Cause::TextAfterMessage, Scope::Statement, Fate::Changed, "text-after-message",
     "more than a name follows the size; all of it is taken as the sender",
     "Delete the text after the sender, or give the sender one name.",
     "BO_ 1 Engine: 8 ECU // the engine\n"},
    {Cause::TextAfterSignal, Scope::Statement, Fate::Changed, "text-after-signal",
     "what follows the unit is no list of names with commas; it is taken as receivers",
     "Put commas between the receivers, and delete other text.",
     "BO_ 1 Engine: 8 ECU\n"
     " SG_ Speed : 0|8@1+ (1,0) [0|255] \"\" Dash Radio\n"},
    {Cause::TextAfterComment, Scope::Statement, Fate::Changed, "text-after-comment",
     "the comment reaches to the last quote before the next statement",
     "Delete the text after the semicolon.",
     "BO_ 1 Engine: 8 ECU\n"
     " SG_ Speed : 0|8@1+ (1,0) [0|255] \"km/h\" Dash\n"
     "CM_ BO_ 1 \"a comment\"; \"and one more\"\n"
     "BU_ : ECU\n"},
    {Cause::NumberReadInPart, Scope::Statement, Fate::Changed, "number-read-in-part",
     "only the front of a number is read",
     "Write whole numbers in decimal, others with a full stop.",
     "BO_ 1 Engine: 8 ECU\n"
     " SG_ Speed : 0|8@1+ (0.5x,0) [0|255] \"\" Dash\n"},
    {Cause::ValueTypeLength, Scope::Statement, Fate::Changed, "value-type-length",
     "a value type needs a signal of 32 or 64 bits; the signal stays an integer",
     "Give the signal 32 bits for type 1, 64 bits for type 2.",
     "BO_ 1 Engine: 8 ECU\n"
     " SG_ Speed : 0|8@1+ (1,0) [0|255] \"km/h\" Dash\n"
     "SIG_VALTYPE_ 1 Speed : 1;\n"},
    {Cause::DescriptionsJoined, Scope::Statement, Fate::Changed, "descriptions-joined",
     "a value is described more than once; the descriptions are joined",
     "Describe each value once.",
     "BO_ 1 Engine: 8 ECU\n"
     " SG_ Speed : 0|8@1+ (1,0) [0|255] \"km/h\" Dash\n"
     "VAL_ 1 Speed 0 \"still\" 0 \"stopped\" ;\n"},
    {Cause::DescriptionsShifted, Scope::Statement, Fate::Changed, "descriptions-shifted",
     "a value is no number of 32 bits, so later numbers and texts are paired wrongly",
     "Write each value in decimal before its quoted text, without quotes inside the text.",
     "BO_ 1 Engine: 8 ECU\n"
     " SG_ Speed : 0|8@1+ (1,0) [0|255] \"km/h\" Dash\n"
     "VAL_ 1 Speed 4294967295 \"unknown\" 0 \"still\" ;\n"},
    {Cause::CommentsJoined, Scope::Statement, Fate::Changed, "comments-joined",
     "the owner already has a comment; the texts are joined", "Make one comment of the two.",
     "BO_ 1 Engine: 8 ECU\n"
     " SG_ Speed : 0|8@1+ (1,0) [0|255] \"km/h\" Dash\n"
     "CM_ BO_ 1 \"one\";\n"
     "CM_ BO_ 1 \"two\";\n"},
    {Cause::AttributeTextFolded, Scope::Statement, Fate::Changed, "attribute-text-folded",
     "white space, commas and semicolons inside the text become one blank", "Use other characters.",
     "BO_ 1 Engine: 8 ECU\n"
     " SG_ Speed : 0|8@1+ (1,0) [0|255] \"km/h\" Dash\n"
     "BA_DEF_ BO_ \"Marrowby_Msg_Name\" STRING ;\n"
     "BA_ \"Marrowby_Msg_Name\" BO_ 1 \"Engine, front\";\n"},
}};

}  // namespace vexil::tool
