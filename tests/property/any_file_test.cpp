// Any bytes as a file: the read succeeds, its records keep their rules, and the database can
// be written and read again.
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <filesystem>

#include "property/random_database.h"
#include "property/record_checks.h"
#include "support/files.h"

namespace vexil::test {
namespace {

constexpr int Files = 800;

constexpr auto Tokens = Texts(
    "BO_ ", "SG_ ", "CM_ ", "VAL_ ", "SIG_VALTYPE_ ", "BA_ ", "BA_DEF_ ", "BA_DEF_DEF_ ", "BU_ ",
    "VERSION ", "NS_ ", "1 ", "2 ", "007 ", "A ", "B ", "M ", "m1 ", "Speed ", ": ", ":", ":8 ",
    "0|8@1+ ", "0|32@1- ", "64|64@0- ", "8@1 ", "|", "@", "(1,0) ", "(0.1,-4) ", "[0|1] ",
    "[7|-7] ", "\"\" ", "\"V\" ", "\"", "\\\"", "N ", "A,B ", ",", ";", ";\n", "\n", "\n", "\r\n",
    "\t", "0 \"zero\" ", "-1 \"x\" ", "x \"y\" ", "\"BusType\" ", "\"GenMsgCycleTime\" ",
    "\"GenMsgSendType\" ", "\"GenSigStartValue\" ", "\"Marrowby_Msg_Name\" ",
    "\"Marrowby_Sig_Name\" ", "INT 0 9 ", "STRING ", "ENUM \"a\",\"b\" ", "\"CAN FD\" ", "5 ",
    "\xC3\xA4", "\xF0\x9F\x99\x82", "\xE2\x82", "\xFF", "\x01", "1e999", "nan", "BO_ 1 A: 8 B\n",
    " SG_ S : 0|32@1- (1,0) [0|1] \"\" N\n");

class AnyFile : public testing::Test {
  protected:
    AnyFile() { Clear(); }
    ~AnyFile() override { Clear(); }

    static void Clear() {
        VexilClearData();
        const DatabaseInfo plain{};
        VexilSetDatabaseInfo(&plain, sizeof plain);
    }

    std::uint32_t BufferSize() const { return static_cast<std::uint32_t>(path.size() + 1); }

    void Read() const {
        std::uint32_t code = 99;
        ASSERT_EQ(VexilReadDbcFile(path.c_str(), BufferSize(), &code), 1);
        ASSERT_EQ(code, StateClosed);
        ASSERT_EQ(BrokenRule(FetchDatabase()), "");
    }

    // Takes the file away: to empty one that is there costs some systems a trip to the disk.
    void RemoveFile() const { std::filesystem::remove(path); }

    void ExpectSound(Random& random, const std::string& bytes) const {
        Clear();
        RemoveFile();
        WriteBytes(path, bytes);
        ASSERT_NO_FATAL_FAILURE(Read());
        const bool isEmpty = VexilGetNumCanMessages() == 0;
        if (!isEmpty) {
            RemoveFile();
        }
        std::uint32_t code = 99;
        ASSERT_EQ(VexilWriteDbcFile(path.c_str(), BufferSize(), random.Below(4), &code),
                  isEmpty ? 0 : 1);
        ASSERT_EQ(code, StateClosed);
        ASSERT_EQ(BrokenRule(FetchDatabase()), "");
        if (isEmpty) {
            ASSERT_EQ(ReadBytes(path), bytes);
        }
        ASSERT_NO_FATAL_FAILURE(Read());
    }

    // Checks so many files of bytes(random).
    template <typename Bytes>
    void Repeat(Bytes bytes) {
        for (int round = 0; round < Files && !HasFatalFailure(); ++round) {
            const std::uint32_t seed = Seed() + static_cast<std::uint32_t>(round);
            Random random(seed);
            const std::string file = bytes(random);
            SCOPED_TRACE("VEXIL64_TEST_SEED=" + std::to_string(seed) + '\n' + QuotedText(file));
            ExpectSound(random, file);
        }
    }

    // A file that the library wrote from a random database.
    std::string WrittenFile(Random& random) const {
        Clear();
        RemoveFile();
        AppendRandomDatabase(random);
        std::uint32_t code = 99;
        EXPECT_EQ(VexilWriteDbcFile(path.c_str(), BufferSize(), OrderAsStored, &code), 1);
        return ReadBytes(path);
    }

    TempFolder folder;
    std::string path = folder.File("any.dbc");
};

std::string RandomBytes(Random& random, std::uint32_t maxSize) {
    std::string bytes(random.Below(maxSize + 1), '\0');
    for (char& byte : bytes) {
        byte = static_cast<char>(random.Below(256));
    }
    return bytes;
}

std::string RandomTokens(Random& random, std::uint32_t maxCount) {
    std::string tokens;
    for (std::uint32_t count = random.Below(maxCount + 1); count != 0; --count) {
        tokens += random.Of(Tokens);
    }
    return tokens;
}

TEST_F(AnyFile, OfRandomBytesIsReadAndWritten) {
    Repeat([](Random& random) { return RandomBytes(random, 600); });
}

TEST_F(AnyFile, OfPiecesOfStatementsIsReadAndWritten) {
    Repeat([](Random& random) { return RandomTokens(random, random.OneIn(20) ? 2000 : 120); });
}

TEST_F(AnyFile, WithRandomChangesOfAWrittenFileIsReadAndWritten) {
    Repeat([this](Random& random) {
        std::string file = WrittenFile(random);
        for (std::uint32_t change = 1 + random.Below(12); change != 0 && !file.empty(); --change) {
            const std::size_t at = random.Below(static_cast<std::uint32_t>(file.size()));
            const std::size_t count = random.Below(random.OneIn(4) ? 200 : 4);
            switch (random.Below(4)) {
                case 0:
                    file[at] = static_cast<char>(random.Below(256));
                    break;
                case 1:
                    file.erase(at, count);
                    break;
                case 2:
                    file.insert(at, random.Of(Tokens));
                    break;
                default:
                    file.insert(random.Below(static_cast<std::uint32_t>(file.size())),
                                file.substr(at, count));
                    break;
            }
        }
        return file;
    });
}

}  // namespace
}  // namespace vexil::test
