// The words of the language of schemas.
// SPDX-License-Identifier: MIT
#include "tool/json_schema.h"

#include <algorithm>
#include <regex>
#include <set>

namespace vexil::test {
namespace {

using nlohmann::json;

class Validator {
  public:
    explicit Validator(const json& schema) : root(schema) {}

    void Check(const json& schema, const json& value, const std::string& place) {
        if (schema.contains("$ref")) {
            const std::string pointer = schema["$ref"].get<std::string>().substr(1);
            Check(root.at(json::json_pointer(pointer)), value, place);
            return;
        }
        for (const auto& [word, rule] : schema.items()) {
            CheckWord(word, rule, schema, value, place);
        }
    }

    std::vector<std::string> faults;

  private:
    void Fault(const std::string& place, const std::string& what) {
        faults.push_back(place + ": " + what);
    }

    static bool HasType(const json& value, const std::string& type) {
        return (type == "object" && value.is_object()) || (type == "array" && value.is_array()) ||
               (type == "string" && value.is_string()) ||
               (type == "integer" && value.is_number_integer()) ||
               (type == "number" && value.is_number());
    }

    // In characters.
    static std::size_t Length(const std::string& text) {
        return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char ch) {
            return (static_cast<unsigned char>(ch) & 0xC0U) != 0x80U;
        }));
    }

    bool IsValid(const json& schema, const json& value) {
        Validator other(root);
        other.Check(schema, value, "");
        return other.faults.empty();
    }

    void CheckWord(const std::string& word, const json& rule, const json& schema, const json& value,
                   const std::string& place) {
        static const std::set<std::string> Silent = {"$schema", "title", "description",
                                                     "definitions", "properties"};
        if (word == "type") {
            if (!HasType(value, rule)) {
                Fault(place, "is no " + rule.get<std::string>());
            }
        } else if (word == "enum") {
            if (std::find(rule.begin(), rule.end(), value) == rule.end()) {
                Fault(place, "is none of " + rule.dump());
            }
        } else if (word == "minimum") {
            if (value.is_number() && value < rule) {
                Fault(place, "is too small");
            }
        } else if (word == "maximum") {
            if (value.is_number() && value > rule) {
                Fault(place, "is too large");
            }
        } else if (word == "maxLength") {
            if (value.is_string() && Length(value.get<std::string>()) > rule.get<std::size_t>()) {
                Fault(place, "is too long");
            }
        } else if (word == "minLength") {
            if (value.is_string() && value.get<std::string>().size() < rule.get<std::size_t>()) {
                Fault(place, "is too short");
            }
        } else if (word == "pattern") {
            if (value.is_string() &&
                !std::regex_search(value.get<std::string>(), std::regex(rule.get<std::string>()))) {
                Fault(place, "does not match");
            }
        } else if (word == "required") {
            for (const json& name : rule) {
                if (!value.contains(name.get<std::string>())) {
                    Fault(place, "has no " + name.dump());
                }
            }
        } else if (word == "items") {
            for (std::size_t index = 0; value.is_array() && index < value.size(); ++index) {
                Check(rule, value[index], place + "/" + std::to_string(index));
            }
        } else if (word == "oneOf") {
            const auto count = std::count_if(
                rule.begin(), rule.end(), [&](const json& each) { return IsValid(each, value); });
            if (count != 1) {
                Fault(place, "is of " + std::to_string(count) + " forms");
                for (const json& each : rule) {
                    Check(each, value, place);
                }
            }
        } else if (word == "additionalProperties" || word == "propertyNames") {
            CheckProperties(schema, value, place);
        } else if (Silent.count(word) == 0) {
            Fault(place, "the schema has the unknown word " + word);
        }
    }

    void CheckProperties(const json& schema, const json& value, const std::string& place) {
        const json known = schema.value("properties", json::object());
        for (const auto& [name, each] : value.items()) {
            const std::string inside = place + "/" + name;
            if (schema.contains("propertyNames")) {
                Check(schema["propertyNames"], json(name), inside);
            }
            if (known.contains(name)) {
                Check(known[name], each, inside);
            } else if (schema["additionalProperties"].is_object()) {
                Check(schema["additionalProperties"], each, inside);
            } else {
                Fault(inside, "is not in the schema");
            }
        }
    }

    const json& root;
};

}  // namespace

std::vector<std::string> SchemaFaults(const json& schema, const json& document) {
    Validator validator(schema);
    validator.Check(schema, document, "");
    return validator.faults;
}

}  // namespace vexil::test
