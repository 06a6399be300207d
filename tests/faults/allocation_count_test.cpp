// Tests of the number of allocations that a read makes. docs/architecture.md states it, and this
// test compares the two.
// SPDX-License-Identifier: MIT
#include <cstddef>
#include <fstream>
#include <limits>
#include <string>

#include "api/api_test.h"
#include "faults/allocations.h"

namespace vexil::faults {
namespace {

using test::Success;

class AllocationCountTest : public test::ApiTest {
  protected:
    // Makes an input of 10 MB: messages of eight signals with every text that a signal may have.
    void MakeTenMegabytes() const {
        constexpr std::streamoff Size = 10'000'000;
        std::ofstream file(path, std::ios_base::binary);
        for (int id = 0; file.tellp() < Size; ++id) {
            const std::string message = std::to_string(id);
            file << "BO_ " << message << " Message" << message << ": 8 Node\n";
            for (int bit = 0; bit < 64; bit += 8) {
                const std::string name = "Signal" + std::to_string(bit);
                const std::string owner = message + ' ' + name;
                file << " SG_ " << name << " : " << bit
                     << "|8@1+ (0.5,-40) [-40|87.5] \"km/h\" Node\n"
                     << "CM_ SG_ " << owner << " \"What the signal " << owner << " is for\";\n"
                     << "VAL_ " << owner << " 0 \"Off\" 1 \"On\" 255 \"Invalid\" ;\n"
                     << "BA_ \"GenSigStartValue\" SG_ " << owner << " 80;\n";
            }
        }
    }

    // How many allocations a read of the input makes.
    std::size_t AllocationsOfRead() const {
        const FailingAllocations counted(std::numeric_limits<std::size_t>::max(), Exhaustion::Once);
        EXPECT_EQ(Read(path), Success);
        return counted.Count();
    }

    // The number that the document states between these words, or an empty text.
    static std::string Stated(const std::string& before, const std::string& after) {
        const std::string document = test::ReadBytes(VEXIL64_ARCHITECTURE_DOCUMENT);
        const std::size_t start = document.find(before);
        const std::size_t end = document.find(after, start);
        EXPECT_NE(end, std::string::npos);
        return document.substr(start + before.size(), end - start - before.size());
    }
};

TEST_F(AllocationCountTest, ReadingTenMegabytesTakesTheNumberThatTheDocumentStates) {
#ifndef __GLIBCXX__
    GTEST_SKIP() << "other standard libraries let a text grow in other steps";
#endif
    MakeTenMegabytes();
    EXPECT_EQ(std::to_string(AllocationsOfRead()), Stated("reading 10 MB takes ", " allocations"));
    VexilClearData();
}

}  // namespace
}  // namespace vexil::faults
