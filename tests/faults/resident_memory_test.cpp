// Tests of the memory that the process holds: a clear returns the memory of a read to the system.
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <fstream>
#include <string>

#include "faults/loaded_library.h"
#include "support/files.h"

namespace vexil::faults {
namespace {

// The memory that the system has given to the process, in bytes: a sum over its regions. The figure
// in statm is not exact on machines of many processors.
std::size_t ResidentBytes() {
    std::ifstream statistics("/proc/self/smaps_rollup");
    std::size_t kibibytes = 0;
    for (std::string word; statistics >> word;) {
        if (word == "Rss:") {
            statistics >> kibibytes;
        }
    }
    EXPECT_GT(kibibytes, 0U);
    return kibibytes * 1024;
}

class ResidentMemoryTest : public testing::Test {
  protected:
    static constexpr std::size_t FileSize = 4'200'000;
    static constexpr std::size_t Tolerance = std::size_t{1} << 20U;

    // Makes a file of the head and then the line over and over. Line by line, since a large
    // block of the test's own would change how the allocator treats others.
    void MakeFile(std::string_view head, std::string_view line) const {
        std::ofstream file(path, std::ios_base::binary);
        file << head;
        for (std::size_t size = 0; size < FileSize; size += line.size()) {
            file << line;
        }
    }

    // Reads the file several times with clears, and several times without.
    void ExpectAllMemoryBack() const {
        const LoadedLibrary library;
        const std::size_t before = ResidentBytes();
        for (int round = 0; round < 3; ++round) {
            for (int read = 0; read <= round; ++read) {
                EXPECT_EQ(library.Read(path), StateClosed);
            }
            library.ClearData();
            EXPECT_LT(ResidentBytes(), before + Tolerance) << "round " << round;
        }
    }

    test::TempFolder folder;
    std::string path = folder.File("input.dbc");
};

TEST_F(ResidentMemoryTest, ComesBackAfterRefusedStatements) {
    MakeFile("", "BO_\n");
    ExpectAllMemoryBack();
}

TEST_F(ResidentMemoryTest, ComesBackAfterMessages) {
    MakeFile("", "BO_ 1 A: 8 N\n");
    ExpectAllMemoryBack();
}

TEST_F(ResidentMemoryTest, ComesBackAfterSignalsAndTheirTexts) {
    MakeFile("BO_ 1 A: 8 N\n SG_ S : 0|8@1+ (1,0) [0|0] \"\" N\n",
             "BO_ 2 B: 8 N\n SG_ Signal : 0|8@1+ (1,0) [0|0] \"unit\" N\n"
             "CM_ SG_ 1 S \"A comment of the signal\";\nVAL_ 1 S 1 \"A description\" ;\n"
             "BA_ \"GenSigStartValue\" SG_ 1 S 1;\n");
    ExpectAllMemoryBack();
}

}  // namespace
}  // namespace vexil::faults
