// vexil64.hpp: reading, iterating and writing.
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <type_traits>
#include <vector>

#include "support/files.h"
#include "vexil64.hpp"

namespace vexil::test {
namespace {

constexpr std::string_view Network =
    "BO_ 256 Engine: 8 ECM\n"
    " SG_ Page M : 0|8@1+ (1,0) [0|2] \"\" TCM\n"
    " SG_ Torque m1 : 15|12@0- (0.5,-4) [-1024|1023.5] \"N\xC2\xB7m\" TCM,ABS\n"
    "BO_ 2566834942 Charger: 4 BMS\n"
    "BO_ x Refused: 8 ECM\n"
    "BO_ 512 Empty: 0 ECM\n"
    " SG_ Bad 0|8@1+ (1,0) [0|2] \"\" TCM\n"
    "CM_ BO_ 256 \"State of the \"engine\"\";\n"
    "CM_ SG_ 256 Torque \"At the shaft\";\n"
    "BA_DEF_ BO_ \"GenMsgCycleTime\" INT 0 1000;\n"
    "BA_DEF_ BO_ \"GenMsgSendType\" ENUM \"Cyclic\",\"OnChange\";\n"
    "BA_DEF_ SG_ \"GenSigStartValue\" INT 0 1000;\n"
    "BA_DEF_ SG_ \"GenSigInactiveValue\" INT 0 1000;\n"
    "BA_DEF_ BO_ \"Marrowby_Msg_Name\" STRING ;\n"
    "BA_DEF_ SG_ \"Marrowby_Sig_Name\" STRING ;\n"
    "BA_ \"GenMsgCycleTime\" BO_ 256 20;\n"
    "BA_ \"GenMsgSendType\" BO_ 256 1;\n"
    "BA_ \"GenSigStartValue\" SG_ 256 Torque 7;\n"
    "BA_ \"GenSigInactiveValue\" SG_ 256 Torque 8;\n"
    "BA_ \"Marrowby_Msg_Name\" BO_ 256 \"Engine state\";\n"
    "BA_ \"Marrowby_Sig_Name\" SG_ 256 Torque \"Engine torque\";\n"
    "VAL_ 256 Page 2 \"Faults\" 0 \"Fuel\" 1 \"Boost\";\n";

class CppHeader : public testing::Test {
  protected:
    CppHeader() { WriteBytes(file, Network); }
    ~CppHeader() override { vexil64::clear(); }

