// The calls for a large file, without a model of the expected results.
// SPDX-License-Identifier: MIT
#include "growth_check.h"

#include <cstdint>
#include <locale>
#include <string>

#include "budget.h"
#include "expect.h"
#include "scratch_file.h"
#include "support/files.h"
#include "vexil64.h"

namespace vexil::fuzz {
namespace {

// Comments and value descriptions of many owners can produce gigabytes of output. Above this size,
// fetching and writing take too long.
constexpr std::uint64_t MostHeldBytes = 8 * 1024 * 1024;

// A record and the calls for it cost this much without its texts.
constexpr std::uint64_t RecordBytes = 64;

std::uint64_t FetchSignal(std::uint32_t messageIndex, std::uint32_t index) {
    CanSignalRecord signal;
    Expect(VexilGetCanSignalData(messageIndex, index, &signal) == 1, "a signal below the count");
    for (std::uint32_t at = 0; at < signal.enumCount; ++at) {
        CanEnumRecord pair;
        Expect(VexilGetCanSignalEnumData(messageIndex, index, at, &pair) == 1,
               "a value description below the count");
    }
    return 1 + signal.enumCount;
}

// Returns the number of records.
std::uint64_t FetchAll() {
    std::uint64_t records = VexilGetNumCanMessages() + VexilGetNumCanErrors();
    CanMessageRecord message;
    for (std::uint32_t at = 0; VexilGetCanMessageData(at, &message) == 1; ++at) {
        for (std::uint32_t index = 0; index < message.signalCount; ++index) {
            records += FetchSignal(at, index);
        }
    }
    ParseError error;
    for (std::uint32_t at = 0; VexilGetErrorData(at, &error) == 1;) {
        ++at;
    }
    return records;
}

void CheckFetch(std::uint64_t heldBytes) {
    const Budget budget;
    const std::uint64_t records = FetchAll();
    budget.ExpectCall(heldBytes + records * RecordBytes);
}

class DecimalComma : public std::numpunct<char> {
  public:
    DecimalComma() : std::numpunct<char>(1) {}  // no locale deletes it

  protected:
    char do_decimal_point() const override { return ','; }
};

// Numbers are written in the global locale.
void CheckWriteWithComma(const std::string& path) {
    static DecimalComma comma;
    const std::locale before = std::locale::global(std::locale(std::locale::classic(), &comma));
    Expect(WriteDbc(path, OrderByIdDescending).success, "a large file with decimal commas");
    std::locale::global(before);
}

}  // namespace

void CheckGrowth(std::string_view bytes) {
    const std::string path = ScratchFile("grown.dbc");
    test::WriteBytes(path, bytes);
    VexilClearData();
    Expect(ReadDbc(path).success, "a large file can be read");
    const std::uint64_t heldBytes = HeldBytes(MostHeldBytes);
    if (heldBytes <= MostHeldBytes) {
        CheckFetch(heldBytes);
        if (VexilGetNumCanMessages() > 0) {
            Expect(WriteDbc(path, OrderByNameAscending).success, "a large file can be written");
            CheckWriteWithComma(path);
            Expect(WriteDbc(path, OrderByNameAscending).success, "and written again");
            Expect(ReadDbc(path).success, "and read again");
        }
    }
    Within(heldBytes, VexilClearData);
}

}  // namespace vexil::fuzz
