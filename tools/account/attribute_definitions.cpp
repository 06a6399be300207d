// Definitions of attributes.
// SPDX-License-Identifier: MIT

#include <algorithm>
#include <utility>

#include "account/attribute_words.h"
#include "format/format.h"

namespace vexil::tool {
namespace {

std::optional<AttributeType> TypeOf(std::string_view token) {
    if (token == "INT") {
        return AttributeType::Int;
    }
    if (token == "ENUM") {
        return AttributeType::Enum;
    }
    return token == "STRING" ? std::optional(AttributeType::Text) : std::nullopt;
}

// Returns whether the tokens after the type are valid for it.
bool HasArguments(AttributeType type, const AttributeTokens& tokens, std::size_t typeAt) {
    const std::size_t count = tokens.size() - typeAt - 1;
    const auto isNumber = [&](std::size_t at) {
        return tokens[typeAt + at].tokenClass == TokenClass::Number;
    };
    switch (type) {
        case AttributeType::Int:
            return count == 2 && (isNumber(1) || isNumber(2));
        case AttributeType::Enum:
            return count != 0 &&
                   std::all_of(tokens.end() - static_cast<std::ptrdiff_t>(count), tokens.end(),
                               [](const AttributeToken& token) {
                                   return token.tokenClass == TokenClass::QuotedString;
                               });
        default:
            return count == 0;
    }
}

}  // namespace

std::optional<std::uint32_t> AttributeBook::Find(std::string_view name, AttributeOwner owner,
                                                 AttributeType type) const {
    for (std::uint32_t index = 0; index < definitions.size(); ++index) {
        const Definition& each = definitions[index];
        if (each.attribute->name == name && each.owner == owner && each.type == type) {
            return index;
        }
    }
    return std::nullopt;
}

std::optional<std::uint32_t> AttributeBook::FindForValue(std::string_view name) const {
    for (const AttributeOwner owner :
         {AttributeOwner::Network, AttributeOwner::Message, AttributeOwner::Signal}) {
        for (const AttributeType type :
             {AttributeType::Int, AttributeType::Text, AttributeType::Enum}) {
            if (const auto found = Find(name, owner, type)) {
                return found;
            }
        }
    }
    return std::nullopt;
}

Outcome AttributeBook::AddDefinition(std::string_view text, std::uint32_t statement) {
    if (IsOtherAttribute(AttributeName(text))) {
        return OtherAttribute(AttributeName(text));
    }
    const AttributeTokens tokens = SplitAttribute(text);
    using enum TokenClass;
    const bool hasOwner = HasClasses(tokens, {Other, Other, QuotedString, Other});
    if (!hasOwner && !HasClasses(tokens, {Other, QuotedString, Other})) {
        return {Cause::Malformed, "BA_DEF_ OWNER \"NAME\" TYPE and what the type needs"};
    }
    const std::size_t typeAt = hasOwner ? 3 : 2;
    const KeptAttribute* const attribute =
        FindKeptAttribute(QuotedContent(tokens[typeAt - 1].text));
    if (attribute == nullptr) {
        return OtherAttribute(QuotedContent(tokens[typeAt - 1].text));
    }
    const auto owner = hasOwner ? OwnerOf(tokens[1].text) : std::optional(AttributeOwner::Network);
    if (!owner) {
        return {Cause::AttributeOwner, KeptFor(*attribute)};
    }
    const auto type = TypeOf(tokens[typeAt].text);
    if (!type) {
        return {Cause::AttributeType, KeptFor(*attribute)};
    }
    if (!HasArguments(*type, tokens, typeAt)) {
        return {Cause::Malformed, Format("{} needs {}", WordOf(*type),
                                         *type == AttributeType::Int    ? "two numbers"
                                         : *type == AttributeType::Enum ? "texts in quotes"
                                                                        : "nothing more")};
    }
    if (Find(attribute->name, *owner, *type)) {
        return {Cause::RepeatedDefinition, std::string(attribute->name)};
    }
    Definition definition{attribute, *owner, *type, statement, {}, {}};
    for (std::size_t at = typeAt + 1; *type == AttributeType::Enum && at < tokens.size(); ++at) {
        definition.choices.emplace_back(QuotedContent(tokens[at].text));
    }
    definitions.push_back(std::move(definition));
    if (*owner != attribute->owner) {
        return {Cause::AttributeOwner, KeptFor(*attribute)};
    }
    if (*type != attribute->type) {
        return {Cause::AttributeType, KeptFor(*attribute)};
    }
    return {};
}

}  // namespace vexil::tool
