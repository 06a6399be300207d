// The reserved attributes of a file as the library reads them: definitions with their defaults, and
// values. The outcome of a statement may be known only at the end of the file.
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

#include "account/attribute_tokens.h"
#include "account/classify.h"

namespace vexil::tool {

enum class AttributeOwner : std::uint8_t { Network, Message, Signal };
enum class AttributeType : std::uint8_t { Int, Text, Enum };

// A reserved attribute, with the owner and type that its definition must have.
struct KeptAttribute {
    std::string_view name;
    AttributeOwner owner;
    AttributeType type;
    bool isWritten;  // the library writes it
};

inline constexpr std::size_t KeptAttributeCount = 9;
extern const std::array<KeptAttribute, KeptAttributeCount> KeptAttributes;

// Returns the reserved attribute with a name, or null.
const KeptAttribute* FindKeptAttribute(std::string_view name);

// A number, an index into the list of texts of an enumeration, or a text.
struct AttributeValue {
    std::int32_t number = 0;
    std::string text;
};

class AttributeBook {
  public:
    // Each processes a statement and returns its outcome, which Finish can replace.
    Outcome AddDefinition(std::string_view text, std::uint32_t statement);
    Outcome AddDefault(std::string_view text, std::uint32_t statement);
    Outcome AddValue(std::string_view text, std::uint32_t statement);

    using LateOutcome = std::pair<std::uint32_t, Outcome>;

    // Determines the outcomes that are known only at the end of the file.
    std::vector<LateOutcome> Finish(const Owners& owners, const Snapshot& snapshot) const;

  private:
    struct Definition {
        const KeptAttribute* attribute;
        AttributeOwner owner;
        AttributeType type;
        std::uint32_t statement;
        AttributeValue byDefault;
        std::vector<std::string> choices;  // of an enumeration

        // Whether it has the owner and type of the reserved attribute.
        bool IsUsed() const { return owner == attribute->owner && type == attribute->type; }
    };
    struct Value {
        std::uint32_t definition;
        std::uint32_t statement;
        std::uint32_t id;
        std::string signal;
        AttributeValue value;
    };
    struct Default {
        std::uint32_t definition;
        std::uint32_t statement;
    };
    using ValueKey = std::tuple<std::uint32_t, std::uint32_t, std::string>;

    friend class AttributeEffects;

    std::optional<std::uint32_t> Find(std::string_view name, AttributeOwner owner,
                                      AttributeType type) const;
    std::optional<std::uint32_t> FindForValue(std::string_view name) const;
    Outcome Defer(std::string_view name, std::uint32_t statement);

    std::vector<Definition> definitions;
    std::vector<Value> values;
    std::set<ValueKey> valueKeys;
    std::vector<Default> defaults;  // the last default of each definition
    std::vector<std::pair<std::uint32_t, std::string>> undefined;
    std::vector<std::uint32_t> overwritten;
};

}  // namespace vexil::tool
