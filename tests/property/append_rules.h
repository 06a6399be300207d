// What a record becomes in the model when a host appends it.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <map>
#include <string>

#include "property/model.h"
#include "vexil64.h"

namespace vexil::test {

// Each takes the record into an empty or a former part of a model. False, with nothing of use in
// that part but with value descriptions as they were, when a text of the record is not valid UTF-8.
bool AppendedMessage(const CanMessageRecord& record, ModelMessage& message);
bool AppendedSignal(const CanSignalRecord& record, ModelSignal& signal);
bool AppendedDescription(const CanEnumRecord& record, std::map<std::int32_t, std::string>& enums);

}  // namespace vexil::test
