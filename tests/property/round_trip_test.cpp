// Random databases, written and read back: all that is not an exception of round_trip_rules.h comes
// back as it was.
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <filesystem>

#include "property/random_database.h"
#include "property/round_trip_rules.h"
#include "support/files.h"

namespace vexil::test {
namespace {

constexpr int Rounds = 300;

class RoundTrip : public testing::Test {
  protected:
    RoundTrip() { Clear({}); }
    ~RoundTrip() override { Clear({}); }

    static void Clear(const DatabaseInfo& info) {
        VexilClearData();
        VexilSetDatabaseInfo(&info, sizeof info);
    }

    std::string Write(std::uint32_t order) const {
        // Truncating an existing file waits for the disk on some systems.
        std::filesystem::remove(path);
        std::uint32_t code = 99;
        EXPECT_EQ(VexilWriteDbcFile(path.c_str(), BufferSize(), order, &code), 1);
        EXPECT_EQ(code, StateClosed);
        return ReadBytes(path);
    }

    void Read() const {
        std::uint32_t code = 99;
        EXPECT_EQ(VexilReadDbcFile(path.c_str(), BufferSize(), &code), 1);
        EXPECT_EQ(code, StateClosed);
    }

    std::uint32_t BufferSize() const { return static_cast<std::uint32_t>(path.size() + 1); }

    static void ExpectHeld(const Model& model) {
        const DatabaseRecords held = FetchDatabase();
        ASSERT_EQ(RecordText(held), RecordText(RecordsOf(model)));
        std::vector<std::uint32_t> codes;
        for (const ParseError& error : held.errors) {
            codes.push_back(error.code);
        }
        ASSERT_EQ(codes, model.errorCodes);
    }

    // Calls test(random) on so many empty databases.
    template <typename Test>
    void Repeat(Test test) {
        for (int round = 0; round < Rounds && !HasFatalFailure(); ++round) {
            const std::uint32_t seed = Seed() + static_cast<std::uint32_t>(round);
            SCOPED_TRACE("VEXIL64_TEST_SEED=" + std::to_string(seed));
            Clear({});
            Random random(seed);
            test(random);
        }
    }

    TempFolder folder;
    std::string path = folder.File("round_trip.dbc");
};

TEST_F(RoundTrip, FetchesTheAppendedRecords) {
    Repeat([](Random& random) { ExpectHeld(AppendRandomDatabase(random)); });
}

TEST_F(RoundTrip, ChangesNothingButNamesOnWriting) {
    Repeat([this](Random& random) {
        Model model = AppendRandomDatabase(random);
        Write(random.Below(4));
        SuffixedNames(model);
        ExpectHeld(model);
    });
}

TEST_F(RoundTrip, ReadsBackTheRecordsThatTheRulesPredict) {
    int unsuffixed = 0;
    Repeat([&](Random& random) {
        Model model = AppendRandomDatabase(random);
        ASSERT_FALSE(HoldsStrayKeyword(model));
        // What was read is written and read once more: files, too, come back.
        for (int generation = 0; generation < 3; ++generation) {
            // Owners that share an id or a name may have joined texts of several lines.
            if (model.messages.empty() || HoldsStrayKeyword(model)) {
                break;
            }
            const std::uint32_t order = random.Below(4);
            const DatabaseInfo before = {random.Below(4), 7};
            Write(order);
            unsuffixed += SuffixedNames(model) ? 0 : 1;
            model = ReadBack(model, order, before);
            Clear(before);
            Read();
            ASSERT_NO_FATAL_FAILURE(ExpectHeld(model)) << "generation " << generation;
        }
    });
    EXPECT_GT(unsuffixed, Rounds / 4);
    EXPECT_LT(unsuffixed, 3 * Rounds);
}

TEST_F(RoundTrip, WritesTheSameBytesAgain) {
    int changed = 0;
    Repeat([&](Random& random) {
        Model model = AppendRandomDatabase(random);
        const std::uint32_t order = random.Below(4);
        std::string former = Write(order);
        SuffixedNames(model);
        // Only where groups of suffixed names merge does another write renumber names.
        for (int again = 0; again < 2; ++again) {
            const bool isChanged = SuffixedNames(model);
            const std::string bytes = Write(order);
            ASSERT_EQ(bytes != former, isChanged);
            changed += isChanged ? 1 : 0;
            former = bytes;
        }
    });
    EXPECT_GT(changed, 0);
    EXPECT_LT(changed, Rounds / 4);
}

}  // namespace
}  // namespace vexil::test
