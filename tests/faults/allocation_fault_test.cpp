// Out-of-memory tests: each allocation of a call fails in its turn. std::bad_alloc leaves the
// call, nothing leaks, and after a clear everything works as before.
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <functional>
#include <locale>
#include <memory>
#include <new>
#include <optional>

#include "api/api_test.h"
#include "faults/allocations.h"
#include "faults/every_statement.h"
#include "faults/resources.h"
#include "support/record_dump.h"

namespace vexil::faults {
namespace {

using test::Outcome;
using test::Success;

// A call to the library. It must not allocate itself.
using Call = std::function<Outcome()>;
using Step = std::function<void()>;

class CommaAndGroups : public std::numpunct<char> {
  protected:
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

class AllocationFaultTest : public test::ApiTest {
  protected:
    AllocationFaultTest() { UseInput(EveryStatement()); }
    ~AllocationFaultTest() override { VexilClearData(); }

    static std::string Dump() {
        const test::DatabaseRecords records = test::FetchDatabase();
        return test::RecordText(records) + test::ErrorText(records);
    }

    // Sets the file that a database is read from, and stores the results of reading and writing it.
    void UseInput(const std::string& text) {
        test::WriteBytes(input, text);
        Refill();
        expectedRecords = Dump();
        EXPECT_EQ(Write(output), Success);
        expectedFile = test::ReadBytes(output);
        VexilClearData();
    }

    // A clear and a read; the info comes from the file or is that of a new database.
    void Refill() {
        VexilClearData();
        SetInfo({0, 0});
        EXPECT_EQ(Read(input), Success);
    }

    // Expects that the library reads and writes as before, and leaves it empty.
    void ExpectWorksAsBefore() {
        std::locale::global(std::locale::classic());
        Refill();
        EXPECT_TRUE(Dump() == expectedRecords) << "other records than at first";
        EXPECT_EQ(Write(output), Success);
        EXPECT_TRUE(test::ReadBytes(output) == expectedFile) << "another file than at first";
        VexilClearData();
    }

    // Lets each allocation of a call fail, until one call runs to its end without a failure.
    //   prepare  brings the database into the state in which the call is made.
    //   call     is to have the same outcome as without a failure when it does without the memory.
    //   result   describes the result of the call.
    // Returns how many allocations the call makes.
    std::size_t Sweep(Exhaustion exhaustion, const Step& prepare, const Call& call,
                      const std::function<std::string()>& result) {
        ExpectWorksAsBefore();
        prepare();
        const Outcome expected = call();
        const std::string expectedResult = result();
        ExpectWorksAsBefore();
        const std::ptrdiff_t descriptors = OpenDescriptors();

        const bool failedBefore = HasFailure();
        for (std::size_t n = 1;; ++n) {
            SCOPED_TRACE("allocation " + std::to_string(n));
            const long blocks = LiveBlocks();
            prepare();
            std::optional<Outcome> outcome;
            std::size_t failures = 0;
            std::size_t thrown = 0;
            {
                const FailingAllocations failing(n, exhaustion);
                try {
                    outcome = call();
                } catch (const std::bad_alloc&) {
                } catch (...) {
                    ADD_FAILURE() << "left by another exception";
                }
                thrown = failing.Thrown();
                failures = thrown + failing.Refused();
            }
            EXPECT_EQ(OpenDescriptors(), descriptors);
            EXPECT_EQ(outcome.has_value(), thrown == 0);
            if (outcome) {
                EXPECT_EQ(*outcome, expected);
                EXPECT_TRUE(result() == expectedResult) << "another result than without a failure";
            }
            ExpectWorksAsBefore();
            EXPECT_EQ(LiveBlocks(), blocks);
            if (failures == 0 || (HasFailure() && !failedBefore)) {
                return n - 1;
            }
        }
    }

    std::size_t SweepRead(Exhaustion exhaustion, const Step& prepare) {
        return Sweep(
            exhaustion, prepare, [this] { return Read(input); }, Dump);
    }

