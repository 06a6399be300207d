// The DBC files of a folder.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <system_error>
#include <vector>

namespace vexil::tool {

bool IsFolder(const std::string& path);

// Appends the files below a folder whose names end in .dbc, in upper or lower case, in the order of
// their paths. Links to folders are not followed.
std::error_code ListDbcFiles(const std::string& folder, std::vector<std::string>& files);

}  // namespace vexil::tool
