// Taking statements out of texts.
// SPDX-License-Identifier: MIT
#include "tool/experiment.h"

#include <gtest/gtest.h>

#include <bit>
#include <sstream>

#include "database/database_file.h"

namespace vexil::test {
namespace {

std::string Describe(const tool::Snapshot& snapshot) {
    std::ostringstream out;
    const auto text = [&](tool::TextRef ref) { out << snapshot.Text(ref) << '\0'; };
    const auto number = [&](double value) { out << std::bit_cast<std::uint64_t>(value) << ' '; };
    out << snapshot.info.protocolType << ' ' << snapshot.info.busType << '\n';
    for (const tool::MessageFacts& message : snapshot.messages) {
        out << message.id << ' ' << message.dlc << ' ' << message.cycleTime << ' '
            << message.signalCount << ' ';
        text(message.name);
        text(message.longName);
        text(message.transmitter);
        text(message.comment);
        text(message.sendType);
        out << '\n';
    }
    for (const tool::SignalFacts& signal : snapshot.signals) {
        text(signal.name);
        text(signal.longName);
        text(signal.unit);
        text(signal.unitUtf8);
        text(signal.receiverList);
        text(signal.comment);
        out << signal.multiplexType << ' ' << signal.multiplexValue << ' ' << signal.startBit << ' '
            << signal.bitLength << ' ' << signal.byteOrder << ' ' << signal.valueType << ' '
            << signal.startValue << ' ' << signal.inactiveValue << ' ' << signal.descriptionCount
            << ' ';
        number(signal.factor);
        number(signal.offset);
        number(signal.minimum);
        number(signal.maximum);
        out << '\n';
    }
    for (const tool::DescriptionFacts& description : snapshot.descriptions) {
        out << description.value << ' ';
        text(description.text);
        out << '\n';
    }
    for (const tool::ErrorFacts& error : snapshot.errors) {
        out << error.code << ' ';
        text(error.text);
        out << '\n';
    }
    return out.str();
}

// The text without a statement, or with another one in its place.
std::string Without(std::string_view text, std::string_view statement, std::string_view instead) {
    const auto begin = static_cast<std::size_t>(statement.data() - text.data());
    std::string changed(text.substr(0, begin));
    changed += instead;
    changed += text.substr(begin + statement.size());
    return changed;
}

// A statement that says nothing, and whose keyword ends the statement before it as any other does.
constexpr std::string_view EmptyStatement = "BS_ ;";

}  // namespace

tool::Snapshot Experiment::Read(std::string_view text) {
    WriteBytes(file_, text);
    EXPECT_TRUE(tool::ReadDatabase(file_));
    return tool::TakeSnapshot();
}

std::string Experiment::Records(std::string_view text) {
    return Describe(Read(text));
}

std::vector<Contradiction> FindContradictions(Experiment& experiment, const std::string& text,
                                              std::size_t step) {
    const tool::SourceText source(text);
    const std::string cleaned(source.Text());
    const tool::Snapshot snapshot = experiment.Read(cleaned);
    const tool::SourceText cleanSource(cleaned);
    const tool::Account account = MakeAccount(cleanSource, snapshot);
    const std::string whole = Describe(snapshot);
    std::vector<Contradiction> found;
    for (std::size_t index = 0; index < account.statements.size(); index += step) {
        const tool::AccountedStatement& statement = account.statements[index];
        const tool::Fate fate = FateOf(statement.cause);
        const auto isSame = [&](std::string_view instead) {
            return experiment.Records(Without(cleanSource.Text(), statement.text, instead)) == whole;
        };
        if (fate == tool::Fate::Dropped || fate == tool::Fate::Ignored ||
            statement.cause == tool::Cause::KeptWithoutEffect) {
            if (!isSame(EmptyStatement) && !isSame("")) {
                found.push_back({statement, "taking it out changes the records"});
            }
        } else if (statement.cause == tool::Cause::Kept || fate == tool::Fate::Refused) {
            if (isSame(EmptyStatement)) {
                found.push_back({statement, "taking it out changes nothing"});
            }
        }
    }
    return found;
}

}  // namespace vexil::test
