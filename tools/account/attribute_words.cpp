// The table of the nine reserved attributes, and their descriptions.
// SPDX-License-Identifier: MIT
#include "account/attribute_words.h"

#include <algorithm>

#include "format/format.h"

namespace vexil::tool {

const std::array<KeptAttribute, KeptAttributeCount> KeptAttributes = {
    {{"BusType", AttributeOwner::Network, AttributeType::Text, true},
     {"J1939PGN", AttributeOwner::Network, AttributeType::Int, true},
     {"IsNMEA", AttributeOwner::Network, AttributeType::Int, true},
     {"Marrowby_Msg_Name", AttributeOwner::Message, AttributeType::Text, true},
     {"GenMsgSendType", AttributeOwner::Message, AttributeType::Enum, false},
     {"GenMsgCycleTime", AttributeOwner::Message, AttributeType::Int, false},
     {"Marrowby_Sig_Name", AttributeOwner::Signal, AttributeType::Text, true},
     {"GenSigStartValue", AttributeOwner::Signal, AttributeType::Int, false},
     {"GenSigInactiveValue", AttributeOwner::Signal, AttributeType::Int, false}}};

const KeptAttribute* FindKeptAttribute(std::string_view name) {
    const auto* const found =
        std::find_if(KeptAttributes.begin(), KeptAttributes.end(),
                     [name](const KeptAttribute& each) { return each.name == name; });
    return found == KeptAttributes.end() ? nullptr : found;
}

namespace {

std::string OwnerWord(AttributeOwner owner) {
    switch (owner) {
        case AttributeOwner::Message:
            return "messages";
        case AttributeOwner::Signal:
            return "signals";
        default:
            return "the network";
    }
}

}  // namespace

std::string_view WordOf(AttributeType type) {
    switch (type) {
        case AttributeType::Int:
            return "INT";
        case AttributeType::Enum:
            return "ENUM";
        default:
            return "STRING";
    }
}

std::string KeptFor(const KeptAttribute& attribute) {
    return Format("{} is kept as {} of {}", attribute.name, WordOf(attribute.type),
                  OwnerWord(attribute.owner));
}

bool HasClasses(const AttributeTokens& tokens, std::initializer_list<TokenClass> classes) {
    return tokens.size() >= classes.size() &&
           std::equal(
               classes.begin(), classes.end(), tokens.begin(),
               [](TokenClass one, const AttributeToken& token) { return token.tokenClass == one; });
}

std::optional<AttributeOwner> OwnerOf(std::string_view token) {
    if (token == "BO_") {
        return AttributeOwner::Message;
    }
    return token == "SG_" ? std::optional(AttributeOwner::Signal) : std::nullopt;
}

bool IsOtherAttribute(std::string_view name) {
    return !name.empty() && FindKeptAttribute(name) == nullptr;
}

Outcome OtherAttribute(std::string_view name) {
    return {Cause::OtherAttribute, std::string(name)};
}

}  // namespace vexil::tool
