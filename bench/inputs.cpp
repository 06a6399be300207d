// The files that both programs measure with.
// SPDX-License-Identifier: MIT
#include "inputs.h"

#include <cstdlib>
#include <filesystem>

#include "growth/shapes.h"
#include "vexil64.h"

namespace vexil::bench {

std::vector<NamedDatabase> PlainDatabases() {
    std::vector<NamedDatabase> databases = {
        {"wide/1MB", [] { return WideDatabase(MiB); }},
        {"wide/10MB", [] { return WideDatabase(10 * MiB); }},
        {"tall", [] { return TallDatabase(MaxSignalsPerMessage); }},
        {"names", [] { return NamesDatabase(MaxSignalsPerMessage); }},
    };
    if (std::getenv("VEXIL64_BENCH_LARGE") != nullptr) {
        databases.push_back({"wide/100MB", [] { return WideDatabase(100 * MiB); }});
    }
    return databases;
}

std::vector<NamedDatabase> HostileDatabases(std::size_t size) {
    std::vector<NamedDatabase> databases;
    for (const growth::Shape& shape : growth::AllShapes()) {
        databases.push_back({"hostile/" + shape.name, [shape, size] {
                                 growth::Input input = shape.make(size);
                                 return Database{std::move(input.text), input.messages,
                                                 input.signals, input.enums, input.errors};
                             }});
    }
    return databases;
}

std::string LargestRealFile() {
    const char* folder = std::getenv("VEXIL64_CORPUS");
    std::string largest;
    if (folder != nullptr) {
        std::uintmax_t size = 0;
        for (const auto& entry : std::filesystem::directory_iterator(folder)) {
            if (entry.path().extension() == ".dbc" && entry.file_size() > size) {
                size = entry.file_size();
                largest = entry.path().string();
            }
        }
    }
    return largest;
}

}  // namespace vexil::bench
