// Tests of files that fail: each call to the system fails in its turn. The result code reports it,
// data read or written before stays, and no file stays open.
// SPDX-License-Identifier: MIT
#include <sys/resource.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <limits>
#include <numeric>
#include <vector>

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

    // The database after a successful read of a text.
    std::string DumpOf(const std::string& bytes) {
        Clear();
        EXPECT_EQ(ReadText(bytes), Success);
        return Dump();
    }

    static void Clear() {
        VexilClearData();
        SetInfo({0, 0});
    }

    // A text of several blocks of 64 KiB, one of them in the middle of a line.
    std::string LargeText() const {
        std::string large;
        for (int part = 0; part < 4; ++part) {
            large += text;
        }
        return large + "CM_ BO_ 256 \"" + std::string(150'000, 'z') + "\";\n" + text + text;
    }

    // Lets each read of a text fail in its turn. Expects the database of the lines before it,
    // and no read after it.
    //   size  the most that a call reads.
    // Returns how many reads a good one takes.
    std::size_t FailEachRead(const std::string& bytes, std::size_t size) {
        test::WriteBytes(input, bytes);
        for (std::size_t n = 1; !HasFailure(); ++n) {
            SCOPED_TRACE("read " + std::to_string(n));
            Clear();
            Outcome outcome;
            std::size_t reads = 0;
            std::size_t bytesRead = 0;
            {
                WatchedFileCalls calls;
                calls.LimitSize(size);
                calls.Fail(FileCall::Read, n, n, EIO);
                outcome = Read(input);
                reads = calls.Count(FileCall::Read);
                bytesRead = calls.Bytes(FileCall::Read);
            }
            EXPECT_EQ(OpenDescriptors(), descriptors);
            const std::string records = Dump();
            if (reads < n) {
                EXPECT_EQ(outcome, Success);
                EXPECT_TRUE(records == DumpOf(bytes)) << "other records";
                return reads;
            }
            EXPECT_EQ(reads, n);
            EXPECT_EQ(outcome, ReadFailed);
            EXPECT_TRUE(records == DumpOf(WholeLines(bytes.substr(0, bytesRead))))
                << "other records";
        }
        return 0;
    }

    // Reads the input and returns the lines that a successful write writes, one for each call.
    std::vector<std::string> WrittenLines() {
        EXPECT_EQ(Read(input), Success);
        const WatchedFileCalls calls;
        EXPECT_EQ(Write(output), Success);
        return calls.Writes();
    }

    static std::string Joined(const std::vector<std::string>& lines, std::size_t count) {
        const auto first = lines.begin();
        return std::accumulate(first, first + static_cast<std::ptrdiff_t>(count), std::string());
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

TEST_F(FileFaultTest, FailedOpenReadsAndWritesNothing) {
    for (const int error : {EACCES, EIO, EMFILE, ENFILE, ENOMEM, ENOSPC, EROFS}) {
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

TEST_F(FileFaultTest, InterruptedOpenIsRetried) {
    WatchedFileCalls calls;
    calls.Fail(FileCall::Open, 1, 3, EINTR);
    EXPECT_EQ(Read(input), Success);
    EXPECT_EQ(calls.Count(FileCall::Open), 4U);
    calls.Fail(FileCall::Open, 5, 7, EINTR);
    EXPECT_EQ(Write(output), Success);
    EXPECT_EQ(calls.Count(FileCall::Open), 8U);
}

TEST_F(FileFaultTest, OpenFailsWithoutAFreeDescriptor) {
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

TEST_F(FileFaultTest, FailedReadKeepsTheLinesBeforeIt) {
    EXPECT_GT(FailEachRead(text, 97), 100U);
    EXPECT_EQ(FailEachRead("BO_ 1 A: 8 N\nBO_ 2 B: 8 N\n", 1), 27U);
}

// The line that the failure falls into is lost, also when it is the last and has no end.
TEST_F(FileFaultTest, FailedReadDropsTheUnfinishedLine) {
    EXPECT_EQ(FailEachRead("BO_ 1 A: 8 N\nBO_ 2 B: 8 N", Always), 2U);
    EXPECT_GT(FailEachRead(LargeText() + "BO_ 2 B: 8 N", 30'011), 8U);
}

TEST_F(FileFaultTest, NothingIsReadAfterTheEndOfAFile) {
    for (const std::string& bytes :
         {std::string(), std::string("\n"), std::string("BO_ 1 A: 8 N\n"),
          std::string("BO_ 1 A: 8 N"), text, LargeText(), LargeText() + "BO_ 2 B: 8 N"}) {
        for (const std::size_t size : {std::size_t{1000}, Always}) {
            WatchedFileCalls calls;
            calls.LimitSize(size);
            EXPECT_EQ(ReadText(bytes), Success);
            EXPECT_EQ(calls.Bytes(FileCall::Read), bytes.size());
            EXPECT_EQ(calls.EndsOfFile(), 1U);
        }
    }
}

TEST_F(FileFaultTest, EveryReadErrorButEintrIsAStreamError) {
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
    const std::string records = Dump();
    EXPECT_TRUE(records == DumpOf(text));
}

// -- Writing ----------------------------------------------------------------------------------

// Each line is complete before the next one begins.
TEST_F(FileFaultTest, EachLineIsOneWriteAndShortWritesAreContinued) {
    test::WriteBytes(input,
                     "BU_: N M\nBO_ 1 A: 8 N\n SG_ S : 0|8@1+ (1,0) [0|0] \"\" M\n"
                     "CM_ BO_ 1 \"comment\";\nVAL_ 1 S 1 \"On\" ;\nBO_ 2 B: 8 N\n");
    const std::vector<std::string> lines = WrittenLines();
    const std::string whole = test::ReadBytes(output);
    EXPECT_EQ(Joined(lines, lines.size()), whole);
    for (const std::string& line : lines) {
        EXPECT_EQ(line.find('\n'), line.size() - 1);
    }
    for (const std::size_t size : {std::size_t{1}, std::size_t{7}, std::size_t{1000}}) {
        std::vector<std::string> expected;
        for (const std::string& line : lines) {
            for (std::size_t at = 0; at < line.size(); at += std::min(size, line.size() - at)) {
                expected.push_back(line.substr(at));
            }
        }
        WatchedFileCalls calls;
        calls.LimitSize(size);
        EXPECT_EQ(Write(output), Success);
        EXPECT_EQ(calls.Writes(), expected) << size;
        EXPECT_EQ(test::ReadBytes(output), whole) << size;
    }
}

TEST_F(FileFaultTest, InterruptedWritesAreContinued) {
    const std::size_t lines = WrittenLines().size();
    const std::string whole = test::ReadBytes(output);
    WatchedFileCalls calls;
    calls.Fail(FileCall::Write, 20, 40, EINTR);
    EXPECT_EQ(Write(output), Success);
    EXPECT_EQ(calls.Count(FileCall::Write), lines + 21);
    EXPECT_TRUE(test::ReadBytes(output) == whole);
}

// A call that fails once shows at the next line. The line itself is written when the file is
// closed.
TEST_F(FileFaultTest, SingleWriteFailureIsReportedAtTheNextLine) {
    const std::vector<std::string> lines = WrittenLines();
    ASSERT_GT(lines.size(), 100U);
    for (std::size_t n = 1; n <= lines.size() && !HasFailure(); ++n) {
        SCOPED_TRACE("write " + std::to_string(n));
        WatchedFileCalls calls;
        calls.Fail(FileCall::Write, n, n, EIO);
        EXPECT_EQ(Write(output), n == lines.size() ? LastLineFailed : WriteFailed);
        EXPECT_EQ(OpenDescriptors(), descriptors);
        EXPECT_EQ(calls.Count(FileCall::Write), n + 1);
        EXPECT_TRUE(test::ReadBytes(output) == Joined(lines, n));
    }
}

// No later byte reaches the file.
TEST_F(FileFaultTest, PermanentWriteFailureKeepsTheLinesBeforeIt) {
    const std::vector<std::string> lines = WrittenLines();
    for (const int error : {ENOSPC, EIO, EDQUOT, EPIPE}) {
        for (std::size_t n = 1; n <= lines.size() && !HasFailure(); ++n) {
            SCOPED_TRACE("write " + std::to_string(n));
            WatchedFileCalls calls;
            calls.Fail(FileCall::Write, n, Always, error);
            EXPECT_EQ(Write(output), n == lines.size() ? LastLineFailed : WriteFailed);
            EXPECT_EQ(OpenDescriptors(), descriptors);
            EXPECT_EQ(calls.Count(FileCall::Write), n + 1);
            EXPECT_TRUE(test::ReadBytes(output) == Joined(lines, n - 1));
        }
    }
}

// A short write that then fails leaves a part of a line, and closing the file tries the rest.
TEST_F(FileFaultTest, WriteCanFailInsideALine) {
    test::WriteBytes(input, "BO_ 1 A: 8 N\nCM_ BO_ 1 \"the last line\";\n");
    const std::vector<std::string> lines = WrittenLines();
    const std::string whole = test::ReadBytes(output);
    const std::size_t lastLine = whole.size() - lines.back().size();
    for (std::size_t size = 0; size < whole.size() && !HasFailure(); ++size) {
        for (const std::size_t last : {size + 1, Always}) {
            WatchedFileCalls calls;
            calls.LimitSize(1);
            calls.Fail(FileCall::Write, size + 1, last, ENOSPC);
            EXPECT_EQ(Write(output), size >= lastLine ? LastLineFailed : WriteFailed) << size;
            const std::size_t end = last == Always ? size : whole.find('\n', size) + 1;
            EXPECT_EQ(test::ReadBytes(output), whole.substr(0, end)) << size;
        }
    }
}

// -- Closing ----------------------------------------------------------------------------------

// It comes when all is settled. It is not tried again, since the system has given up the
// descriptor.
TEST_F(FileFaultTest, ErrorsOnCloseAreNotReported) {
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
