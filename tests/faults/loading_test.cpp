// Tests of the library as a host loads and unloads it: without memory, and very often.
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <malloc.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <memory_resource>
#include <new>
#include <optional>

#include "faults/allocations.h"
#include "faults/every_statement.h"
#include "faults/loaded_library.h"
#include "faults/resources.h"
#include "support/files.h"
#include "support/memory_sanitizer.h"

namespace vexil::faults {
namespace {

// What the process holds of the C library's allocator, in bytes.
std::size_t UsedBytes() {
    const struct mallinfo2 info = mallinfo2();
    test::MarkAsInitialised(&info, sizeof info);
    return info.uordblks;
}

// The program is made without the library, so that each test loads it anew.
class LoadingTest : public testing::Test {
  protected:
    LoadingTest() {
        test::WriteBytes(input, EveryStatement());
        EXPECT_TRUE(IsUnloaded());
        const LoadedLibrary library;
        EXPECT_EQ(library.Read(input), StateClosed);
        EXPECT_EQ(library.Write(output), StateClosed);
        expectedFile = test::ReadBytes(output);
    }
    ~LoadingTest() override { std::pmr::set_default_resource(nullptr); }

    // Loads the library, expects it empty, and a read and a write to succeed as before.
    void ExpectWorksAsBefore() {
        const LoadedLibrary library;
        EXPECT_EQ(library.GetNumCanMessages(), 0U);
        EXPECT_EQ(library.Read(input), StateClosed);
        EXPECT_EQ(library.Write(output), StateClosed);
        EXPECT_TRUE(test::ReadBytes(output) == expectedFile) << "another file than at first";
    }

