// What came of a JSON document, as text.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "document/remarks.h"

namespace vexil::tool {

// A line that counts the records in the database, then for each field the values that are other
// ones than in the document, and the objects with texts that may be cut.
//   name  of the document
std::string DocumentReport(std::string_view name, const DocumentResult& result);

// Such as "messages[0].id: is missing".
std::string RemarkLine(const Remark& remark);

}  // namespace vexil::tool
