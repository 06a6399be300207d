// What the templates of a report are filled with.
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "account/account.h"
#include "database/snapshot.h"
#include "view/html_template.h"

namespace vexil::tool {

// The values of one message: its record, layouts, signals and value tables.
TemplateValues MessageValues(const Snapshot& snapshot, const MessageFacts& message);

// Adds the counts by fate and, for each cause but those of statements that are kept, the places.
void AddAccountValues(const Account& account, const std::vector<Finding>& layoutFindings,
                      TemplateValues& values);

// Adds the network in numbers, and its senders.
void AddNetworkValues(const Snapshot& snapshot, TemplateValues& values);

}  // namespace vexil::tool