    test::TempFolder folder;
    std::string input = folder.File("input.dbc");
    std::string output = folder.File("output.dbc");
    std::string expectedFile;
};

// An exception while the library is loaded would end the program of the host.
TEST_F(LoadingTest, LoadingAllocatesNothing) {
    void* handle = nullptr;
    {
        const FailingAllocations failing(1, Exhaustion::FromThere);
        handle = dlopen(VEXIL64_LIBRARY, RTLD_NOW | RTLD_LOCAL);
        EXPECT_EQ(failing.Count(), 0U);
    }
    const LoadedLibrary library(handle);
    EXPECT_EQ(library.Read(input), StateClosed);
}

// What a read leaves unfinished goes with the library.
TEST_F(LoadingTest, FirstReadMayRunOutOfMemory) {
    const std::ptrdiff_t descriptors = OpenDescriptors();
    std::size_t n = 0;
    for (bool isGood = false; !isGood && !HasFailure();) {
        ++n;
        SCOPED_TRACE("allocation " + std::to_string(n));
        const long blocks = LiveBlocks();
        {
            const LoadedLibrary library;
            const FailingAllocations failing(n, Exhaustion::Once);
            try {
                const std::uint32_t code = library.Read(input);
                EXPECT_EQ(failing.Thrown(), 0U);
                EXPECT_EQ(code, StateClosed);
            } catch (const std::bad_alloc&) {
                EXPECT_EQ(failing.Thrown(), 1U);
            }
            isGood = failing.Thrown() + failing.Refused() == 0;
        }
        EXPECT_TRUE(IsUnloaded());
        EXPECT_EQ(OpenDescriptors(), descriptors);
        ExpectWorksAsBefore();
        EXPECT_EQ(LiveBlocks(), blocks);
    }
    EXPECT_GT(n, 30U);
}

TEST_F(LoadingTest, ClearReturnsAllMemory) {
    const long blocks = LiveBlocks();
    const LoadedLibrary library;
    for (int round = 0; round < 3; ++round) {
        EXPECT_EQ(library.Read(input), StateClosed);
        EXPECT_GT(library.GetNumCanErrors(), 0U);
        CanEnumRecord description{};
        EXPECT_EQ(library.GetCanSignalEnumData(1, 2, 0, &description), 1);
        CanMessageRecord message{};
        EXPECT_EQ(library.GetCanMessageData(0, &message), 1);
        EXPECT_EQ(library.AppendCanMessage(&message), 1);
        EXPECT_EQ(library.Write(output), StateClosed);
        EXPECT_GT(LiveBlocks(), blocks);
        library.ClearData();
        EXPECT_EQ(LiveBlocks(), blocks);
    }
}

// A host may replace the default resource, and destroy the one that was there at load time.
TEST_F(LoadingTest, DefaultMemoryResourceIsNotUsed) {
    std::pmr::set_default_resource(std::pmr::null_memory_resource());
    ExpectWorksAsBefore();

    std::optional<LoadedLibrary> library;
    {
        std::pmr::monotonic_buffer_resource early(std::pmr::new_delete_resource());
        std::pmr::set_default_resource(&early);
        library.emplace();
        std::pmr::set_default_resource(std::pmr::null_memory_resource());
    }
    EXPECT_EQ(library->Read(input), StateClosed);
    EXPECT_EQ(library->Write(output), StateClosed);
    library->ClearData();
    EXPECT_TRUE(test::ReadBytes(output) == expectedFile);
}

// A handler that was registered before the library was loaded runs after those of the library.
TEST_F(LoadingTest, ExitHandlersFindAnEmptyDatabase) {
    static const LoadedLibrary* library = nullptr;
    static std::string path;
    path = input;
    const auto callAtExit = [] {
        const bool isEmpty = library->GetNumCanMessages() == 0 && library->GetNumCanErrors() == 0;
        const bool isUsable = library->Read(path) == StateClosed &&
                              library->Write(path) == StateClosed &&
                              library->GetNumCanMessages() != 0;
        library->ClearData();
        std::_Exit(isEmpty && isUsable && library->GetNumCanMessages() == 0 ? 7 : 8);
    };
    EXPECT_EXIT(
        {
            std::atexit(callAtExit);
            const LoadedLibrary loaded;
            library = &loaded;
            if (loaded.Read(path) == StateClosed && loaded.GetNumCanMessages() != 0) {
                std::exit(0);
            }
        },
        testing::ExitedWithCode(7), "");
}

// How many regions of memory the process has.
std::ptrdiff_t MappedRegions() {
    std::ifstream maps("/proc/self/maps");
    return std::count(std::istreambuf_iterator<char>(maps), std::istreambuf_iterator<char>(), '\n');
}

TEST_F(LoadingTest, ThousandLoadsLeakNothing) {
    constexpr int WarmRounds = 100;  // for memory that the system keeps
    constexpr int Rounds = 1000;
    long blocks = 0;
    std::ptrdiff_t regions = 0;
    std::ptrdiff_t descriptors = 0;
    std::size_t bytes = 0;
    for (int round = 0; round < Rounds; ++round) {
        {
            const LoadedLibrary library;
            ASSERT_EQ(library.GetNumCanMessages(), 0U);
            ASSERT_EQ(library.Read(input), StateClosed);
            ASSERT_GT(library.GetNumCanMessages(), 0U);
        }
        if (round == WarmRounds) {
            blocks = LiveBlocks();
            regions = MappedRegions();
            descriptors = OpenDescriptors();
            bytes = UsedBytes();
        }
    }
    EXPECT_EQ(LiveBlocks(), blocks);
    EXPECT_EQ(OpenDescriptors(), descriptors);
    // What the loader takes comes in here, and what the system keeps ready for the next time. It is
    // less than a region or the smallest block for each of the rounds.
    EXPECT_LT(MappedRegions(), regions + (Rounds - WarmRounds) / 2);
    EXPECT_LT(UsedBytes(), bytes + (Rounds - WarmRounds) * std::size_t{16});
    EXPECT_TRUE(IsUnloaded());
}

}  // namespace
}  // namespace vexil::faults
