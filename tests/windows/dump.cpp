// Prints all that the library reads from a file, so that two builds can be compared.
//   vexil64_dump FILE FOLDER    makes in FOLDER: records.txt, the result, the records and the
//                               errors; written0.dbc to written2.dbc, the file in each order
// SPDX-License-Identifier: MIT
#include <cstdint>
#include <fstream>
#include <string>

#include "support/record_dump.h"
#include "vexil64.h"

namespace {

std::uint32_t BufferSize(const std::string& path) {
    return static_cast<std::uint32_t>(path.size() + 1);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        return 2;
    }
    const std::string file = argv[1];
    const std::string folder = argv[2];
    std::ofstream records(folder + "/records.txt", std::ios_base::binary);

    std::uint32_t code = 99;
    const int result = VexilReadDbcFile(file.c_str(), BufferSize(file), &code);
    records << "read: " << result << " with code " << code << '\n';
    const vexil::test::DatabaseRecords database = vexil::test::FetchDatabase();
    records << vexil::test::RecordText(database) << vexil::test::ErrorText(database);

    for (const std::uint32_t order : {OrderByIdDescending, OrderByNameAscending, OrderAsStored}) {
        const std::string written = folder + "/written" + std::to_string(order) + ".dbc";
        const int success = VexilWriteDbcFile(written.c_str(), BufferSize(written), order, &code);
        records << "written: " << success << " with code " << code << '\n';
    }
    return records.flush() ? 0 : 1;
}
