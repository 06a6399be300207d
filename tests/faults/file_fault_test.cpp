// Tests of files that fail: each call to the system fails in its turn. A code tells it, what was
// read or written until then stays, and no file stays open.
// SPDX-License-Identifier: MIT
#include <sys/resource.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <limits>

#include "api/api_test.h"
#include "faults/every_statement.h"
#include "faults/file_calls.h"
#include "faults/resources.h"
#include "support/record_dump.h"

namespace vexil::faults {
namespace {

using test::Outcome;
using test::Success;

constexpr std::size_t Always = std::numeric_limits<std::size_t>::max();
constexpr Outcome ReadFailed{0, StateStreamError};
constexpr Outcome WriteFailed{0, StateStreamError};
constexpr Outcome LastLineFailed{1, StateStreamError};

class FileFaultTest : public test::ApiTest {
  protected:
    FileFaultTest() : text(EveryStatement()) { test::WriteBytes(input, text); }
    ~FileFaultTest() override {
        EXPECT_EQ(OpenDescriptors(), descriptors);
        VexilClearData();
    }

    static std::string Dump() {
        const test::DatabaseRecords records = test::FetchDatabase();
        return test::RecordText(records) + test::ErrorText(records);
    }

    // What a good read makes of a text.
    std::string DumpOf(const std::string& bytes) {
        Clear();
        EXPECT_EQ(ReadText(bytes), Success);
        return Dump();
    }

    static void Clear() {
        VexilClearData();
        SetInfo({0, 0});
    }

    // The text up to the end of its last line that is whole.
    static std::string WholeLines(std::string_view bytes) {
        const std::size_t end = bytes.rfind('\n');
        return std::string(bytes.substr(0, end == std::string_view::npos ? 0 : end + 1));
    }

    std::ptrdiff_t descriptors = OpenDescriptors();
    std::string text;
    std::string input = folder.File("input.dbc");
    std::string output = folder.File("output.dbc");
};

// -- Opening ----------------------------------------------------------------------------------

TEST_F(FileFaultTest, AFileThatCannotBeOpenedIsNeitherReadNorWritten) {
    for (const int error : {EACCES, EINTR, EIO, EMFILE, ENFILE, ENOMEM, ENOSPC, EROFS}) {
        ASSERT_EQ(ReadText("BO_ 1 A: 8 N\n"), Success);
        WatchedFileCalls calls;
        calls.Fail(FileCall::Open, 1, Always, error);
        EXPECT_EQ(Write(output), (Outcome{0, StateOpenFailed})) << error;
        EXPECT_EQ(VexilGetNumCanMessages(), 1U);
        EXPECT_EQ(Read(input), (Outcome{0, StateOpenFailed})) << error;
        ExpectEmptyDatabase();
        EXPECT_EQ(calls.Count(FileCall::Open), 2U);
        EXPECT_EQ(calls.Count(FileCall::Read) + calls.Count(FileCall::Write), 0U);
    }
    EXPECT_FALSE(std::filesystem::exists(output));
}

TEST_F(FileFaultTest, AProcessWithoutADescriptorLeftOpensNoFile) {
    ASSERT_EQ(ReadText("BO_ 1 A: 8 N\n"), Success);
    rlimit before{};
    ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &before), 0);
    rlimit none = before;
    none.rlim_cur = 0;
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &none), 0);
    const Outcome written = Write(output);
    const Outcome read = Read(input);
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &before), 0);
    EXPECT_EQ(written, (Outcome{0, StateOpenFailed}));
    EXPECT_EQ(read, (Outcome{0, StateOpenFailed}));
    EXPECT_EQ(Read(input), Success);
}

// -- Reading ----------------------------------------------------------------------------------

// Wherever a read fails, the database is that of the lines in front of it.
TEST_F(FileFaultTest, EachReadThatFailsLeavesTheLinesInFrontOfIt) {
    std::size_t n = 1;
    for (bool isGood = false; !isGood && !HasFailure(); ++n) {
        SCOPED_TRACE("read " + std::to_string(n));
        Clear();
        Outcome outcome;
        std::size_t bytes = 0;
        {
            WatchedFileCalls calls;
            calls.LimitSize(97);
            calls.Fail(FileCall::Read, n, n, EIO);
            outcome = Read(input);
            bytes = calls.Bytes(FileCall::Read);
            isGood = calls.Count(FileCall::Read) < n;
        }
        EXPECT_EQ(OpenDescriptors(), descriptors);
        EXPECT_EQ(outcome, isGood ? Success : ReadFailed);
        EXPECT_EQ(bytes, std::min((n - 1) * 97, text.size()));
        const std::string records = Dump();
        EXPECT_TRUE(records == DumpOf(WholeLines(text.substr(0, bytes)))) << "other records";
    }
    EXPECT_GT(n, 100U);
    EXPECT_TRUE(Dump() == DumpOf(text));
}

TEST_F(FileFaultTest, EachErrorOfAReadIsAStreamErrorButAnInterruption) {
    const std::string records = DumpOf(text);
    for (const int error : {EIO, EAGAIN, EBADF, EISDIR, ENOMEM, ESTALE}) {
        WatchedFileCalls calls;
        calls.Fail(FileCall::Read, 2, 2, error);
        EXPECT_EQ(Read(input), ReadFailed) << error;
    }
    Clear();
    {
        WatchedFileCalls calls;
        calls.LimitSize(1);
        calls.Fail(FileCall::Read, 100, 120, EINTR);
        EXPECT_EQ(Read(input), Success);
        EXPECT_EQ(calls.Count(FileCall::Read), text.size() + 1 + 21);
    }
    EXPECT_TRUE(Dump() == records);
}

