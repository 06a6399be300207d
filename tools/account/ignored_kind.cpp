// Maps statements of ignored kinds to causes.
// SPDX-License-Identifier: MIT
#include "account/ignored_kind.h"

#include "account/attribute_words.h"
#include "account/lexical.h"

namespace vexil::tool {
namespace {

std::optional<Outcome> IgnoredComment(std::string_view text) {
    Words words(text);
    const std::string_view keyword = words.Next();
    const std::string_view owner = words.Next();
    if (owner.starts_with('"') || keyword.find('"') != std::string_view::npos) {
        return Outcome{Cause::NetworkComment, ""};
    }
    if (owner == "BU_" || owner == "BU_:") {
        return Outcome{Cause::NodeComment, std::string(words.Peek())};
    }
    if (owner == "EV_") {
        return Outcome{Cause::EnvironmentVariableComment, std::string(words.Peek())};
    }
    return std::nullopt;
}

std::optional<Outcome> IgnoredDescriptions(std::string_view text) {
    Words words(text);
    words.Next();
    const std::string_view name = words.Peek();
    if (HasIdentifierCharacters(name.substr(0, 1))) {
        return Outcome{Cause::EnvironmentVariable, std::string(name)};
    }
    return std::nullopt;
}

Cause CauseOf(Keyword keyword) {
    switch (keyword) {
        case Keyword::Version:
            return Cause::Version;
        case Keyword::Ns:
        case Keyword::NsDesc:
            return Cause::Symbols;
        case Keyword::Bs:
            return Cause::BitTiming;
        case Keyword::Bu:
            return Cause::Nodes;
        case Keyword::ValTable:
            return Cause::ValueTable;
        case Keyword::Ev:
        case Keyword::EvData:
        case Keyword::EnvvarData:
            return Cause::EnvironmentVariable;
        case Keyword::BoTxBu:
            return Cause::SecondSenders;
        case Keyword::SigGroup:
            return Cause::SignalGroup;
        case Keyword::Sgtype:
        case Keyword::SgtypeVal:
        case Keyword::BaDefSgtype:
        case Keyword::BaSgtype:
        case Keyword::SigTypeRef:
        case Keyword::SigtypeValtype:
            return Cause::SignalType;
        case Keyword::SgMulVal:
            return Cause::MultiplexRanges;
        case Keyword::BaDefRel:
        case Keyword::BaRel:
        case Keyword::BaDefDefRel:
        case Keyword::BuSgRel:
        case Keyword::BuEvRel:
        case Keyword::BuBoRel:
            return Cause::RelationAttribute;
        default:
            return Cause::Category;
    }
}

}  // namespace

std::optional<Outcome> IgnoredKind(Keyword keyword, std::string_view text) {
    switch (keyword) {
        case Keyword::None:
        case Keyword::Bo:
        case Keyword::Sg:
        case Keyword::SigValtype:
            return std::nullopt;
        case Keyword::Cm:
            return IgnoredComment(text);
        case Keyword::Val:
            return IgnoredDescriptions(text);
        case Keyword::Ba:
        case Keyword::BaDef:
        case Keyword::BaDefDef:
            return IsOtherAttribute(AttributeName(text))
                       ? std::optional(OtherAttribute(AttributeName(text)))
                       : std::nullopt;
        default:
            return Outcome{CauseOf(keyword), ""};
    }
}

}  // namespace vexil::tool
