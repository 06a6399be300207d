// Rows of the causes that a statement is ignored or kept.
// SPDX-License-Identifier: MIT
#include "account/cause_rows.h"

namespace vexil::tool {

const std::array<CauseRow, IgnoredCount> IgnoredRows = {{
    {Cause::Version, Scope::Statement, Fate::Ignored, "version", "the version of the file",
     "Keep the original file if this matters: a written file does not have it.",
     "VERSION \"1.0\"\n"},
    {Cause::Symbols, Scope::Statement, Fate::Ignored, "symbols", "the list of symbols under NS_",
     "Keep the original file if this matters: a written file does not have it.",
     "NS_ :\n"
     "    CM_\n"
     "    VAL_\n"},
    {Cause::BitTiming, Scope::Statement, Fate::Ignored, "bit-timing", "the bit timing",
     "Keep the original file if this matters: a written file does not have it.", "BS_ :\n"},
    {Cause::Nodes, Scope::Statement, Fate::Ignored, "nodes",
     "the list of nodes; a written file lists the nodes that send or receive",
     "Keep the original file if this matters: a written file does not have it.",
     "BU_ : ECU Dash\n"},
    {Cause::ValueTable, Scope::Statement, Fate::Ignored, "value-tables", "a table of values",
     "Keep the original file if this matters: a written file does not have it.",
     "VAL_TABLE_ OnOff 0 \"off\" 1 \"on\" ;\n"},
    {Cause::EnvironmentVariable, Scope::Statement, Fate::Ignored, "environment-variables",
     "an environment variable, its data or its values",
     "Keep the original file if this matters: a written file does not have it.",
     "EV_ Light: 0 [0|1] \"\" 0 1 DUMMY_NODE_VECTOR0 ECU;\n"},
    {Cause::SecondSenders, Scope::Statement, Fate::Ignored, "second-senders",
     "further senders of a message",
     "Keep the original file if this matters: a written file does not have it.",
     "BO_ 1 Engine: 8 ECU\n"
     " SG_ Speed : 0|8@1+ (1,0) [0|255] \"km/h\" Dash\n"
     "BO_TX_BU_ 1 : ECU,Dash;\n"},
    {Cause::SignalGroup, Scope::Statement, Fate::Ignored, "signal-groups", "a group of signals",
     "Keep the original file if this matters: a written file does not have it.",
     "BO_ 1 Engine: 8 ECU\n"
     " SG_ Speed : 0|8@1+ (1,0) [0|255] \"km/h\" Dash\n"
     "SIG_GROUP_ 1 All 1 : Speed;\n"},
    {Cause::SignalType, Scope::Statement, Fate::Ignored, "signal-types",
     "a signal type or a reference to one",
     "Keep the original file if this matters: a written file does not have it.",
     "SGTYPE_ Percent : 8@1+ (1,0) [0|100] \"%\" 0, OnOff;\n"},
    {Cause::MultiplexRanges, Scope::Statement, Fate::Ignored, "multiplex-ranges",
     "the ranges of extended multiplexing",
     "Keep the original file if this matters: a written file does not have it.",
     "BO_ 1 Engine: 8 ECU\n"
     " SG_ Speed : 0|8@1+ (1,0) [0|255] \"km/h\" Dash\n"
     "SG_MUL_VAL_ 1 Speed Gear 0-3, 5-5;\n"},
    {Cause::RelationAttribute, Scope::Statement, Fate::Ignored, "relation-attributes",
     "an attribute of a relation between a node and another object",
     "Keep the original file if this matters: a written file does not have it.",
     "BA_DEF_REL_ BU_SG_REL_ \"Timeout\" INT 0 1000;\n"},
    {Cause::Category, Scope::Statement, Fate::Ignored, "categories",
     "a category, a filter or another statement without a reader",
     "Keep the original file if this matters: a written file does not have it.",
     "CAT_DEF_ 1 Body;\n"},
    {Cause::OtherAttribute, Scope::Statement, Fate::Ignored, "other-attributes",
     "an attribute that is not one of the nine that are kept",
     "Keep the original file if this matters: a written file does not have it.",
     "BA_DEF_ BO_ \"Supplier\" STRING ;\n"},
    {Cause::NodeComment, Scope::Statement, Fate::Ignored, "comments-of-nodes",
     "the comment of a node",
     "Keep the original file if this matters: a written file does not have it.",
     "CM_ BU_ ECU \"the engine\";\n"},
    {Cause::NetworkComment, Scope::Statement, Fate::Ignored, "comments-of-the-network",
     "a comment of the network",
     "Keep the original file if this matters: a written file does not have it.",
     "CM_ \"the network\";\n"},
    {Cause::EnvironmentVariableComment, Scope::Statement, Fate::Ignored,
     "comments-of-environment-variables", "the comment of an environment variable",
     "Keep the original file if this matters: a written file does not have it.",
     "CM_ EV_ Light \"in the door\";\n"},
    {Cause::Kept, Scope::Statement, Fate::Kept, "kept", "the statement is kept as it is", "None.",
     "BO_ 1 Engine: 8 ECU\n"
     " SG_ Speed : 0|8@1+ (1,0) [0|255] \"km/h\" Dash\n"},
    {Cause::KeptWithoutEffect, Scope::Statement, Fate::Kept, "kept-without-effect",
     "the statement says what holds without it, such as an empty comment or a value equal to the "
     "default",
     "None.",
     "BO_ 1 Engine: 8 ECU\n"
     " SG_ Speed : 0|8@1+ (1,0) [0|255] \"km/h\" Dash\n"
     "CM_ BO_ 1 \"\";\n"},
}};

}  // namespace vexil::tool
