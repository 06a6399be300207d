// vexil-dbc accounts for any bytes as a file: each character is in one statement, each statement
// has one fate, and the summary of a rewrite is true. Time and memory are proportional to the size
// of the file.
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <ctime>
#include <numeric>
#include <string>
#include <string_view>

#include "account/account.h"
#include "account/rewrite_summary.h"
#include "allocated_bytes.h"
#include "expect.h"
#include "scratch_file.h"
#include "support/files.h"
#include "target.h"
#include "vexil64.h"
#include "view/rewrite_report.h"

namespace vexil::fuzz {
namespace {

constexpr std::string_view WhiteSpace = " \f\n\r\t\v";

std::int64_t ThreadNanoseconds() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return std::int64_t{time.tv_sec} * 1'000'000'000 + time.tv_nsec;
}

// Checks that every character that is not white space is in one statement, and that places ascend.
void ExpectStatements(const tool::SourceText& source, const tool::Account& account) {
    const std::string_view text = source.Text();
    std::size_t at = source.ByteOrderMarkSize();
    std::uint32_t line = 1;
    for (const tool::AccountedStatement& statement : account.statements) {
        Expect(statement.text.data() >= text.data() + at &&
                   statement.text.data() + statement.text.size() <= text.data() + text.size(),
               "statements follow one another in the text");
        const auto begin = static_cast<std::size_t>(statement.text.data() - text.data());
        Expect(!statement.text.empty(), "a statement has text");
        Expect(text.substr(at, begin - at).find_first_not_of(WhiteSpace) == std::string_view::npos,
               "all text is in statements");
        Expect(statement.line >= line && statement.column >= 1, "lines ascend, columns count");
        Expect(tool::RowOf(statement.cause).scope == tool::Scope::Statement,
               "a statement has a cause of statements");
        line = statement.line;
        at = begin + statement.text.size();
    }
    Expect(text.substr(at).find_first_not_of(WhiteSpace) == std::string_view::npos,
           "the text after the last statement is white space");
}

void ExpectCounts(const tool::Account& account, const tool::Snapshot& snapshot) {
    const auto fates = account.CountsByFate();
    Expect(std::accumulate(fates.begin(), fates.end(), std::size_t{0}) == account.statements.size(),
           "each statement has one fate");
    std::size_t causes = 0;
    for (const auto& [cause, count] : account.CountsByCause()) {
        causes += count;
    }
    Expect(causes == account.statements.size(), "each statement has one cause");
    Expect(account.messageStatements.size() == snapshot.messages.size() &&
               account.signalStatements.size() == snapshot.signals.size(),
           "each message and signal has a statement");
    for (const auto* indexes : {&account.messageStatements, &account.signalStatements}) {
        for (const std::uint32_t index : *indexes) {
            Expect(index < account.statements.size(), "statements of messages and signals exist");
        }
    }
}

// The account of the file that was read last.
void CheckAccount(const tool::SourceText& source) {
    RestartPeak();
    const AllocatedBytes bytes = CurrentAllocatedBytes();
    const std::int64_t start = ThreadNanoseconds();
    const tool::Snapshot snapshot = tool::TakeSnapshot();
    const tool::Account account = tool::MakeAccount(source, snapshot);
    const auto losses = tool::FindRewriteLosses(account, snapshot);
    const auto faults = tool::FindLayoutFaults(account, snapshot);
    const std::int64_t nanoseconds = ThreadNanoseconds() - start;
    const std::int64_t held = CurrentAllocatedBytes().peak - bytes.live;

    ExpectStatements(source, account);
    ExpectCounts(account, snapshot);
    std::string written;
    if (!snapshot.messages.empty()) {
        const std::string path = ScratchFile("written.dbc");
        WriteDbc(path, OrderAsStored);
        written = test::ReadBytes(path);
    }
    const tool::RewriteSummary summary = tool::SummarizeRewrite(account, losses, written);
    Expect(tool::TotalOf(summary.losses) + tool::TotalOf(summary.changes) <=
               account.statements.size() + account.fileFindings.size() + losses.size(),
           "nothing is lost twice");
    Expect(!tool::RewriteReport("any", summary).empty(), "a rewrite has a report");

    // The records count as well, because one comment applies to every message of its id.
    const std::size_t size = source.Bytes().size() + snapshot.texts.size();
    constexpr std::int64_t BytesEach = 200;
    constexpr std::int64_t NanosecondsEach = 5'000;
    constexpr std::int64_t AtLeast = 1 << 20;
    constexpr std::int64_t NanosecondsAtLeast = 500'000'000;
    Expect(held <= AtLeast + BytesEach * static_cast<std::int64_t>(size), "bytes of an account");
    Expect(nanoseconds <= NanosecondsAtLeast + NanosecondsEach * static_cast<std::int64_t>(size),
           "nanoseconds of an account");
}

}  // namespace
}  // namespace vexil::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vexil;
    using namespace vexil::fuzz;
    static const std::string path = ScratchFile("account.dbc");
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    test::WriteBytes(path, bytes);
    const DatabaseInfo none = {};
    VexilSetDatabaseInfo(&none, sizeof none);
    const CallResult result = ReadDbc(path);
    Expect(result.success && result.code == StateClosed, "any file can be read");
    CheckAccount(tool::SourceText(bytes));
    return 0;
}
