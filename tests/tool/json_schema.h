// Holds a JSON document to a schema, as far as the schemas in docs use the language of schemas. A
// word of the language that is not known here is a fault.
// SPDX-License-Identifier: MIT
#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace vexil::test {

// What is wrong with the document, each with its place.
std::vector<std::string> SchemaFaults(const nlohmann::json& schema, const nlohmann::json& document);

}  // namespace vexil::test
