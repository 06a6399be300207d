// A database made a document and built again from it: every record is the same, but for the
// exceptions that docs/tool.md lists.
//
//   VEXIL64_EXPERIMENTS  how many random files to try (default: 1000)
//   VEXIL64_CORPUS       a folder of real files
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <iostream>
#include <limits>
#include <map>
#include <random>
#include <sstream>
#include <string>

#include "document/read_network.h"
#include "support/files.h"
#include "support/random_text.h"
#include "support/record_dump.h"
#include "support/reference_text.h"
#include "tool/random_network.h"
#include "view/network_json.h"

namespace vexil::test {
namespace {

std::string DocumentOf(const DatabaseRecords& database) {
    std::ostringstream out;
    tool::NetworkJson document(out, database.info);
    for (const MessageRecords& message : database.messages) {
        document.Add(message.record);
        for (const SignalRecords& signal : message.signals) {
            document.Add(signal.record);
            for (const CanEnumRecord& description : signal.enums) {
                document.Add(description);
            }
        }
    }
    for (const ParseError& error : database.errors) {
        document.Add(error);
    }
    document.Finish();
    return out.str();
}

// Sets a text, and counts it if that is a change.
template <std::size_t Size>
void Change(char (&field)[Size], const std::string& text, std::size_t& count) {
    const std::string before = field;
    std::fill(std::begin(field), std::end(field), '\0');
    text.copy(field, Size - 1);
    count += before != field ? 1U : 0U;
}

// What the functions that append do not take, or make of other fields.
void ApplyExceptions(DatabaseRecords& database, std::map<std::string, std::size_t>& counts) {
    database.errors.clear();
    for (MessageRecords& message : database.messages) {
        CanMessageRecord& record = message.record;
        Change(record.sendType, "", counts["send types"]);
        counts["cycle times"] += record.cycleTime != 0 ? 1U : 0U;
        record.cycleTime = 0;
        Change(record.name, reference::MakeCIdentifier(record.longName), counts["names"]);
        for (SignalRecords& signal : message.signals) {
            CanSignalRecord& own = signal.record;
            Change(own.name, reference::MakeCIdentifier(own.longName), counts["names"]);
            Change(own.unit, reference::FoldToAscii(own.unitUtf8), counts["units that were cut"]);
            std::string receivers = own.receiverList;
            if (receivers.ends_with(',')) {
                receivers.pop_back();
            }
            Change(own.receiverList, receivers, counts["receivers that were cut"]);
        }
    }
}

class NetworkTrip : public testing::Test {
  protected:
    void Read(const std::string& text) {
        WriteBytes(file, text);
        const DatabaseInfo none{};
        VexilSetDatabaseInfo(&none, sizeof none);
        std::uint32_t code = 0;
        ASSERT_EQ(
            VexilReadDbcFile(file.c_str(), static_cast<std::uint32_t>(file.size() + 1), &code), 1);
    }

    // The database that is there, by way of a document.
    void Try() {
        DatabaseRecords expected = FetchDatabase();
        const std::string document = DocumentOf(expected);
        ApplyExceptions(expected, counts);
        const tool::DocumentResult result = tool::ReadNetwork(document, 1);
        EXPECT_EQ(result.fault, "");
        EXPECT_EQ(result.refused.Held(), std::vector<tool::Remark>());
        EXPECT_EQ(RecordText(FetchDatabase()), RecordText(expected));
    }

    void TryFolder(const std::filesystem::path& top) {
        std::size_t files = 0;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(top)) {
            if (entry.path().extension() == ".dbc") {
                SCOPED_TRACE(entry.path().string());
                Read(ReadBytes(entry.path().string()));
                Try();
                ++files;
            }
        }
        EXPECT_GT(files, 0U);
    }

    static unsigned Experiments() {
        constexpr unsigned Usual = 1000;
        const char* const asked = std::getenv("VEXIL64_EXPERIMENTS");
        return asked == nullptr ? Usual : static_cast<unsigned>(std::strtoul(asked, nullptr, 10));
    }

    TempFolder folder;
    std::string file = folder.File("trip.dbc");
    std::map<std::string, std::size_t> counts;
};

TEST_F(NetworkTrip, KeepsTheRecordsOfTheSamples) {
    TryFolder(VEXIL64_SAMPLES);
}

TEST_F(NetworkTrip, KeepsTheRecordsOfTheFilesOfTheGoldenTests) {
    TryFolder(VEXIL64_GOLDEN);
}

TEST_F(NetworkTrip, KeepsTheRecordsOfFaultyNetworks) {
    for (unsigned seed = 0; seed < Experiments(); ++seed) {
        SCOPED_TRACE(seed);
        Read(RandomNetwork(seed));
        Try();
    }
}

TEST_F(NetworkTrip, KeepsTheRecordsOfAnyText) {
    constexpr std::size_t MostPieces = 60;
    for (unsigned seed = 0; seed < Experiments(); ++seed) {
        SCOPED_TRACE(seed);
        Read(RandomText(seed).File(MostPieces));
        Try();
    }
}

TEST_F(NetworkTrip, KeepsTheRecordsOfRealFiles) {
    const char* const corpus = std::getenv("VEXIL64_CORPUS");
    if (corpus == nullptr || *corpus == '\0') {
        GTEST_SKIP() << "VEXIL64_CORPUS is not set: set it to a folder of .dbc files to run "
                        "the tests with real files.";
    }
    TryFolder(corpus);
    std::cout << "Exceptions and the values that they changed:\n";
    for (const auto& [name, count] : counts) {
        std::cout << "  " << name << ": " << count << "\n";
    }
}

// Texts of all characters and the extremes of all numbers, as a host may append them.
class RandomRecords {
  public:
    explicit RandomRecords(unsigned seed) : engine(seed), texts(seed) {}

