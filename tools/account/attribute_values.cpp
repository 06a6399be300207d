// Defaults and values of attributes.
// SPDX-License-Identifier: MIT

#include <algorithm>
#include <charconv>
#include <limits>
#include <utility>

#include "account/attribute_words.h"
#include "account/lexical.h"
#include "format/format.h"

namespace vexil::tool {
namespace {

// Sets a value from a token of a statement. Returns false if it does not fit the type.
bool SetValue(AttributeType type, const std::vector<std::string>& choices, std::string_view token,
              AttributeValue& value) {
    const auto number = ReadLeadingNumber(token);
    if (type == AttributeType::Int) {
        value.number = number ? number->value : value.number;
        return number.has_value();
    }
    const std::string_view content = QuotedContent(token);
    if (type == AttributeType::Text) {
        value.text = content;
        return true;
    }
    if (number && number->value >= 0 && static_cast<std::size_t>(number->value) < choices.size()) {
        value.number = number->value;
        return true;
    }
    const auto choice = std::find(choices.begin(), choices.end(), content);
    if (choice == choices.end()) {
        return false;
    }
    value.number = static_cast<std::int32_t>(choice - choices.begin());
    return true;
}

}  // namespace

Outcome AttributeBook::Defer(std::string_view name, std::uint32_t statement) {
    undefined.emplace_back(statement, name);
    return {Cause::AttributeNotDefined, std::string(name)};
}

Outcome AttributeBook::AddDefault(std::string_view text, std::uint32_t statement) {
    if (IsOtherAttribute(AttributeName(text))) {
        return OtherAttribute(AttributeName(text));
    }
    const AttributeTokens tokens = SplitAttribute(text);
    if (!HasClasses(tokens, {TokenClass::Other, TokenClass::QuotedString}) || tokens.size() < 3) {
        return {Cause::Malformed, "BA_DEF_DEF_ \"NAME\" VALUE;"};
    }
    const std::string_view name = QuotedContent(tokens[1].text);
    if (FindKeptAttribute(name) == nullptr) {
        return OtherAttribute(name);
    }
    if (!FindForValue(name)) {
        return Defer(name, statement);
    }
    Outcome outcome{Cause::AttributeOwner, KeptFor(*FindKeptAttribute(name))};
    for (std::uint32_t index = 0; index < definitions.size(); ++index) {
        Definition& definition = definitions[index];
        if (definition.attribute->name != name) {
            continue;
        }
        const bool isSet =
            SetValue(definition.type, definition.choices, tokens[2].text, definition.byDefault);
        if (!definition.IsUsed()) {
            continue;
        }
        outcome = isSet ? Outcome{}
                        : Outcome{Cause::AttributeType,
                                  Format("{} is no value of type {}", Shown(tokens[2].text),
                                         WordOf(definition.type))};
        if (isSet) {
            const auto earlier =
                std::find_if(defaults.begin(), defaults.end(),
                             [index](const Default& each) { return each.definition == index; });
            if (earlier != defaults.end()) {
                overwritten.push_back(earlier->statement);
                earlier->statement = statement;
            } else {
                defaults.push_back({index, statement});
            }
        }
    }
    return outcome;
}

namespace {

// Returns the message id of a token that is a number, as strtoul reads it.
std::uint32_t IdOf(std::string_view token) {
    std::int64_t number = 0;
    std::from_chars(token.data(), token.data() + token.size(), number);
    constexpr std::int64_t Largest = std::numeric_limits<std::uint32_t>::max();
    return number > Largest || number < -Largest ? 0 : static_cast<std::uint32_t>(number);
}

// Returns the index of the token with the value, for a statement with this owner.
constexpr std::size_t ValueAt(AttributeOwner owner) {
    switch (owner) {
        case AttributeOwner::Message:
            return 4;
        case AttributeOwner::Signal:
            return 5;
        default:
            return 2;
    }
}

bool NamesAnOwner(std::string_view token) {
    return token == "BO_" || token == "SG_" || token == "BU_" || token == "EV_";
}

// Returns whether the statement has the owner of the definition.
bool HasOwner(const AttributeTokens& tokens, AttributeOwner owner) {
    const std::string_view token = tokens.size() > 2 ? std::string_view(tokens[2].text) : "";
    return owner == AttributeOwner::Network ? !NamesAnOwner(token) : OwnerOf(token) == owner;
}

// Returns whether the statement has an owner and a value, with all their tokens.
bool HasForm(const AttributeTokens& tokens, AttributeOwner owner) {
    if (tokens.size() <= ValueAt(owner)) {
        return false;
    }
    return owner == AttributeOwner::Network ||
           (tokens[3].tokenClass == TokenClass::Number &&
            (owner == AttributeOwner::Message || tokens[4].tokenClass == TokenClass::Other));
}

// The outcome of a value that was read: whether it is exactly the value in the statement.
Outcome ClassifyKeptValue(AttributeType type, std::string_view token, std::string_view statement) {
    constexpr std::size_t LongestText = LongTextSize - 1;
    if (type != AttributeType::Text) {
        const auto number = ReadLeadingNumber(token);
        return number && number->isWhole ? Outcome{}
                                         : Outcome{Cause::NumberReadInPart, std::string(token)};
    }
    const std::string_view content = QuotedContent(token);
    if (content.size() > LongestText) {
        return {Cause::TextTooLong, Format("the text has {} bytes", content.size())};
    }
    if (statement.find(token) == std::string_view::npos) {
        return {Cause::AttributeTextFolded, Format("it is kept as \"{}\"", Shown(content))};
    }
    return {};
}

}  // namespace

Outcome AttributeBook::AddValue(std::string_view text, std::uint32_t statement) {
    if (IsOtherAttribute(AttributeName(text))) {
        return OtherAttribute(AttributeName(text));
    }
    const AttributeTokens tokens = SplitAttribute(text);
    if (!HasClasses(tokens, {TokenClass::Other, TokenClass::QuotedString})) {
        return {Cause::Malformed, "BA_ \"NAME\" OWNER VALUE;"};
    }
    const std::string_view name = QuotedContent(tokens[1].text);
    if (FindKeptAttribute(name) == nullptr) {
        return OtherAttribute(name);
    }
    const auto index = FindForValue(name);
    if (!index) {
        return Defer(name, statement);
    }
    const Definition& definition = definitions[*index];
    if (!HasOwner(tokens, definition.owner)) {
        return {Cause::AttributeOwner, KeptFor(*definition.attribute)};
    }
    if (!HasForm(tokens, definition.owner)) {
        return {Cause::Malformed, "BA_ \"NAME\" OWNER VALUE;"};
    }
    const AttributeToken& token = tokens[ValueAt(definition.owner)];
    const bool isText = definition.type == AttributeType::Text;
    Value value{*index, statement, 0, {}, definition.byDefault};
    if (token.tokenClass != (isText ? TokenClass::QuotedString : TokenClass::Number) ||
        !SetValue(definition.type, definition.choices, token.text, value.value)) {
        return {Cause::AttributeType,
                Format("{} is no value of type {}", Shown(token.text), WordOf(definition.type))};
    }
    if (definition.owner != AttributeOwner::Network) {
        value.id = IdOf(tokens[3].text);
    }
    if (definition.owner == AttributeOwner::Signal) {
        value.signal = tokens[4].text;
    }
    if (!valueKeys.insert({*index, value.id, value.signal}).second) {
        return {Cause::RepeatedValue, ""};
    }
    if (!definition.IsUsed()) {
        return {definition.owner != definition.attribute->owner ? Cause::AttributeOwner
                                                                : Cause::AttributeType,
                KeptFor(*definition.attribute)};
    }
    values.push_back(std::move(value));
    return ClassifyKeptValue(definition.type, token.text, text);
}

}  // namespace vexil::tool
