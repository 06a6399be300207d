// Reads any bytes as a file, writes the database in every order, and reads and writes each written
// file again. After each step, the database is compared with that of the reference implementations.
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <filesystem>
#include <iterator>
#include <string>
#include <string_view>

#include "expect.h"
#include "held_model.h"
#include "property/record_checks.h"
#include "property/round_trip_rules.h"
#include "scratch_file.h"
#include "support/files.h"
#include "support/record_dump.h"
#include "target.h"
#include "vexil64.h"
#include "written_form.h"

namespace vexil::fuzz {
namespace {

constexpr std::uint32_t Orders[] = {OrderByIdDescending, OrderByNameAscending, OrderAsStored,
                                    0xFFFFFFFF};

// Reads bytes as a file, without a bus type in the database before, and returns the model.
test::Model Read(std::string_view bytes) {
    static const std::string path = ScratchFile("read.dbc");
    test::WriteBytes(path, bytes);
    const DatabaseInfo none = {};
    VexilSetDatabaseInfo(&none, sizeof none);
    const CallResult result = ReadDbc(path);
    Expect(result.success && result.code == StateClosed, "any file can be read");
    test::Model model = HeldModel();
    ExpectRecords(model, "records after a read");
    ExpectSame(test::BrokenRule(test::FetchDatabase()), "", "rules of all that was read");
    return model;
}

// Writes the database, updates the model, and returns the written text.
std::string Write(test::Model& model, std::uint32_t order) {
    static const std::string path = ScratchFile("written.dbc");
    const CallResult result = WriteDbc(path, order);
    Expect(result.success && result.code == StateClosed, "what was read can be written");
    test::SuffixedNames(model);
    ExpectHeld(model, "a write changes names and nothing else");
    return test::ReadBytes(path);
}

void ExpectNoWrite() {
    const std::string path = ScratchFile("untouched.dbc");
    const CallResult result = WriteDbc(path, OrderAsStored);
    Expect(!result.success && result.code == StateClosed, "no message, no file");
    Expect(!std::filesystem::exists(path), "no message, no file touched");
}

// Precondition: the text was written of the model in the order.
void CheckTrip(const std::string& text, const test::Model& model, std::uint32_t order) {
    test::Model again = Read(text);
    if (!test::HoldsStrayKeyword(model) && !HoldsLongStatement(model)) {
        ExpectSameModel(again, test::ReadBack(model, order, {}),
                        "a written file gives what the rules of a trip say");
    }
    if (again.messages.empty()) {
        ExpectNoWrite();
        return;
    }
    test::Model renamed = again;
    const bool isSame = !test::SuffixedNames(renamed) && ModelText(WrittenForm(again, order)) ==
                                                             ModelText(WrittenForm(model, order));
    const std::string second = Write(again, order);
    if (isSame) {
        ExpectSame(second, text, "a trip that lost nothing gives the same text");
    }
}

}  // namespace
}  // namespace vexil::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vexil;
    using namespace vexil::fuzz;
    test::Model model = Read({reinterpret_cast<const char*>(data), size});
    if (model.messages.empty()) {
        ExpectNoWrite();
        return 0;
    }
    std::string texts[std::size(Orders)];
    test::Model models[std::size(Orders)];
    for (std::size_t at = 0; at < std::size(Orders); ++at) {
        texts[at] = Write(model, Orders[at]);
        models[at] = model;
    }
    const bool isRenamed = ModelText(models[2]) != ModelText(models[3]);
    Expect(isRenamed || texts[2] == texts[3], "every order above 1 is the order as stored");
    // If the text is the same in several orders, one round trip is enough.
    for (std::size_t at = 0; at < std::size(Orders); ++at) {
        if (std::find(texts, texts + at, texts[at]) == texts + at) {
            CheckTrip(texts[at], models[at], Orders[at]);
        }
    }
    return 0;
}
