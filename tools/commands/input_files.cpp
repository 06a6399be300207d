// Folders become their files.
// SPDX-License-Identifier: MIT
#include "commands/input_files.h"

#include "file/folder.h"

namespace vexil::tool {

std::vector<std::string> InputFiles(const std::vector<std::string>& paths,
                                    const FolderFailure& fail) {
    std::vector<std::string> files;
    for (const std::string& path : paths) {
        if (!IsFolder(path)) {
            files.push_back(path);
            continue;
        }
        std::vector<std::string> found;
        const std::error_code error = ListDbcFiles(path, found);
        if (error || found.empty()) {
            fail(path, error ? error.message() : "the folder has no .dbc file");
        }
        files.insert(files.end(), found.begin(), found.end());
    }
    return files;
}

}  // namespace vexil::tool