    CanMessageRecord Message() {
        CanMessageRecord record{};
        record.id = Whole();
        record.dlc = Whole();
        Fill(record.longName);
        Fill(record.transmitter);
        Fill(record.comment);
        if (record.longName[0] == '\0') {
            record.longName[0] = 'M';  // a document has no message without a name
        }
        return record;
    }

    CanSignalRecord Signal() {
        CanSignalRecord record{};
        Fill(record.longName);
        Fill(record.unit);
        Fill(record.receiverList);
        Fill(record.comment);
        record.multiplexType = Whole();
        record.multiplexValue = Whole();
        record.startBit = Whole();
        record.bitLength = Whole();
        record.byteOrder = Whole();
        record.valueType = Whole();
        record.factor = Real();
        record.offset = Real();
        record.minimum = Real();
        record.maximum = Real();
        record.startValue = static_cast<std::int32_t>(Whole());
        record.inactiveValue = static_cast<std::int32_t>(Whole());
        return record;
    }

    CanEnumRecord Description() {
        CanEnumRecord record{};
        record.value = static_cast<std::int32_t>(Whole());
        Fill(record.text);
        return record;
    }

    std::size_t Below(std::size_t limit) { return engine() % limit; }

  private:
    template <std::size_t Size>
    void Fill(char (&field)[Size]) {
        std::string text = texts.ValidText(Below(20));
        for (char& ch : text) {
            if (Below(20) == 0 && static_cast<unsigned char>(ch) < 0x80) {
                ch = static_cast<char>(1 + Below(0x7F));
            }
        }
        text.copy(field, Size - 1);  // the library drops a character that is cut off
    }

    std::uint32_t Whole() {
        switch (Below(4)) {
            case 0:
                return static_cast<std::uint32_t>(Below(5));
            case 1:
                return std::numeric_limits<std::uint32_t>::max();
            case 2:
                return std::uint32_t{1} << 31U;
            default:
                return static_cast<std::uint32_t>(engine());
        }
    }

    double Real() {
        static constexpr double Special[] = {0.0,
                                             -0.0,
                                             std::numeric_limits<double>::quiet_NaN(),
                                             -std::numeric_limits<double>::quiet_NaN(),
                                             std::numeric_limits<double>::infinity(),
                                             -std::numeric_limits<double>::infinity(),
                                             std::numeric_limits<double>::max(),
                                             std::numeric_limits<double>::denorm_min(),
                                             18446744073709551616.0,
                                             9007199254740993.0};
        if (Below(2) == 0) {
            return Special[Below(std::size(Special))];
        }
        const std::uint64_t bits = (std::uint64_t{engine()} << 32U) | engine();
        double number = 0;
        std::memcpy(&number, &bits, sizeof number);
        return number == number ? number : 1;  // the bits of a NaN other than its sign are lost
    }

    std::mt19937 engine;
    RandomText texts;
};

TEST_F(NetworkTrip, KeepsTheRecordsThatAHostAppends) {
    for (unsigned seed = 0; seed < Experiments(); ++seed) {
        SCOPED_TRACE(seed);
        RandomRecords random(seed);
        VexilClearData();
        for (std::uint32_t message = 0; message < 3; ++message) {
            const CanMessageRecord messageRecord = random.Message();
            ASSERT_EQ(VexilAppendCanMessage(&messageRecord), 1);
            for (std::uint32_t signal = 0; signal < 3; ++signal) {
                const CanSignalRecord signalRecord = random.Signal();
                ASSERT_EQ(VexilAppendCanSignalToCanMessage(message, &signalRecord), 1);
                for (std::size_t count = random.Below(4); count > 0; --count) {
                    const CanEnumRecord record = random.Description();
                    ASSERT_EQ(VexilAppendEnumToCanSignal(message, signal, &record), 1);
                }
            }
        }
        Try();
    }
}

// The exceptions are real: each has an example here.
TEST_F(NetworkTrip, ChangesWhatTheExceptionsSay) {
    std::string receivers = "No,";  // 255 bytes with the others, the last one a comma
    for (int node = 0; node < 63; ++node) {
        receivers += "Nod,";
    }
    std::string degrees;
    for (int count = 0; count < 20; ++count) {
        degrees += "\xC2\xB0";
    }
    Read("BO_ 1 A: 8 N\n SG_ S : 0|8@1+ (1,0) [0|1] \"" + degrees + "\" " + receivers +
         "More\n"
         "BA_DEF_ BO_ \"GenMsgCycleTime\" INT 0 100;\nBA_DEF_DEF_ \"GenMsgCycleTime\" 10;\n"
         "BA_DEF_ BO_ \"GenMsgSendType\" ENUM \"No\",\"Yes\";\nBA_ \"GenMsgSendType\" BO_ 1 1;\n"
         "BA_DEF_ BO_ \"Marrowby_Msg_Name\" STRING ;\n"
         "BA_ \"Marrowby_Msg_Name\" BO_ 1 \"A long name\";\n");
    Try();
    EXPECT_EQ(counts, (std::map<std::string, std::size_t>{{"cycle times", 1},
                                                          {"names", 1},
                                                          {"receivers that were cut", 1},
                                                          {"send types", 1},
                                                          {"units that were cut", 1}}));
}

}  // namespace
}  // namespace vexil::test
