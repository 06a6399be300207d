// The calls of a host that read and write files. The comment at each call lists its arguments.
// SPDX-License-Identifier: MIT
#include <filesystem>
#include <string>
#include <string_view>

#include "any_path.h"
#include "budget.h"
#include "expect.h"
#include "frame/can_database.h"
#include "held_model.h"
#include "host.h"
#include "property/record_checks.h"
#include "property/round_trip_rules.h"
#include "property/text_rules.h"
#include "scratch_file.h"
#include "support/files.h"
#include "support/record_dump.h"
#include "vexil64.h"
#include "written_form.h"

namespace vexil::fuzz {
namespace {

// A comment of many messages is written for each of them, so a round trip can square the size of
// the database. Above this size, databases take too long to compare.
constexpr std::uint64_t MostHeldBytes = 256 * 1024;

bool HoldsTooMuch() {
    return HeldBytes(MostHeldBytes) > MostHeldBytes;
}

}  // namespace

// The byte that selects the path, then the file up to "~".
void Host::Read() {
    const AnyPath path = PathOf(input.Byte());
    ReadBytes(path, input.TextUpTo('~'));
}

void Host::ReadFile(std::string_view bytes) {
    ReadBytes(PathOf('0'), bytes);
}

void Host::ReadBytes(const AnyPath& path, std::string_view bytes) {
    if (!path.file.empty()) {
        test::WriteBytes(path.file, bytes);
    }
    const CallResult result = ReadPath(path.Pointer(), path.size, path.file);
    if (path.failure != 0) {
        Expect(!result.success, "a bad path cannot be read");
        if (!path.isFolder || result.code != StateStreamError) {
            ExpectSame(result.code, path.failure, "code of a bad path");
        }
        model = {{ProtocolPlainCan, model.info.busType}, {}, {}};
        ExpectHeld(model, "a read that failed");
        return;
    }
    Expect(result.success && result.code == StateClosed, "any file can be read");
    const std::uint32_t formerBus = model.info.busType;
    if (HoldsTooMuch()) {
        model.info = database.info;
        return Clear();
    }
    model = HeldModel();
    Expect(model.info.busType <= BusCanFd || model.info.busType == formerBus, "the bus type");
    const std::string text = test::WithoutControls(std::string(bytes));
    Expect(text.find("\"BusType\"") != std::string::npos || model.info.busType == formerBus,
           "a file without a bus type leaves that of before");
    ExpectRecords(model, "a read");
    test::DatabaseRecords records = test::FetchDatabase();
    records.info.busType = 0;
    ExpectSame(test::BrokenRule(records), "", "rules of all that was read");
    // A read must not depend on the previous database.
    Expect(ReadDbc(path.file).success, "a file can be read twice");
    ExpectHeld(model, "a second read");
}

void Host::ReadWritten() {
    const std::string file = ScratchFile("again.dbc");
    if (!std::filesystem::exists(file)) {
        return;
    }
    const DatabaseInfo before = model.info;
    const CallResult result = ReadDbc(file);
    Expect(result.success && result.code == StateClosed, "a written file can be read");
    if (HoldsTooMuch()) {
        model.info = database.info;
        return Clear();
    }
    model = HeldModel();
    if (!test::HoldsStrayKeyword(writtenModel) && !HoldsLongStatement(writtenModel)) {
        ExpectSameModel(model, test::ReadBack(writtenModel, writtenOrder, before),
                        "a written file gives what the rules of a trip say");
    }
    ExpectRecords(model, "a read of a written file");
}

// Writing the first line fails, which the library detects at the second line.
void Host::WriteToFullDevice(std::uint32_t order) {
    const CallResult result = WriteDbc("/dev/full", order);
    Expect(!result.success, "a write to a full device");
    ExpectSame(result.code, model.messages.empty() ? StateClosed : StateStreamError,
               "code of a write to a full device");
    test::SuffixedNames(model);
    ExpectHeld(model, "a write to a full device");
}

// The byte that selects the path, and the order; then "!" for a full device instead of the path.
void Host::Write() {
    const AnyPath path = PathOf(input.Byte());
    const std::uint32_t order = input.Word();
    if (input.Next('!')) {
        return WriteToFullDevice(order);
    }
    const CallResult result = WritePath(path.Pointer(), path.size, order, path.file);
    if (model.messages.empty()) {
        ExpectSame(result.code, StateClosed, "code of a write of nothing");
        Expect(!result.success, "a write of nothing");
    } else if (path.failure != 0) {
        ExpectSame(result.code, path.failure, "code of a write that cannot be");
        Expect(!result.success, "a write that cannot be");
    } else {
        Expect(result.success && result.code == StateClosed, "a write");
        test::SuffixedNames(model);
        writtenModel = model;
        writtenOrder = order;
        std::filesystem::rename(path.file, ScratchFile("again.dbc"));
    }
    ExpectHeld(model, "a write");
}

}  // namespace vexil::fuzz
