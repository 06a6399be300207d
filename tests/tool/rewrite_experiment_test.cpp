// The summary of a rewrite is proved by experiment: where it says that nothing is lost and nothing
// is changed, the library reads the same records from the written file.
//
//   VEXIL64_EXPERIMENTS  how many random files to try (default: 1000)
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "account/rewrite_summary.h"
#include "database/database_file.h"
#include "support/files.h"
#include "tool/experiment.h"
#include "tool/random_network.h"

namespace vexil::test {
namespace {

class RewriteExperiment : public testing::Test {
  protected:
    // Returns whether nothing is lost or changed, as the summary says.
    bool Try(const std::string& text) {
        const tool::SourceText source(text);
        const tool::Snapshot snapshot = experiment.Read(text);
        const std::string file = folder.File("written.dbc");
        std::string_view reason;
        if (tool::WriteDatabase(file, OrderAsStored, reason) != tool::WriteResult::Done) {
            return false;
        }
        const std::string written = ReadBytes(file);
        const tool::Account account = MakeAccount(source, snapshot);
        const bool isSame =
            SummarizeRewrite(account, FindRewriteLosses(account, snapshot), written).IsEmpty();
        if (isSame) {
            EXPECT_EQ(experiment.Records(written), experiment.Records(text)) << text;
        }
        return isSame;
    }

    static unsigned Experiments() {
        constexpr unsigned Usual = 1000;
        const char* const asked = std::getenv("VEXIL64_EXPERIMENTS");
        return asked == nullptr ? Usual : static_cast<unsigned>(std::strtoul(asked, nullptr, 10));
    }

    TempFolder folder;
    Experiment experiment;
};

// A file that the library wrote has little that the next write could lose, so each is written
// twice.
TEST_F(RewriteExperiment, HoldsForRandomNetworks) {
    const std::string file = folder.File("first.dbc");
    unsigned same = 0;
    for (unsigned seed = 0; seed < Experiments() && !HasFailure(); ++seed) {
        SCOPED_TRACE(seed);
        const std::string text = RandomNetwork(seed);
        same += Try(text) ? 1 : 0;
        experiment.Read(text);
        std::string_view reason;
        if (tool::WriteDatabase(file, OrderAsStored, reason) == tool::WriteResult::Done) {
            same += Try(ReadBytes(file)) ? 1 : 0;
        }
    }
    EXPECT_GT(same, Experiments() / 10);
}

TEST_F(RewriteExperiment, HoldsForTheFilesOfTheGoldenTests) {
    for (const auto& entry : std::filesystem::recursive_directory_iterator(VEXIL64_GOLDEN)) {
        if (entry.path().extension() == ".dbc") {
            SCOPED_TRACE(entry.path().string());
            Try(ReadBytes(entry.path().string()));
        }
    }
}

}  // namespace
}  // namespace vexil::test
