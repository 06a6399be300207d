// Findings about the encoding of a file, and about names that are not unique.
// SPDX-License-Identifier: MIT
#include "account/file_findings.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "format/format.h"

namespace vexil::tool {
namespace {

// A name longer than this is cut when a number is added to it.
constexpr std::size_t LongestNumberedName = 27;

class Finder {
  public:
    Finder(const SourceText& source, const Account& account, const Snapshot& snapshot)
        : sourceText(source), accounted(account), database(snapshot) {}

    std::vector<Finding> Run() {
        LookAtBytes();
        LookAtMessages();
        for (std::uint32_t message = 0; message < accounted.messageStatements.size(); ++message) {
            LookAtSignals(database.messages[message]);
        }
        return std::move(findings);
    }

  private:
    // A signal, and the first signal of its message.
    struct Named {
        std::uint32_t firstSignal;
        std::uint32_t signal;
    };
    using SignalsByName = std::unordered_map<std::string_view, Named>;

    void Add(Cause cause, std::string detail) {
        findings.push_back({cause, 0, 0, std::move(detail)});
    }

    void AddAt(Cause cause, const AccountedStatement& statement, std::string detail) {
        findings.push_back({cause, statement.line, statement.column, std::move(detail)});
    }

    const AccountedStatement& MessageStatement(std::uint32_t message) const {
        return accounted.statements[accounted.messageStatements[message]];
    }

    const AccountedStatement& SignalStatement(std::uint32_t signal) const {
        return accounted.statements[accounted.signalStatements[signal]];
    }

    void LookAtBytes() {
        const bool hasStatement =
            std::any_of(accounted.statements.begin(), accounted.statements.end(),
                        [](const AccountedStatement& each) { return !each.keyword.empty(); });
        if (!hasStatement) {
            Add(Cause::NoStatement, Format("{} bytes", sourceText.Bytes().size()));
        }
        if (sourceText.ByteOrderMarkSize() != 0) {
            Add(Cause::ByteOrderMark, "");
        }
        const Utf16 utf16 = sourceText.LooksLikeUtf16();
        if (utf16 != Utf16::None) {
            Add(Cause::Utf16Text, utf16 == Utf16::LittleEndian ? "little-endian" : "big-endian");
        }
        const std::string_view bytes = sourceText.Bytes();
        const auto nuls = std::count(bytes.begin(), bytes.end(), '\0');
        if (nuls != 0 && utf16 == Utf16::None) {
            Add(Cause::NulBytes, Format("{} bytes", nuls));
        }
        if (sourceText.LinesEndWithCarriageReturn()) {
            Add(Cause::LoneCarriageReturns, Format("{} lines", sourceText.LoneCarriageReturns()));
        }
    }

    void LookAtMessages() {
        std::unordered_map<std::uint32_t, std::uint32_t> firstById;
        std::unordered_map<std::string_view, std::uint32_t> firstByName;
        for (std::uint32_t index = 0; index < accounted.messageStatements.size(); ++index) {
            const MessageFacts& message = database.messages[index];
            const auto [sameId, isNewId] = firstById.try_emplace(message.id, index);
            if (!isNewId) {
                const std::uint32_t first = sameId->second;
                AddAt(Cause::SameMessageId, MessageStatement(index),
                      Format("id {} as in line {}", message.id, MessageStatement(first).line));
                LookAtComments(first, index);
            }
            const std::string_view name = database.Text(message.name);
            const auto [sameName, isNewName] = firstByName.try_emplace(name, index);
            if (!isNewName) {
                AddAt(Cause::SameMessageName, MessageStatement(index),
                      Format("{} as in line {}", name, MessageStatement(sameName->second).line));
            }
        }
    }

    // For two messages with one id, both comments are written. When the file is read, each of them
    // applies to both messages.
    void LookAtComments(std::uint32_t first, std::uint32_t other) {
        const MessageFacts& one = database.messages[first];
        const MessageFacts& two = database.messages[other];
        if (one.comment.size != 0 || two.comment.size != 0) {
            AddAt(Cause::CommentsDouble, MessageStatement(other), Format("message {}", two.id));
        }
        const auto [signals, isFirst] = signalsById.try_emplace(one.id);
        if (isFirst) {
            LookAtSignalComments(one, signals->second);
        }
        LookAtSignalComments(two, signals->second);
    }

    // Texts that are joined because their statements apply to several owners.
    static bool HasTexts(const SignalFacts& facts) {
        return facts.comment.size != 0 || facts.descriptionCount != 0;
    }

    // Compares the signals of a message with those of earlier messages with its id, and adds them.
    void LookAtSignalComments(const MessageFacts& message, SignalsByName& signals) {
        for (std::uint32_t index = 0; index < message.signalCount; ++index) {
            const std::uint32_t signal = message.firstSignal + index;
            const SignalFacts& facts = database.signals[signal];
            const std::string_view name = database.Text(facts.name);
            const auto [same, isNew] =
                signals.try_emplace(name, Named{message.firstSignal, signal});
            if (!isNew && same->second.firstSignal != message.firstSignal &&
                (HasTexts(facts) || HasTexts(database.signals[same->second.signal]))) {
                AddAt(Cause::CommentsDouble, SignalStatement(signal),
                      Format("signal {} of message {}", name, message.id));
            }
        }
    }

    // Finds signals of one message with one name, which the next write numbers.
    void LookAtSignals(const MessageFacts& message) {
        std::vector<std::pair<std::string_view, std::uint32_t>> names;
        names.reserve(message.signalCount);
        for (std::uint32_t index = 0; index < message.signalCount; ++index) {
            const std::uint32_t signal = message.firstSignal + index;
            names.emplace_back(database.Text(database.signals[signal].name), signal);
        }
        std::sort(names.begin(), names.end());
        std::string_view front;  // of the last group of names that are equal after the cut
        for (std::size_t begin = 0; begin < names.size();) {
            std::size_t end = begin + 1;
            while (end < names.size() && names[end].first == names[begin].first) {
                AddSameName(names[begin].second, names[end].second);
                ++end;
            }
            const std::string_view name = names[begin].first;
            if (end - begin > 1 && name.size() > LongestNumberedName) {
                if (front == name.substr(0, LongestNumberedName)) {
                    AddAt(Cause::NamesCutToOne, SignalStatement(names[begin].second),
                          Format("all become {}_0000 and so on", front));
                }
                front = name.substr(0, LongestNumberedName);
            }
            begin = end;
        }
    }

    void AddSameName(std::uint32_t first, std::uint32_t signal) {
        const SignalFacts& one = database.signals[first];
        const SignalFacts& other = database.signals[signal];
        const bool isSame = database.Text(one.longName) == database.Text(other.longName);
        AddAt(isSame ? Cause::SameSignalName : Cause::NamesNumbered, SignalStatement(signal),
              Format("{} as in line {}", database.Text(one.name), SignalStatement(first).line));
    }

    const SourceText& sourceText;
    const Account& accounted;
    const Snapshot& database;
    std::vector<Finding> findings;
    std::unordered_map<std::uint32_t, SignalsByName> signalsById;  // of ids that are not unique
};

}  // namespace

std::vector<Finding> FindFileFindings(const SourceText& source, const Account& account,
                                      const Snapshot& snapshot) {
    return Finder(source, account, snapshot).Run();
}

}  // namespace vexil::tool
