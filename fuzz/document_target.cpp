// Any bytes as a JSON document that vexil-dbc makes a database of: each remark has a path and a
// text, the database made a document once more is taken without a remark and gives the same
// records, and all of it takes time and memory in proportion to the document.
// SPDX-License-Identifier: MIT
#include <ctime>
#include <sstream>
#include <string>
#include <string_view>

#include "allocated_bytes.h"
#include "document/read_network.h"
#include "expect.h"
#include "support/record_dump.h"
#include "target.h"
#include "vexil64.h"
#include "view/document_report.h"
#include "view/network_json.h"

namespace vexil::fuzz {
namespace {

constexpr std::size_t MostChanges = 10;

std::int64_t ThreadNanoseconds() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return std::int64_t{time.tv_sec} * 1'000'000'000 + time.tv_nsec;
}

void ExpectRemarks(const tool::Remarks& remarks) {
    Expect(remarks.Held().size() <= remarks.Count(), "every remark is counted");
    for (const tool::Remark& each : remarks.Held()) {
        Expect(!each.text.empty(), "a remark has a text");
        const std::string line = tool::RemarkLine(each);
        for (const char ch : line) {
            Expect(static_cast<unsigned char>(ch) >= ' ' && ch != '\x7F',
                   "a remark has no control character");
        }
    }
}

std::string DocumentOf(const test::DatabaseRecords& database) {
    std::ostringstream out;
    tool::NetworkJson document(out, database.info);
    for (const test::MessageRecords& message : database.messages) {
        document.Add(message.record);
        for (const test::SignalRecords& signal : message.signals) {
            document.Add(signal.record);
            for (const CanEnumRecord& description : signal.enums) {
                document.Add(description);
            }
        }
    }
    document.Finish();
    return out.str();
}

// Reads the document under its budget.
tool::DocumentResult Read(std::string_view document) {
    RestartPeak();
    const AllocatedBytes bytes = CurrentAllocatedBytes();
    const std::int64_t start = ThreadNanoseconds();
    tool::DocumentResult result = tool::ReadNetwork(document, MostChanges);
    const std::int64_t nanoseconds = ThreadNanoseconds() - start;
    const std::int64_t held = CurrentAllocatedBytes().peak - bytes.live;
    // The least signal is 41 bytes of a document and 1 KiB in memory until its message ends.
    constexpr std::int64_t BytesEach = 200;
    constexpr std::int64_t NanosecondsEach = 5'000;
    constexpr std::int64_t AtLeast = 1 << 20;
    constexpr std::int64_t NanosecondsAtLeast = 500'000'000;
    const auto size = static_cast<std::int64_t>(document.size());
    Expect(held <= AtLeast + BytesEach * size, "bytes of a document");
    Expect(nanoseconds <= NanosecondsAtLeast + NanosecondsEach * size, "nanoseconds of a document");
    return result;
}

}  // namespace
}  // namespace vexil::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vexil;
    using namespace vexil::fuzz;
    const std::string_view document(reinterpret_cast<const char*>(data), size);
    const tool::DocumentResult result = Read(document);
    ExpectRemarks(result.refused);
    for (const auto& [field, remarks] : result.changed) {
        ExpectRemarks(remarks);
    }
    Expect(!tool::DocumentReport("any", result).empty(), "a document has a report");
    const test::DatabaseRecords database = test::FetchDatabase();
    Expect(database.messages.size() == result.messages, "messages are counted");

    const tool::DocumentResult again = Read(DocumentOf(database));
    ExpectSame(again.fault, std::string(), "what is written is JSON");
    Expect(again.refused.Count() == 0, "no value that was written is refused");
    Expect(again.changed.empty(), "no value that was written is changed");
    ExpectSame(test::RecordText(test::FetchDatabase()), test::RecordText(database),
               "records by way of a document");
    return 0;
}
