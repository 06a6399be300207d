// The limits of a call, and how they are measured.
// SPDX-License-Identifier: MIT
#include "budget.h"

#include <ctime>
#include <string>

#include "expect.h"
#include "frame/can_database.h"

namespace vexil::fuzz {
namespace {

// The limit of a call: a cost for each byte and a fixed cost.
struct Limit {
    std::uint64_t perByte;
    std::uint64_t atLeast;
};

constexpr Limit ReadPeak = {48, 256 * 1024};   // SECURITY.md states the 48 bytes
constexpr Limit ReadTotal = {64, 256 * 1024};  // lists that grow are allocated again
constexpr Limit CallTotal = {32, 128 * 1024};
constexpr Limit Nanoseconds = {1000, 200'000'000};

std::int64_t ThreadNanoseconds() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return std::int64_t{time.tv_sec} * 1'000'000'000 + time.tv_nsec;
}

void ExpectBelow(std::int64_t cost, const Limit& limit, std::uint64_t bytes, const char* what) {
    const auto most = static_cast<std::int64_t>(limit.atLeast + limit.perByte * bytes);
    if (cost > most) {
        Fail(std::string(what) + ": " + std::to_string(cost) + " for " + std::to_string(bytes) +
             " bytes, and at most " + std::to_string(most));
    }
}

std::uint64_t BytesOf(const Notes& notes, std::uint64_t enough) {
    std::uint64_t bytes = 0;
    for (const Note* list : {notes.comments, notes.statements}) {
        for (const Note* note = list; note != nullptr && bytes <= enough; note = note->next) {
            bytes += note->text.size() + 1;
        }
    }
    for (const AddedDescription* pair = notes.added; pair != nullptr && bytes <= enough;
         pair = pair->earlier) {
        bytes += pair->text.size() + 16;
    }
    return bytes;
}

// The line of a message or signal without its texts.
constexpr std::uint64_t LineBytes = 64;

}  // namespace

Budget::Budget() {
    RestartPeak();
    startBytes = CurrentAllocatedBytes();
    startNanoseconds = ThreadNanoseconds();
}

void Budget::ExpectRead(std::uint64_t fileBytes) const {
    const std::int64_t nanoseconds = ThreadNanoseconds() - startNanoseconds;
    const AllocatedBytes bytes = CurrentAllocatedBytes();
    ExpectBelow(bytes.peak - startBytes.live, ReadPeak, fileBytes, "bytes that a read holds");
    ExpectBelow(static_cast<std::int64_t>(bytes.total - startBytes.total), ReadTotal, fileBytes,
                "bytes that a read allocates");
    ExpectBelow(nanoseconds, Nanoseconds, fileBytes, "nanoseconds of a read");
}

void Budget::ExpectCall(std::uint64_t bytes) const {
    const std::int64_t nanoseconds = ThreadNanoseconds() - startNanoseconds;
    const std::uint64_t total = CurrentAllocatedBytes().total - startBytes.total;
    ExpectBelow(static_cast<std::int64_t>(total), CallTotal, bytes, "bytes that a call allocates");
    ExpectBelow(nanoseconds, Nanoseconds, bytes, "nanoseconds of a call");
}

std::uint64_t HeldBytes(std::uint64_t enough) {
    std::uint64_t bytes = 0;
    for (std::size_t at = 0; at < database.messages.Size() && bytes <= enough; ++at) {
        const CANMessage& message = database.messages[at];
        bytes += LineBytes + BytesOf(message.notes, enough);
        for (const CANSignal* signal : message.signals) {
            bytes += LineBytes + signal->receivers.size() + BytesOf(signal->notes, enough);
        }
    }
    return bytes;
}

}  // namespace vexil::fuzz
