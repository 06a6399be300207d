// Calls a target with files, one after the other, without a fuzzer, so any compiler can build it.
//   replay FILE_OR_FOLDER...    of a folder, all files below it
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

#include "support/files.h"
#include "target.h"

namespace {

std::vector<std::filesystem::path> FilesBelow(const std::filesystem::path& path) {
    if (!std::filesystem::is_directory(path)) {
        return {path};
    }
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(path)) {
        if (entry.is_regular_file()) {
            files.push_back(entry.path());
        }
    }
    std::sort(files.begin(), files.end());
    return files;
}

}  // namespace

int main(int argc, char** argv) {
    std::size_t count = 0;
    for (int at = 1; at < argc; ++at) {
        for (const std::filesystem::path& file : FilesBelow(argv[at])) {
            std::cout << file.string() << std::endl;  // the last one named is the one that failed
            const std::string bytes = vexil::test::ReadBytes(file.string());
            // A copy of the exact size, so that a sanitizer detects an access after its end.
            const std::vector<std::uint8_t> input(bytes.begin(), bytes.end());
            LLVMFuzzerTestOneInput(input.data(), input.size());
            ++count;
        }
    }
    std::cout << count << " files\n";
    return count == 0 ? 1 : 0;
}
