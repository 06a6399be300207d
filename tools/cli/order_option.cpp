// The words of the option and their constants.
// SPDX-License-Identifier: MIT
#include "cli/order_option.h"

#include <vexil64.h>

#include <map>

namespace vexil::tool {
namespace {

const std::map<std::string, std::uint32_t> Orders = {
    {"id", OrderByIdDescending}, {"name", OrderByNameAscending}, {"file", OrderAsStored}};

}  // namespace

void AddOrderOption(CLI::App& command, std::string& order) {
    command
        .add_option("--order", order,
                    "Order of the messages: by id, largest first; by name; or as in IN")
        ->check(CLI::IsMember(Orders))
        ->capture_default_str();
}

std::uint32_t OrderOf(const std::string& word) {
    return Orders.at(word);
}

}  // namespace vexil::tool
