// Taking statements out of texts.
// SPDX-License-Identifier: MIT
#include "tool/experiment.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <sstream>

#include "account/attribute_tokens.h"
#include "database/database_file.h"
#include "source/library_cut.h"

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
    // Some file systems flush a file that is emptied and written again, but not a new one.
    std::filesystem::remove(Utf8Path(file));
    WriteBytes(file, text);
    EXPECT_EQ(tool::ReadDatabase(file), "");
    return tool::TakeSnapshot();
}

std::string Experiment::Records(std::string_view text) {
    return Describe(Read(text));
}

namespace {

// What an experiment cannot show, each with its reason. The statements in question are few.
class Exceptions {
  public:
    Exceptions(const tool::Account& account, std::string_view text)
        : accounted(account), whole(text), cuts(tool::CutLikeLibrary(text)) {}

    std::string_view Of(std::size_t index) const {
        const tool::AccountedStatement& statement = accounted.statements[index];
        const std::size_t begin = BeginOf(index);
        const tool::LibraryStatement* const cut = CutAround(begin);
        const bool isOwn = cut != nullptr && cut->begin == begin;
        if ((cut != nullptr && Swallows(*cut)) || SwallowsInside(index)) {
            return "it swallows the next statement, or makes the one before it do so: without it "
                   "that "
                   "statement is back";
        }
        if (!isOwn && cut != nullptr && IsChangedOrWorse(OwnerOf(*cut))) {
            return "its text has become a part of the statement before it";
        }
        if (statement.keyword.starts_with("BA_") && HasTwin(index)) {
            return "another statement of the same attribute takes its place";
        }
        if (statement.keyword == "SIG_VALTYPE_" && HasTwin(index)) {
            return "another statement says the same of the signal";
        }
        return {};
    }

  private:
    std::size_t BeginOf(std::size_t index) const {
        return static_cast<std::size_t>(accounted.statements[index].text.data() - whole.data());
    }

    const tool::LibraryStatement* CutAround(std::size_t at) const {
        for (const tool::LibraryStatement& cut : cuts) {
            if (cut.begin <= at && at < cut.end) {
                return &cut;
            }
        }
        return nullptr;
    }

    // The statement in which a cut begins.
    std::size_t OwnerOf(const tool::LibraryStatement& cut) const {
        std::size_t owner = 0;
        while (owner + 1 < accounted.statements.size() && BeginOf(owner + 1) <= cut.begin) {
            ++owner;
        }
        return owner;
    }

    bool Swallows(const tool::LibraryStatement& cut) const {
        const std::size_t next = OwnerOf(cut) + 1;
        for (std::size_t index = next; index < accounted.statements.size(); ++index) {
            if (BeginOf(index) >= cut.end) {
                return false;
            }
            if (!accounted.statements[index].keyword.empty()) {
                return true;
            }
        }
        return false;
    }

    // A keyword inside the statement may swallow the next one as well.
    bool SwallowsInside(std::size_t index) const {
        const std::size_t begin = BeginOf(index);
        const std::size_t end = begin + accounted.statements[index].text.size();
        return std::any_of(cuts.begin(), cuts.end(), [&](const tool::LibraryStatement& cut) {
            return cut.begin >= begin && cut.begin < end && Swallows(cut);
        });
    }

    bool IsChangedOrWorse(std::size_t index) const {
        const tool::Cause cause = accounted.statements[index].cause;
        // An attribute statement may go on after its semicolon.
        return FateOf(cause) == tool::Fate::Changed || FateOf(cause) == tool::Fate::Refused ||
               FateOf(cause) == tool::Fate::Dropped ||
               accounted.statements[index].keyword.starts_with("BA_");
    }

    // What a statement is about: the attribute of the owner, without the value. The words of the
    // library count, which may go on after a semicolon.
    std::string SubjectOf(std::size_t index) const {
        const tool::LibraryStatement* const cut = CutAround(BeginOf(index));
        if (cut == nullptr || cut->begin != BeginOf(index)) {
            return {};
        }
        const auto tokens = tool::SplitAttribute(whole.substr(cut->begin, cut->end - cut->begin));
        const std::string_view owner = tokens.size() > 2 ? std::string_view(tokens[2].text) : "";
        const bool isValue = cut->keyword == tool::Keyword::Ba;
        const std::size_t words = cut->keyword == tool::Keyword::SigValtype ? 3
                                  : isValue && owner == "SG_"               ? 5
                                  : isValue && owner == "BO_"               ? 4
                                                                            : 2;
        std::string subject;
        for (std::size_t word = 1; word < tokens.size(); ++word) {
            const bool isName = tokens[word].tokenClass == tool::TokenClass::QuotedString;
            const bool isDefinition = !isValue && cut->keyword != tool::Keyword::SigValtype;
            if (isDefinition ? isName && subject.empty() : word < words) {
                // A name is what the quotes hold. The library skips bytes in front of them.
                subject += isName ? tool::QuotedContent(tokens[word].text) : tokens[word].text;
                subject += ' ';
            }
        }
        return subject;
    }

    bool HasTwin(std::size_t index) const {
        const std::string subject = SubjectOf(index);
        for (std::size_t other = 0; other < accounted.statements.size(); ++other) {
            if (other != index &&
                accounted.statements[other].keyword == accounted.statements[index].keyword &&
                SubjectOf(other) == subject) {
                return true;
            }
        }
        return false;
    }

    const tool::Account& accounted;
    std::string_view whole;
    std::vector<tool::LibraryStatement> cuts;
};

}  // namespace

std::vector<Contradiction> FindContradictions(Experiment& experiment, const std::string& text,
                                              std::size_t step) {
    const tool::SourceText source(text);
    const std::string cleaned(source.Text());
    const tool::Snapshot snapshot = experiment.Read(cleaned);
    const tool::SourceText cleanSource(cleaned);
    const tool::Account account = MakeAccount(cleanSource, snapshot);
    const std::string whole = Describe(snapshot);
    std::vector<Contradiction> found;
    const Exceptions exceptions(account, cleanSource.Text());
    const auto add = [&](std::size_t index, std::string_view what) {
        const tool::AccountedStatement& statement = account.statements[index];
        found.push_back({statement.cause, statement.line, std::string(statement.text),
                         std::string(what), exceptions.Of(index)});
    };
    for (std::size_t index = 0; index < account.statements.size(); index += step) {
        const tool::AccountedStatement& statement = account.statements[index];
        const tool::Fate fate = FateOf(statement.cause);
        const auto isSame = [&](std::string_view instead) {
            return experiment.Records(Without(cleanSource.Text(), statement.text, instead)) ==
                   whole;
        };
        if (fate == tool::Fate::Dropped || fate == tool::Fate::Ignored ||
            statement.cause == tool::Cause::KeptWithoutEffect) {
            if (!isSame(EmptyStatement) && !isSame("")) {
                add(index, "taking it out changes the records");
            }
        } else if (statement.cause == tool::Cause::Kept || fate == tool::Fate::Refused) {
            if (isSame(EmptyStatement)) {
                add(index, "taking it out changes nothing");
            }
        }
    }
    return found;
}

}  // namespace vexil::test
