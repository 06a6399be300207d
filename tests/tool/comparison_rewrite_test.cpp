// A written file differs from its input only in what the summary of the rewrite names.
//
//   VEXIL64_CORPUS  a folder of real files
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <string_view>

#include "account/rewrite_summary.h"
#include "comparison/comparison.h"
#include "database/database_file.h"
#include "support/files.h"
#include "tool/comparison_text.h"
#include "tool/experiment.h"

namespace vexil::test {
namespace {

using tool::Comparison;
using tool::MessageFacts;
using tool::Snapshot;

// What a written file may differ in for each cause.
const std::map<tool::Cause, std::set<std::string_view>>& EffectsOfCauses() {
    static const std::map<tool::Cause, std::set<std::string_view>> Effects = {
        {tool::Cause::AttributeNotWritten,
         {"cycleTime", "sendType", "startValue", "inactiveValue"}},
        {tool::Cause::AttributeTextFolded, {"longName"}},
        {tool::Cause::UnitFolded, {"unit"}},
        {tool::Cause::UnitWrittenInAscii, {"unit"}},
        {tool::Cause::InvalidUtf8, {"unit"}},
        {tool::Cause::MoreThanTenDigits, {"scaling", "range"}},
        {tool::Cause::PlaceholderNode, {"sender", "receivers"}},
        {tool::Cause::DescriptionsOfFloat, {"values"}},
        {tool::Cause::SameMessageId, {"comment", "values"}},
        {tool::Cause::CommentsDouble, {"comment", "values"}},
        {tool::Cause::NamesNumbered, {"name", "longName"}}};
    return Effects;
}

class CompareRewritten : public testing::Test {
  protected:
    // Compares a file with what the library writes of it.
    void Try(const std::string& file) {
        SCOPED_TRACE(file);
        const std::string text = ReadBytes(file);
        const tool::SourceText source(text);
        const Snapshot before = experiment.Read(text);
        const std::string written = folder.File("written.dbc");
        std::string_view reason;
        if (tool::WriteDatabase(written, OrderAsStored, reason) != tool::WriteResult::Done) {
            EXPECT_TRUE(before.messages.empty()) << reason;
            return;
        }
        const tool::Account account = MakeAccount(source, before);
        const tool::RewriteSummary summary =
            SummarizeRewrite(account, FindRewriteLosses(account, before), ReadBytes(written));
        const Snapshot after = experiment.Read(ReadBytes(written));
        ExpectCauses(summary, before, Compare(before, after),
                     TextOf(Compare(before, after), before, after));
        ++files;
    }

    void TryFolder(const std::filesystem::path& dbcFolder) {
        for (const auto& entry : std::filesystem::recursive_directory_iterator(dbcFolder)) {
            if (entry.path().extension() == ".dbc") {
                Try(entry.path().string());
            }
        }
        EXPECT_GT(files, 0U);
    }

    // Whether signals of the message share a name. A written file numbers them, and such a name can
    // be that of another signal.
    static bool HasEqualNames(const Snapshot& network, const MessageFacts& message) {
        std::set<std::string_view> names;
        for (std::uint32_t index = 0; index < message.signalCount; ++index) {
            names.insert(network.Text(network.signals[message.firstSignal + index].name));
        }
        return names.size() != message.signalCount;
    }

    static void ExpectCauses(const tool::RewriteSummary& summary, const Snapshot& before,
                             const Comparison& comparison, const std::string& text) {
        std::set<std::string_view> allowed;
        for (const auto* counts : {&summary.losses, &summary.changes}) {
            for (const tool::CauseCount& each : *counts) {
                const auto effects = EffectsOfCauses().find(each.cause);
                if (effects != EffectsOfCauses().end()) {
                    allowed.insert(effects->second.begin(), effects->second.end());
                }
            }
        }
        EXPECT_TRUE(comparison.aspects.IsEmpty()) << text;
        EXPECT_TRUE(comparison.movedMessages.empty()) << text;
        const auto expectAllowed = [&](tool::AspectSet aspects) {
            for (const tool::AspectRow& row : tool::AspectRows()) {
                EXPECT_TRUE(!aspects.Has(row.aspect) || allowed.count(row.key) != 0)
                    << "no cause for another " << row.key << ":\n"
                    << text;
            }
        };
        for (const tool::MessageDifference& message : comparison.messages) {
            ASSERT_TRUE(message.message.IsInBoth()) << text;
            if (HasEqualNames(before, before.messages[message.message.before])) {
                continue;
            }
            EXPECT_TRUE(message.movedSignals.empty()) << text;
            expectAllowed(message.aspects);
            for (const tool::SignalDifference& signal : message.signals) {
                EXPECT_TRUE(signal.signal.IsInBoth()) << text;
                expectAllowed(signal.aspects);
            }
        }
    }

    Experiment experiment;
    TempFolder folder;
    std::size_t files = 0;
};

TEST_F(CompareRewritten, DiffersInWhatTheSummaryNamesForTheSamples) {
    TryFolder(VEXIL64_SAMPLES);
}

TEST_F(CompareRewritten, DiffersInWhatTheSummaryNamesForTheFilesOfTheGoldenTests) {
    TryFolder(VEXIL64_GOLDEN);
}

TEST_F(CompareRewritten, DiffersInWhatTheSummaryNamesForRealFiles) {
    const char* const corpus = std::getenv("VEXIL64_CORPUS");
    if (corpus == nullptr || *corpus == '\0') {
        GTEST_SKIP() << "VEXIL64_CORPUS is not set: set it to a folder of .dbc files to run "
                        "the tests with real files.";
    }
    TryFolder(corpus);
}

}  // namespace
}  // namespace vexil::test
