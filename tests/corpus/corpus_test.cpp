// Tests with real files: every .dbc file of the folder that the environment variable VEXIL64_CORPUS
// names, through the library that was built. Without the variable they are skipped.
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "corpus/plain_scan.h"
#include "support/files.h"
#include "support/record_dump.h"
#include "vexil64.h"

namespace vexil::test {
namespace {

class Corpus : public testing::Test {
  protected:
    void SetUp() override {
        const char* folder = std::getenv("VEXIL64_CORPUS");
        if (folder == nullptr || *folder == '\0') {
            GTEST_SKIP() << "VEXIL64_CORPUS is not set: set it to a folder of .dbc files to run "
                            "the tests with real files.";
        }
        for (const auto& entry : std::filesystem::directory_iterator(folder)) {
            if (entry.path().extension() == ".dbc") {
                files.push_back(entry.path().string());
            }
        }
        std::sort(files.begin(), files.end());
        ASSERT_FALSE(files.empty()) << "no .dbc file in " << folder;
    }

    // What busType a file leaves must not depend on the file before it.
    static DatabaseRecords Read(const std::string& file) {
        const DatabaseInfo none = {};
        VexilSetDatabaseInfo(&none, sizeof none);
        EXPECT_EQ(ReadFile(file), GoodCall);
        return FetchDatabase();
    }

    // Writes what the library has and returns the bytes.
    std::string Write(std::uint32_t order) {
        EXPECT_EQ(WriteFile(written, order), GoodCall);
        return ReadBytes(written);
    }

