// Reads a JSON document into the database.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string_view>

#include "document/remarks.h"

namespace vexil::tool {

// Empties the database and builds it anew from the document, without the records that are refused.
//   mostChanges  how many remarks on changed values of one field are held
DocumentResult ReadNetwork(std::string_view document, std::size_t mostChanges);

}  // namespace vexil::tool