    TempFolder folder;
    std::string file = folder.File("network.dbc");
};

using CppReadTest = CppHeader;
using CppWriteTest = CppHeader;

TEST_F(CppReadTest, IteratesOverTheMessages) {
    vexil64::read(file);
    std::vector<std::string> names;
    for (const vexil64::Message& message : vexil64::messages()) {
        names.emplace_back(message.name());
        EXPECT_EQ(message.index(), names.size() - 1);
    }
    EXPECT_EQ(names, std::vector<std::string>({"Engine", "Charger", "Empty"}));
    EXPECT_EQ(vexil64::messages().size(), 3U);
    EXPECT_FALSE(vexil64::messages().empty());
}

TEST_F(CppReadTest, ReturnsTheFieldsOfAMessage) {
    vexil64::read(file);
    const vexil64::Message message = vexil64::messages().at(0);
    EXPECT_EQ(message.id(), 256U);
    EXPECT_EQ(message.frame_id(), 256U);
    EXPECT_FALSE(message.is_extended());
    EXPECT_EQ(message.name(), "Engine");
    EXPECT_EQ(message.long_name(), "Engine state");
    EXPECT_EQ(message.transmitter(), "ECM");
    EXPECT_EQ(message.comment(), R"(State of the \"engine\")");
    EXPECT_EQ(message.send_type(), "OnChange");
    EXPECT_EQ(message.cycle_time(), 20);
    EXPECT_EQ(message.dlc(), 8U);
    EXPECT_EQ(message.record().signalCount, 2U);
}

TEST_F(CppReadTest, SeparatesTheExtendedBitFromTheId) {
    vexil64::read(file);
    const vexil64::Message charger = vexil64::messages().at(1);
    EXPECT_TRUE(charger.is_extended());
    EXPECT_EQ(charger.id(), 2566834942U);
    EXPECT_EQ(charger.frame_id(), 2566834942U - 0x80000000U);
    const vexil64::Message plain = vexil64::append(vexil64::NewMessage(0x7FFFFFFF, "Plain"));
    EXPECT_FALSE(plain.is_extended());
    EXPECT_EQ(plain.frame_id(), 0x7FFFFFFFU);
}

TEST_F(CppReadTest, ReturnsTheFieldsOfASignal) {
    vexil64::read(file);
    const vexil64::Message message = vexil64::messages().at(0);
    EXPECT_EQ(message.signals().size(), 2U);
    const vexil64::Signal signal = message.signals().at(1);
    EXPECT_EQ(signal.message_index(), 0U);
    EXPECT_EQ(signal.index(), 1U);
    EXPECT_EQ(signal.name(), "Torque");
    EXPECT_EQ(signal.long_name(), "Engine torque");
    EXPECT_EQ(signal.unit(), "N\xC2\xB7m");
    EXPECT_EQ(signal.receivers(), "TCM,ABS");
    EXPECT_EQ(signal.comment(), "At the shaft");
    EXPECT_EQ(signal.multiplex_type(), MultiplexSelected);
    EXPECT_EQ(signal.multiplex_value(), 1U);
    EXPECT_EQ(signal.start_bit(), 15U);
    EXPECT_EQ(signal.bit_length(), 12U);
    EXPECT_EQ(signal.byte_order(), ByteOrderBigEndian);
    EXPECT_EQ(signal.value_type(), ValueSigned);
    EXPECT_EQ(signal.factor(), 0.5);
    EXPECT_EQ(signal.offset(), -4);
    EXPECT_EQ(signal.minimum(), -1024);
    EXPECT_EQ(signal.maximum(), 1023.5);
    EXPECT_EQ(signal.start_value(), 7);
    EXPECT_EQ(signal.inactive_value(), 8);
    EXPECT_STREQ(signal.record().unit, "N_m");
}

TEST_F(CppReadTest, IteratesOverTheDescriptionsByValue) {
    vexil64::read(file);
    const vexil64::Message message = vexil64::messages().at(0);
    std::vector<std::pair<std::int32_t, std::string>> found;
    for (const vexil64::Description& description : message.signals().at(0).descriptions()) {
        found.emplace_back(description.value(), description.text());
    }
    EXPECT_EQ(found, (std::vector<std::pair<std::int32_t, std::string>>{
                         {0, "Fuel"}, {1, "Boost"}, {2, "Faults"}}));
    EXPECT_TRUE(message.signals().at(1).descriptions().empty());
    EXPECT_EQ(message.signals().at(0).descriptions().at(2).value(), 2);
}

TEST_F(CppReadTest, ReturnsTheStatementsThatWereRefused) {
    const auto errors = vexil64::read(file);
    ASSERT_EQ(errors.size(), 2U);
    const vexil64::StatementError first = errors.at(0);
    EXPECT_EQ(first.code(), StepMessageId);
    EXPECT_EQ(first.line(), 5U);
    EXPECT_EQ(first.text(), "BO_ x Refused: 8 ECM");
    EXPECT_EQ(errors.at(1).code(), StepSignalName);
    EXPECT_EQ(errors.at(1).line(), 7U);
    EXPECT_EQ(vexil64::errors().size(), 2U);
}

TEST_F(CppReadTest, ReturnsTheFirstLineOfAStatement) {
    WriteBytes(file, "BO_ x\nRefused: 8 ECM\nBO_ 1 Sound: 8 ECM\n");
    const vexil64::StatementError error = vexil64::read(file).at(0);
    EXPECT_EQ(error.text(), "BO_ x\nRefused: 8 ECM");
    EXPECT_EQ(error.first_line(), "BO_ x");
}

TEST_F(CppReadTest, FindsAMessageByItsIdAndASignalByItsName) {
    vexil64::read(file);
    const std::optional<vexil64::Message> engine = vexil64::find_message(256);
    ASSERT_TRUE(engine);
    EXPECT_EQ(engine->name(), "Engine");
    EXPECT_FALSE(vexil64::find_message(257));
    const std::optional<vexil64::Signal> torque = vexil64::find_signal(*engine, "Torque");
    ASSERT_TRUE(torque);
    EXPECT_EQ(torque->index(), 1U);
    EXPECT_FALSE(vexil64::find_signal(*engine, "torque"));
}

TEST_F(CppReadTest, DoesNotChangeAnItemInLaterCalls) {
    vexil64::read(file);
    const vexil64::Message message = vexil64::messages().at(0);
    const std::string_view name = message.name();
    vexil64::clear();
    EXPECT_EQ(name, "Engine");
    EXPECT_TRUE(message.signals().empty());
    EXPECT_EQ(message.signals().begin(), message.signals().end());
    EXPECT_TRUE(vexil64::messages().empty());
    EXPECT_TRUE(vexil64::errors().empty());
}

TEST_F(CppReadTest, ThrowsOnAnOutOfRangeIndex) {
    vexil64::read(file);
    EXPECT_THROW(vexil64::messages().at(3), std::out_of_range);
    EXPECT_THROW(vexil64::errors().at(2), std::out_of_range);
    EXPECT_THROW(vexil64::messages().at(1).signals().at(0), std::out_of_range);
    EXPECT_THROW(vexil64::messages().at(0).signals().at(1).descriptions().at(0), std::out_of_range);
}

TEST_F(CppReadTest, HasIteratorsForAlgorithms) {
    vexil64::read(file);
    const auto messages = vexil64::messages();
    EXPECT_EQ(std::distance(messages.begin(), messages.end()), 3);
    const auto found = std::find_if(messages.begin(), messages.end(),
                                    [](const auto& message) { return message.dlc() == 4; });
    ASSERT_NE(found, messages.end());
    EXPECT_EQ(found->name(), "Charger");
    auto position = found;
    EXPECT_EQ(position++, found);
    EXPECT_NE(position, found);
    EXPECT_EQ(position->name(), "Empty");
    EXPECT_EQ(++position, messages.end());
}

// Detects whether a function compiles on a temporary item.
template <typename Item>
concept TextOfATemporary = requires {
    Item().text();
}
|| requires {
    Item().first_line();
}
|| requires {
    Item().name();
}
|| requires {
    Item().long_name();
}
|| requires {
    Item().unit();
}
|| requires {
    Item().receivers();
}
|| requires {
    Item().comment();
}
|| requires {
    Item().transmitter();
}
|| requires {
    Item().send_type();
}
|| requires {
    Item().record();
};

TEST_F(CppReadTest, DoesNotReturnTextsOfTemporaryItems) {
    EXPECT_FALSE(TextOfATemporary<vexil64::Message>);
    EXPECT_FALSE(TextOfATemporary<vexil64::Signal>);
    EXPECT_FALSE(TextOfATemporary<vexil64::Description>);
    EXPECT_FALSE(TextOfATemporary<vexil64::StatementError>);
    EXPECT_TRUE(requires(const vexil64::Message& message) { message.name(); });
}

#ifdef __cpp_lib_ranges
TEST_F(CppReadTest, HasRangesThatAreViews) {
    using Messages = vexil64::Range<vexil64::Message>;
    EXPECT_TRUE(std::ranges::input_range<Messages>);
    EXPECT_FALSE(std::ranges::forward_range<Messages>);
    EXPECT_TRUE(std::ranges::view<Messages>);
    EXPECT_TRUE(std::ranges::borrowed_range<Messages>);
    EXPECT_TRUE(std::ranges::common_range<Messages>);
}
#endif

// Returns the result code of the exception that an operation throws.
template <typename Operation>
std::uint32_t ThrownCode(const Operation& operation) {
    try {
        operation();
    } catch (const vexil64::Error& error) {
        return error.code();
    }
    ADD_FAILURE() << "nothing was thrown";
    return 0;
}

TEST_F(CppReadTest, ThrowsTheResultCodeOfAPath) {
    struct Row {
        std::string path;
        std::uint32_t code;
    };
    for (const auto& [path, code] :
         {Row{"", StatePathEmpty}, Row{std::string(259, 'x'), StateOpenFailed},
          Row{std::string(260, 'x'), StatePathTooLong},
          Row{std::string(70000, 'x'), StatePathTooLong}, Row{"not \xFF UTF-8", StatePathInvalid},
          Row{file + std::string("\0", 1), StatePathInvalid},
          Row{folder.File("absent"), StateOpenFailed}}) {
        vexil64::read(file);
        EXPECT_EQ(ThrownCode([&, &path = path] { vexil64::read(path); }), code) << path;
        EXPECT_TRUE(vexil64::messages().empty()) << path;
        const vexil64::Result result = vexil64::try_read(path);
        EXPECT_FALSE(result) << path;
        EXPECT_EQ(result.code, code) << path;
    }
}

TEST_F(CppReadTest, NamesTheOperationAndTheReason) {
    try {
        vexil64::read("no/such/file");
        FAIL() << "nothing was thrown";
    } catch (const std::exception& error) {
        EXPECT_STREQ(error.what(),
                     "cannot read \"no/such/file\": the system could not open the file (result "
                     "code 6)");
    }
}

TEST_F(CppReadTest, RefusesANullPathBeforeClearingTheDatabase) {
    vexil64::read(file);
    const char* const null = nullptr;
    EXPECT_THROW(vexil64::read(null), std::invalid_argument);
    EXPECT_THROW(vexil64::try_read(null), std::invalid_argument);
    EXPECT_EQ(vexil64::messages().size(), 3U);
    EXPECT_FALSE((std::is_constructible_v<vexil64::Text, std::nullptr_t>));
}

TEST_F(CppReadTest, AcceptsEachTypeOfText) {
    const std::string_view view(file);
    EXPECT_TRUE(vexil64::try_read(file));
    EXPECT_TRUE(vexil64::try_read(view));
    EXPECT_TRUE(vexil64::try_read(file.c_str()));
    EXPECT_TRUE(vexil64::try_read((file + "tail").substr(0, file.size())));
    // A part of a longer text, without a NUL at its end.
    const std::string longer = file + "tail";
    EXPECT_TRUE(vexil64::try_read(std::string_view(longer).substr(0, file.size())));
    EXPECT_EQ(vexil64::try_read(file).code, StateClosed);
}

TEST_F(CppReadTest, ReturnsTheVersionAndTheDatabaseInfo) {
    EXPECT_EQ(vexil64::version(), VexilGetLibraryVersion());
    vexil64::set_info({ProtocolJ1939, BusCanFd});
    EXPECT_EQ(vexil64::info().protocolType, ProtocolJ1939);
    EXPECT_EQ(vexil64::info().busType, BusCanFd);
    vexil64::set_info({});
}

TEST_F(CppWriteTest, WritesInTheGivenOrder) {
    vexil64::read(file);
    const std::string written = folder.File("written.dbc");
    const auto names = [&] {
        vexil64::read(written);
        std::string all;
        for (const auto& message : vexil64::messages()) {
            all += std::string(message.name()) + " ";
        }
        return all;
    };
    vexil64::write(written);
    EXPECT_EQ(names(), "Engine Charger Empty ");
    vexil64::write(written, OrderByNameAscending);
    EXPECT_EQ(names(), "Charger Empty Engine ");
    EXPECT_TRUE(vexil64::try_write(written, OrderByIdDescending));
    EXPECT_EQ(names(), "Charger Empty Engine ");
}

TEST_F(CppWriteTest, ThrowsTheResultCode) {
    EXPECT_EQ(ThrownCode([&] { vexil64::write(file); }), StateClosed);
    EXPECT_FALSE(vexil64::try_write(file));
    EXPECT_EQ(ReadBytes(file), Network);
    vexil64::read(file);
    EXPECT_EQ(ThrownCode([] { vexil64::write(""); }), StatePathEmpty);
    EXPECT_EQ(ThrownCode([&] { vexil64::write(folder.File("no/folder")); }), StateOpenFailed);
    EXPECT_EQ(ThrownCode([&] { vexil64::write(file + std::string("\0x", 2)); }), StatePathInvalid);
    EXPECT_EQ(vexil64::messages().size(), 3U);
}

TEST_F(CppWriteTest, NamesTheOperationAndTheReason) {
    try {
        vexil64::write("nowhere.dbc");
        FAIL() << "nothing was thrown";
    } catch (const vexil64::Error& error) {
        EXPECT_STREQ(error.what(),
                     "cannot write \"nowhere.dbc\": there is no message to write (result code 2)");
    }
}

}  // namespace
}  // namespace vexil::test
