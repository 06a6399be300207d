// The files that a command line names.
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace vexil::tool {

// Called with a folder and the reason why its files cannot be listed.
using FolderFailure = std::function<void(const std::string& folder, const std::string& reason)>;

// Returns the paths, with the .dbc files of each folder in the place of the folder.
std::vector<std::string> InputFiles(const std::vector<std::string>& paths,
                                    const FolderFailure& fail);

}  // namespace vexil::tool