    std::vector<std::string> files;
    TempFolder temp;
    std::string written = temp.File("written.dbc");
};

// The order in which the messages of a model are written.
void Sort(DatabaseRecords& model, std::uint32_t order) {
    const auto byId = [](const MessageRecords& one, const MessageRecords& other) {
        return one.record.id > other.record.id;
    };
    const auto byName = [](const MessageRecords& one, const MessageRecords& other) {
        return std::string_view(one.record.name) < std::string_view(other.record.name);
    };
    if (order == OrderByIdDescending) {
        std::stable_sort(model.messages.begin(), model.messages.end(), byId);
    } else if (order == OrderByNameAscending) {
        std::stable_sort(model.messages.begin(), model.messages.end(), byName);
    }
}

template <std::size_t Size>
void FillIfEmpty(char (&text)[Size]) {
    if (text[0] == '\0') {
        std::snprintf(text, Size, "%s", "Marrowby");
    }
}

void RoundToTenDigits(double& number) {
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "%.10g", number);
    number = std::strtod(text.data(), nullptr);
}

// Gives the fields that writing and reading changes the same value before and after: docs/format.md
// lists them, and the property tests check what becomes of them.
void DropWhatATripChanges(DatabaseRecords& database) {
    for (MessageRecords& message : database.messages) {
        message.record.longName[0] = '\0';
        message.record.sendType[0] = '\0';
        message.record.cycleTime = 0;
        FillIfEmpty(message.record.transmitter);
        for (auto& [signal, enums] : message.signals) {
            signal.longName[0] = '\0';
            signal.unitUtf8[0] = '\0';
            signal.startValue = 0;
            signal.inactiveValue = 0;
            FillIfEmpty(signal.receiverList);
            RoundToTenDigits(signal.factor);
            RoundToTenDigits(signal.offset);
            RoundToTenDigits(signal.minimum);
            RoundToTenDigits(signal.maximum);
            if (signal.valueType == ValueFloat32 || signal.valueType == ValueFloat64) {
                enums.clear();
                signal.enumCount = 0;
            }
        }
    }
}

TEST_F(Corpus, MakesAMessageOrAnErrorOfEachMessageStatement) {
    for (const std::string& file : files) {
        SCOPED_TRACE(file);
        const DatabaseRecords model = Read(file);
        const auto errors =
            std::count_if(model.errors.begin(), model.errors.end(),
                          [](const ParseError& error) { return error.code <= StepMessageSize; });
        const PlainScan scan = ScanPlainly(ReadBytes(file));
        EXPECT_EQ(model.messages.size() + static_cast<std::size_t>(errors), scan.messageStatements);
    }
}

// A refused statement costs the signals after it, so only files without one are compared.
TEST_F(Corpus, HasTheMessagesAndSignalsThatAPlainSearchFinds) {
    for (const std::string& file : files) {
        SCOPED_TRACE(file);
        const DatabaseRecords model = Read(file);
        std::vector<std::string> outline;
        for (const MessageRecords& message : model.messages) {
            std::ostringstream line;
            line << message.record.id << " " << message.record.longName << ": "
                 << message.record.dlc;
            outline.push_back(line.str());
            for (const SignalRecords& signal : message.signals) {
                line.str("");
                line << "  " << signal.record.longName;
                if (signal.record.multiplexType == MultiplexSelector) {
                    line << " <M>";
                } else if (signal.record.multiplexType == MultiplexSelected) {
                    line << " <m" << signal.record.multiplexValue << ">";
                }
                outline.push_back(line.str());
            }
        }
        if (model.errors.empty()) {
            EXPECT_EQ(outline, ScanPlainly(ReadBytes(file)).outline);
        } else {
            std::cout << file << ": not compared for its " << model.errors.size() << " errors\n";
        }
    }
}

TEST_F(Corpus, IsEqualAfterARoundTripExceptForListedFields) {
    for (const std::string& file : files) {
        for (const std::uint32_t order :
             {OrderByIdDescending, OrderByNameAscending, OrderAsStored}) {
            SCOPED_TRACE(file + " written in order " + std::to_string(order));
            Read(file);
            Write(order);
            // Fetched after the write, which has made the names unique.
            DatabaseRecords expected = FetchDatabase();
            Sort(expected, order);
            DatabaseRecords back = Read(written);
            DropWhatATripChanges(expected);
            DropWhatATripChanges(back);
            EXPECT_EQ(RecordText(back), RecordText(expected));
            EXPECT_EQ(ErrorText(back), "");
        }
    }
}

TEST_F(Corpus, IsWrittenWithTheSameBytesTwiceAndAfterARoundTrip) {
    for (const std::string& file : files) {
        for (const std::uint32_t order :
             {OrderByIdDescending, OrderByNameAscending, OrderAsStored}) {
            SCOPED_TRACE(file + " written in order " + std::to_string(order));
            Read(file);
            const std::string first = Write(order);
            EXPECT_FALSE(first.empty());
            EXPECT_TRUE(Write(order) == first);
            Read(written);
            EXPECT_TRUE(Write(order) == first);
        }
    }
}

TEST_F(Corpus, HasTheCommentsThatAPlainSearchFinds) {
    for (const std::string& file : files) {
        SCOPED_TRACE(file);
        const DatabaseRecords model = Read(file);
        const PlainScan scan = ScanPlainly(ReadBytes(file));
        const auto check = [&scan](const Owner& owner, std::string_view comment) {
            const auto found = scan.comments.find(owner);
            if (found == scan.comments.end()) {
                EXPECT_EQ(comment, "") << owner.first << " " << owner.second;
                return;
            }
            const PlainComment& plain = found->second;
            if (plain.statements == 1 && plain.onOneLine == 1 && plain.text.size() < LongTextSize) {
                EXPECT_EQ(comment, plain.text) << owner.first << " " << owner.second;
            } else {
                EXPECT_NE(comment, "") << owner.first << " " << owner.second;
            }
        };
        for (const MessageRecords& message : model.messages) {
            check({message.record.id, ""}, message.record.comment);
            for (const SignalRecords& signal : message.signals) {
                check({message.record.id, signal.record.longName}, signal.record.comment);
            }
        }
    }
}

TEST_F(Corpus, HasTheValueDescriptionsThatAPlainSearchFinds) {
    for (const std::string& file : files) {
        SCOPED_TRACE(file);
        const DatabaseRecords model = Read(file);
        const PlainScan scan = ScanPlainly(ReadBytes(file));
        for (const MessageRecords& message : model.messages) {
            for (const SignalRecords& signal : message.signals) {
                const Owner owner = {message.record.id, signal.record.longName};
                const auto plain = scan.values.find(owner);
                const PlainValues values =
                    plain == scan.values.end() ? PlainValues{} : plain->second;
                if (values.statements == values.onOneLine) {
                    std::set<std::int64_t> found;
                    for (const CanEnumRecord& entry : signal.enums) {
                        found.insert(entry.value);
                    }
                    EXPECT_EQ(found, values.values) << owner.first << " " << owner.second;
                }
            }
        }
    }
}

TEST_F(Corpus, HasTheCycleTimesThatAPlainSearchFinds) {
    for (const std::string& file : files) {
        SCOPED_TRACE(file);
        const DatabaseRecords model = Read(file);
        const PlainScan scan = ScanPlainly(ReadBytes(file));
        for (const MessageRecords& message : model.messages) {
            std::int32_t expected = 0;
            if (scan.hasCycleTimes) {
                const auto own = scan.cycleTimes.find(message.record.id);
                expected = own == scan.cycleTimes.end() ? scan.defaultCycleTime : own->second;
            }
            EXPECT_EQ(message.record.cycleTime, expected) << message.record.id;
        }
    }
}

}  // namespace
}  // namespace vexil::test
