// The account is proved by experiment: a statement that it calls dropped or ignored can be taken
// out of the file, or replaced by an empty one, and every record stays as it was; a statement that
// it calls kept cannot. The exceptions are listed with their reasons in experiment.cpp.
//
//   VEXIL64_EXPERIMENTS  how many random files to try (default: 1000)
//   VEXIL64_CORPUS       a folder of real files
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <numeric>
#include <string>
#include <vector>

#include "support/random_text.h"
#include "tool/experiment.h"
#include "tool/random_network.h"

namespace vexil::test {
namespace {

// The sums that hold for every account of every text.
void ExpectWhole(const tool::Account& account, const tool::Snapshot& snapshot) {
    const auto counts = account.CountsByFate();
    EXPECT_EQ(std::accumulate(counts.begin(), counts.end(), std::size_t{0}),
              account.statements.size());
    EXPECT_EQ(account.messageStatements.size(), snapshot.messages.size());
    EXPECT_EQ(account.signalStatements.size(), snapshot.signals.size());
    const std::size_t refused = counts[static_cast<std::size_t>(tool::Fate::Refused)];
    EXPECT_LE(refused, snapshot.errors.size());
}

// Every character of the text that is not white space is in one statement.
void ExpectEveryCharacterOnce(const tool::SourceText& source, const tool::Account& account) {
    std::size_t at = source.ByteOrderMarkSize();
    for (const tool::AccountedStatement& statement : account.statements) {
        const auto begin = static_cast<std::size_t>(statement.text.data() - source.Text().data());
        ASSERT_GE(begin, at);
        EXPECT_EQ(source.Text().substr(at, begin - at).find_first_not_of(" \f\n\r\t\v"),
                  std::string_view::npos);
        at = begin + statement.text.size();
    }
    EXPECT_EQ(source.Text().substr(at).find_first_not_of(" \f\n\r\t\v"), std::string_view::npos);
}

std::string Tell(const std::vector<Contradiction>& contradictions) {
    std::string told;
    for (const Contradiction& each : contradictions) {
        if (each.exception.empty()) {
            told += "line " + std::to_string(each.line) + ", " + std::string(NameOf(each.cause)) +
                    ": " + each.what + ": " + each.text + "\n";
        }
    }
    return told;
}

class AccountExperiment : public testing::Test {
  protected:
    void Try(const std::string& text, std::size_t step) {
        const tool::SourceText source(text);
        const tool::Snapshot snapshot = experiment.Read(text);
        const tool::Account account = MakeAccount(source, snapshot);
        ExpectWhole(account, snapshot);
        ExpectEveryCharacterOnce(source, account);
        EXPECT_EQ(Tell(FindContradictions(experiment, text, step)), "") << text.substr(0, 4000);
    }

    // Each file below a folder, with so many of its statements.
    void TryFolder(const std::filesystem::path& folder, std::size_t statements) {
        std::vector<std::filesystem::path> files;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
            if (entry.path().extension() == ".dbc") {
                files.push_back(entry.path());
            }
        }
        std::sort(files.begin(), files.end());
        ASSERT_FALSE(files.empty());
        for (const std::filesystem::path& file : files) {
            SCOPED_TRACE(file.string());
            const std::string text = ReadBytes(file.string());
            const auto lines = static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
            Try(text, 1 + lines / statements);
        }
    }

    static unsigned Experiments() {
        constexpr unsigned Usual = 1000;
        const char* const asked = std::getenv("VEXIL64_EXPERIMENTS");
        return asked == nullptr ? Usual : static_cast<unsigned>(std::strtoul(asked, nullptr, 10));
    }

    Experiment experiment;
};

constexpr std::size_t EachStatement = 1000000;

TEST_F(AccountExperiment, HoldsForTheSamples) {
    TryFolder(VEXIL64_SAMPLES, EachStatement);
}

TEST_F(AccountExperiment, HoldsForTheFilesOfTheGoldenTests) {
    TryFolder(VEXIL64_GOLDEN, EachStatement);
}

TEST_F(AccountExperiment, HoldsForFaultyNetworks) {
    for (unsigned seed = 0; seed < Experiments(); ++seed) {
        SCOPED_TRACE(seed);
        Try(RandomNetwork(seed), 1);
    }
}

TEST_F(AccountExperiment, HoldsForAnyText) {
    constexpr std::size_t MostPieces = 60;
    for (unsigned seed = 0; seed < Experiments(); ++seed) {
        SCOPED_TRACE(seed);
        Try(RandomText(seed).File(MostPieces), 1);
    }
}

TEST_F(AccountExperiment, HoldsForRealFiles) {
    const char* const folder = std::getenv("VEXIL64_CORPUS");
    if (folder == nullptr || *folder == '\0') {
        GTEST_SKIP() << "VEXIL64_CORPUS is not set: set it to a folder of .dbc files to run "
                        "the tests with real files.";
    }
    constexpr std::size_t Sample = 60;
    TryFolder(folder, Sample);
}

}  // namespace
}  // namespace vexil::test