// The line that the failure falls into is lost, also when it is the last and has no end.
TEST_F(FileFaultTest, AReadThatFailsAtTheEndLosesALineWithoutAnEnd) {
    test::WriteBytes(input, "BO_ 1 A: 8 N\nBO_ 2 B: 8 N");
    {
        WatchedFileCalls calls;
        calls.Fail(FileCall::Read, 2, 2, EIO);
        EXPECT_EQ(Read(input), ReadFailed);
    }
    EXPECT_EQ(VexilGetNumCanMessages(), 1U);
}

// -- Writing ----------------------------------------------------------------------------------

// A call that fails once shows at the next line. The line itself is still there to be written when
// the file is closed.
TEST_F(FileFaultTest, EachWriteThatFailsOnceShowsAtTheNextLine) {
    ASSERT_EQ(Read(input), Success);
    ASSERT_EQ(Write(output), Success);
    const std::string whole = test::ReadBytes(output);
    std::size_t failures = 0;
    for (std::size_t n = 1; !HasFailure(); ++n) {
        SCOPED_TRACE("write " + std::to_string(n));
        Outcome outcome;
        std::size_t count = 0;
        {
            WatchedFileCalls calls;
            calls.Fail(FileCall::Write, n, n, EIO);
            outcome = Write(output);
            count = calls.Count(FileCall::Write);
        }
        EXPECT_EQ(OpenDescriptors(), descriptors);
        const std::string written = test::ReadBytes(output);
        if (count < n) {
            EXPECT_EQ(outcome, Success);
            EXPECT_TRUE(written == whole);
            break;
        }
        EXPECT_TRUE(whole.starts_with(written));
        EXPECT_EQ(outcome, written == whole ? LastLineFailed : WriteFailed);
        ++failures;
    }
    EXPECT_GT(failures, 100U);
}

// From there on no byte more reaches the file.
TEST_F(FileFaultTest, EachWriteThatFailsForGoodLeavesTheLinesInFrontOfIt) {
    ASSERT_EQ(Read(input), Success);
    ASSERT_EQ(Write(output), Success);
    const std::string whole = test::ReadBytes(output);
    const std::size_t lastLine = whole.rfind('\n', whole.size() - 2) + 1;
    for (const int error : {ENOSPC, EIO, EDQUOT, EPIPE}) {
        for (std::size_t n = 1; !HasFailure(); ++n) {
            SCOPED_TRACE("write " + std::to_string(n));
            Outcome outcome;
            std::size_t count = 0;
            std::size_t bytes = 0;
            {
                WatchedFileCalls calls;
                calls.Fail(FileCall::Write, n, Always, error);
                outcome = Write(output);
                count = calls.Count(FileCall::Write);
                bytes = calls.Bytes(FileCall::Write);
            }
            EXPECT_EQ(OpenDescriptors(), descriptors);
            EXPECT_TRUE(test::ReadBytes(output) == whole.substr(0, bytes));
            if (count < n) {
                EXPECT_EQ(outcome, Success);
                break;
            }
            EXPECT_EQ(outcome, bytes >= lastLine ? LastLineFailed : WriteFailed);
        }
    }
}

TEST_F(FileFaultTest, ShortAndInterruptedWritesAreCarriedOn) {
    ASSERT_EQ(Read(input), Success);
    ASSERT_EQ(Write(output), Success);
    const std::string whole = test::ReadBytes(output);
    for (const std::size_t size : {std::size_t{1}, std::size_t{7}, std::size_t{1000}}) {
        WatchedFileCalls calls;
        calls.LimitSize(size);
        calls.Fail(FileCall::Write, 20, 40, EINTR);
        EXPECT_EQ(Write(output), Success);
        EXPECT_GT(calls.Count(FileCall::Write), whole.size() / size);
        EXPECT_TRUE(test::ReadBytes(output) == whole) << size;
    }
}

// A short write that then fails leaves a part of a line.
TEST_F(FileFaultTest, EachWriteMayFailInsideALine) {
    ASSERT_EQ(ReadText("BO_ 1 A: 8 N\nCM_ BO_ 1 \"the last line\";\n"), Success);
    ASSERT_EQ(Write(output), Success);
    const std::string whole = test::ReadBytes(output);
    const std::size_t lastLine = whole.rfind('\n', whole.size() - 2) + 1;
    for (std::size_t size = 0; size < whole.size() && !HasFailure(); ++size) {
        WatchedFileCalls calls;
        calls.LimitSize(1);
        calls.Fail(FileCall::Write, size + 1, Always, ENOSPC);
        EXPECT_EQ(Write(output), size >= lastLine ? LastLineFailed : WriteFailed) << size;
        EXPECT_TRUE(test::ReadBytes(output) == whole.substr(0, size)) << size;
    }
}

// -- Closing ----------------------------------------------------------------------------------

// It comes when all is settled, and leaves the stream no worse than failed.
TEST_F(FileFaultTest, AFileThatCannotBeClosedCountsAsReadAndWritten) {
    for (const int error : {EIO, EINTR, ENOSPC, EDQUOT}) {
        WatchedFileCalls calls;
        calls.Fail(FileCall::Close, 1, Always, error);
        EXPECT_EQ(Read(input), Success) << error;
        EXPECT_EQ(Write(output), Success) << error;
        EXPECT_EQ(calls.Count(FileCall::Close), 2U);
    }
    const std::string written = test::ReadBytes(output);
    EXPECT_EQ(Write(output), Success);
    EXPECT_TRUE(test::ReadBytes(output) == written);
}

}  // namespace
}  // namespace vexil::faults