    std::size_t SweepWrite(Exhaustion exhaustion, const Step& prepare, std::uint32_t order) {
        return Sweep(
            exhaustion, prepare, [this, order] { return Write(output, order); },
            [this] { return test::ReadBytes(output) + Dump(); });
    }

    static void Clear() {
        VexilClearData();
        SetInfo({0, 0});
    }

    std::string input = folder.File("input.dbc");
    std::string output = folder.File("output.dbc");
    std::string expectedRecords;
    std::string expectedFile;
};

constexpr Exhaustion BothKinds[] = {Exhaustion::Once, Exhaustion::FromThere};

TEST_F(AllocationFaultTest, ReadThrowsBadAllocAndLeaksNothing) {
    for (const Exhaustion exhaustion : BothKinds) {
        EXPECT_GT(SweepRead(exhaustion, Clear), 30U);
    }
}

TEST_F(AllocationFaultTest, WriteInEachOrderThrowsBadAllocAndLeaksNothing) {
    for (const std::uint32_t order : {OrderByIdDescending, OrderByNameAscending, OrderAsStored}) {
        EXPECT_GT(SweepWrite(
                      Exhaustion::Once, [this] { Refill(); }, order),
                  20U);
    }
    EXPECT_GT(SweepWrite(
                  Exhaustion::FromThere, [this] { Refill(); }, OrderAsStored),
              20U);
}

// Under another global locale the numbers are formatted by a stream, which must not swallow the
// exception.
TEST_F(AllocationFaultTest, WriteUnderAnotherLocaleThrowsBadAllocAndLeaksNothing) {
    UseInput(
        "BO_ 1 A: 8 N\n"
        " SG_ S : 0|8@1+ (0.000123456789,-1234567.125) [-123456.789|1234567890] \"\" N\n");
    const Step prepare = [this] {
        Refill();
        std::locale::global(std::locale(std::locale::classic(), new CommaAndGroups));
    };
    for (const Exhaustion exhaustion : BothKinds) {
        EXPECT_GT(SweepWrite(exhaustion, prepare, OrderAsStored), 10U);
    }
}

// What a read has stored until then can be fetched, added to and written.
TEST_F(AllocationFaultTest, DatabaseIsUsableAfterAFailedRead) {
    std::size_t thrown = 1;
    for (std::size_t n = 1; thrown != 0; ++n) {
        SCOPED_TRACE("allocation " + std::to_string(n));
        Clear();
        {
            const FailingAllocations failing(n, Exhaustion::Once);
            try {
                Read(input);
            } catch (const std::bad_alloc&) {
            }
            thrown = failing.Thrown();
        }
        Dump();
        const auto count = static_cast<std::uint32_t>(VexilGetNumCanMessages());
        AppendMessage({.id = 7, .longName = "M"});
        AppendSignal(count, {.longName = "S"});
        AppendEnum(count, 0, {1, "On"});
        EXPECT_EQ(Write(output), Success);
        EXPECT_EQ(Read(output), Success);
        EXPECT_EQ(VexilGetNumCanMessages(), count + 1);
    }
    ExpectWorksAsBefore();
}

// Memory runs out at each step of an append, since the room in the arena shrinks.
TEST_F(AllocationFaultTest, FailedAppendChangesNothing) {
    const CanMessageRecord message = test::RecordOf(
        test::MessageFields{.id = 7,
                            .longName = "A message with a name for display that is long",
                            .transmitter = "Transmitter_Of_The_Message",
                            .comment = "A comment with a \"quote\" that has to be escaped"});
    const CanSignalRecord signal = test::RecordOf(
        test::SignalFields{.longName = "A signal with a name for display that is long",
                           .unit = "units in \xc2\xb0 and more",
                           .receiverList = "The_First_Of_The_Receivers,The_Second_Receiver,C",
                           .comment = "A comment with a \"quote\" that has to be escaped"});
    const CanEnumRecord description =
        test::RecordOf(test::EnumFields{-8, "A description that is long enough"});
    const std::function<int()> appends[] = {
        [&] { return VexilAppendCanMessage(&message); },
        [&] { return VexilAppendCanSignalToCanMessage(0, &signal); },
        [&] { return VexilAppendEnumToCanSignal(0, 0, &description); }};
    const auto fill = [](std::size_t bytes) {
        Clear();
        // A list of so many signals has to grow for the next one.
        AppendMessageOf(1, {"A", "B", "C", "D", "E", "F", "G", "H"});
        for (std::int32_t value = 0; bytes != 0; ++value) {
            const std::size_t size = std::min(bytes, std::size_t{200});
            AppendEnum(0, 0, {value, std::string(size, 'f')});
            bytes -= size;
        }
    };
    // How many bytes of descriptions there is room for before the database needs more memory.
    std::size_t room = 1000;
    fill(room);
    for (const long before = LiveBlocks(); LiveBlocks() == before; room += 200) {
        AppendEnum(0, 0, {-1, std::string(200, 'f')});
    }
    Clear();
    const long blocks = LiveBlocks();
    for (const auto& append : appends) {
        std::size_t pieces = 0;
        for (std::size_t bytes = room - 800; bytes < room && !HasFailure(); bytes += 16) {
            fill(bytes);
            const long blocksBefore = LiveBlocks();
            EXPECT_EQ(append(), 1);
            pieces += LiveBlocks() > blocksBefore ? 1 : 0;
            std::size_t thrown = 1;
            for (std::size_t n = 1; thrown != 0; ++n) {
                fill(bytes);
                const std::string before = Dump();
                {
                    const FailingAllocations failing(n, Exhaustion::FromThere);
                    try {
                        append();
                    } catch (const std::bad_alloc&) {
                    }
                    thrown = failing.Thrown();
                }
                if (thrown != 0) {
                    EXPECT_TRUE(Dump() == before) << "allocation " << n;
                    EXPECT_EQ(append(), 1);
                }
                EXPECT_FALSE(Dump() == before);
            }
        }
        EXPECT_GT(pieces, 3U);
    }
    Clear();
    EXPECT_EQ(LiveBlocks(), blocks);
}

// A fetch may have to sort and join descriptions.
TEST_F(AllocationFaultTest, FetchThrowsBadAllocAndLeaksNothing) {
    const Step prepare = [this] {
        Refill();
        for (const std::int32_t value : {9, 8, 8}) {
            AppendEnum(1, 2, {value, "A description that comes out of order"});
        }
    };
    auto message = test::Filled<CanMessageRecord>(test::Pattern);
    auto signal = test::Filled<CanSignalRecord>(test::Pattern);
    auto description = test::Filled<CanEnumRecord>(test::Pattern);
    auto error = test::Filled<ParseError>(test::Pattern);
    const Call fetch = [&] {
        return Outcome{VexilGetCanMessageData(1, &message) + VexilGetCanSignalData(1, 1, &signal) +
                           VexilGetCanSignalEnumData(1, 2, 0, &description) +
                           VexilGetErrorData(0, &error),
                       0};
    };
    for (const Exhaustion exhaustion : BothKinds) {
        EXPECT_GT(Sweep(exhaustion, prepare, fetch, Dump), 1U);
    }
    EXPECT_EQ(fetch(), (Outcome{0, 0}));
}

// The fetch that fails is the first of the signal, or the first after an append.
TEST_F(AllocationFaultTest, AppendAfterAFailedFetchKeepsTheOrder) {
    UseInput(
        "BO_ 1 M: 8 N\n"
        " SG_ S : 0|8@1+ (1,0) [0|0] \"\" N\n"
        "VAL_ 1 S 2 \"old\" 3 \"three\" 1 \"one\" ;\n");
    for (const Exhaustion exhaustion : BothKinds) {
        for (const bool isFirst : {true, false}) {
            std::size_t thrown = 1;
            std::size_t n = 1;
            for (; thrown != 0; ++n) {
                SCOPED_TRACE("allocation " + std::to_string(n));
                Refill();
                if (!isFirst) {
                    EXPECT_EQ(EnumCount(0, 0), 3U);
                }
                for (const std::int32_t value : {2, 0, 2, 4}) {
                    AppendEnum(0, 0, {value, "more"});
                }
                {
                    std::uint32_t count = 0;
                    const FailingAllocations failing(n, exhaustion);
                    try {
                        VexilGetNumEnumsInCanSignal(0, 0, &count);
                    } catch (const std::bad_alloc&) {
                    }
                    thrown = failing.Thrown();
                }
                AppendEnum(0, 0, {2, "new"});
                AppendEnum(0, 0, {3, "new"});
                ASSERT_EQ(EnumCount(0, 0), 5U);
                ExpectEnum(0, 0, 0, {0, "more"});
                ExpectEnum(0, 0, 1, {1, "one"});
                ExpectEnum(0, 0, 2, {2, "old - more - more - new"});
                ExpectEnum(0, 0, 3, {3, "three - new"});
                ExpectEnum(0, 0, 4, {4, "more"});
            }
            EXPECT_GT(n, 2U) << "no fetch failed";
        }
    }
}

// std::stable_sort tries to allocate a buffer, and sorts without one if that fails.
TEST_F(AllocationFaultTest, DescriptionsInOrderAreNotSorted) {
    UseInput(
        "BO_ 1 M: 8 N\n"
        " SG_ Ordered : 0|8@1+ (1,0) [0|0] \"\" N\n"
        " SG_ Mixed : 0|8@1+ (1,0) [0|0] \"\" N\n"
        "VAL_ 1 Ordered 1 \"a\" 2 \"b\" 2 \"c\" 3 \"d\" ;\n"
        "VAL_ 1 Mixed 3 \"a\" 2 \"b\" 1 \"c\" ;\n");
    // appended: the value that is added after a first fetch, or null for a first fetch.
    const auto isSorted = [this](std::uint32_t signal, const std::int32_t* appended) {
        std::size_t thrown = 1;
        std::size_t refused = 0;
        for (std::size_t n = 1; thrown != 0 && refused == 0; ++n) {
            Refill();
            if (appended != nullptr) {
                EXPECT_EQ(EnumCount(0, signal), 3U);
                AppendEnum(0, signal, {*appended, "e"});
            }
            std::uint32_t count = 0;
            const FailingAllocations failing(n, Exhaustion::Once);
            try {
                VexilGetNumEnumsInCanSignal(0, signal, &count);
            } catch (const std::bad_alloc&) {
            }
            thrown = failing.Thrown();
            refused = failing.Refused();
        }
        return refused != 0;
    };
    const std::int32_t first = 0;
    const std::int32_t last = 3;
    EXPECT_FALSE(isSorted(0, nullptr));
    EXPECT_FALSE(isSorted(0, &last));
    EXPECT_TRUE(isSorted(0, &first));
    EXPECT_TRUE(isSorted(1, nullptr));
    EXPECT_FALSE(isSorted(1, &last));
}

TEST_F(AllocationFaultTest, ClearAllocatesNothing) {
    for (const Step& prepare : {Step([this] { Refill(); }), Step(Clear)}) {
        prepare();
        const FailingAllocations failing(1, Exhaustion::FromThere);
        VexilClearData();
        EXPECT_EQ(failing.Count(), 0U);
    }
}

// A line that never ends fills the memory, and no more.
TEST_F(AllocationFaultTest, ReadOfAnEndlessDeviceThrowsBadAlloc) {
    const std::ptrdiff_t descriptors = OpenDescriptors();
    {
        const LargestAllocation limit(std::size_t{1} << 24U);
        EXPECT_THROW(Read("/dev/zero"), std::bad_alloc);
    }
    EXPECT_EQ(OpenDescriptors(), descriptors);
    ExpectWorksAsBefore();
}

}  // namespace
}  // namespace vexil::faults
