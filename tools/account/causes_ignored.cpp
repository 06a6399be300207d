// The kinds that are never kept, and the rows of what is kept.
// SPDX-License-Identifier: MIT
#include "account/cause_rows.h"

namespace vexil::tool {

const std::array<CauseRow, IgnoredCount> IgnoredRows = {{
    {Cause::Version, Scope::Statement, Fate::Ignored, "version", "the version of the file",
     "Keep the original file if this matters: a written file does not have it.", ""},
    {Cause::Symbols, Scope::Statement, Fate::Ignored, "symbols", "the list of symbols under NS_",
     "Keep the original file if this matters: a written file does not have it.", ""},
    {Cause::BitTiming, Scope::Statement, Fate::Ignored, "bit-timing", "the bit timing",
     "Keep the original file if this matters: a written file does not have it.", ""},
    {Cause::Nodes, Scope::Statement, Fate::Ignored, "nodes",
     "the list of nodes; a written file lists the nodes that send or receive",
     "Keep the original file if this matters: a written file does not have it.", ""},
    {Cause::ValueTable, Scope::Statement, Fate::Ignored, "value-tables", "a table of values",
     "Keep the original file if this matters: a written file does not have it.", ""},
    {Cause::EnvironmentVariable, Scope::Statement, Fate::Ignored, "environment-variables",
     "an environment variable, its data or its values",
     "Keep the original file if this matters: a written file does not have it.", ""},
    {Cause::SecondSenders, Scope::Statement, Fate::Ignored, "second-senders",
     "further senders of a message",
     "Keep the original file if this matters: a written file does not have it.", ""},
    {Cause::SignalGroup, Scope::Statement, Fate::Ignored, "signal-groups", "a group of signals",
     "Keep the original file if this matters: a written file does not have it.", ""},
    {Cause::SignalType, Scope::Statement, Fate::Ignored, "signal-types",
     "a signal type or a reference to one",
     "Keep the original file if this matters: a written file does not have it.", ""},
    {Cause::MultiplexRanges, Scope::Statement, Fate::Ignored, "multiplex-ranges",
     "the ranges of extended multiplexing",
     "Keep the original file if this matters: a written file does not have it.", ""},
    {Cause::RelationAttribute, Scope::Statement, Fate::Ignored, "relation-attributes",
     "an attribute of a relation between a node and another object",
     "Keep the original file if this matters: a written file does not have it.", ""},
    {Cause::Category, Scope::Statement, Fate::Ignored, "categories",
     "a category, a filter or another statement without a reader",
     "Keep the original file if this matters: a written file does not have it.", ""},
    {Cause::OtherAttribute, Scope::Statement, Fate::Ignored, "other-attributes",
     "an attribute that is not one of the nine that are kept",
     "Keep the original file if this matters: a written file does not have it.", ""},
    {Cause::NodeComment, Scope::Statement, Fate::Ignored, "comments-of-nodes",
     "the comment of a node",
     "Keep the original file if this matters: a written file does not have it.", ""},
    {Cause::NetworkComment, Scope::Statement, Fate::Ignored, "comments-of-the-network",
     "a comment of the network",
     "Keep the original file if this matters: a written file does not have it.", ""},
    {Cause::EnvironmentVariableComment, Scope::Statement, Fate::Ignored,
     "comments-of-environment-variables", "the comment of an environment variable",
     "Keep the original file if this matters: a written file does not have it.", ""},
    {Cause::Kept, Scope::Statement, Fate::Kept, "kept", "the statement is kept as it is", "None.",
     ""},
    {Cause::KeptWithoutEffect, Scope::Statement, Fate::Kept, "kept-without-effect",
     "the statement says what holds without it, such as an empty comment or a value equal to the "
     "default",
     "None.", ""},
}};

}  // namespace vexil::tool
