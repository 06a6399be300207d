// Tests of how CM_ SG_, VAL_ and SIG_VALTYPE_ statements find their signals: generated files, read
// by the library and by a plain twin that walks all signals for each statement. The names are built
// from few letters and white space, so that many are equal, begin another, or are empty, and the
// ids from few numbers, so that messages share them. The files come from seeds and are the same
// everywhere.
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <cstdint>
#include <initializer_list>
#include <map>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "frame/can_database.h"
#include "support/dump.h"
#include "support/read_text.h"
#include "text/lexical.h"

namespace vexil {
namespace {

using test::Concat;
using test::Quoted;

// -- The twin --

constexpr std::string_view WhiteSpace = " \f\n\r\t\v";

struct TwinSignal {
    std::string name;
    std::uint32_t length = 0;
    std::uint32_t valueType = 0;
    std::string comment;
    std::map<std::int32_t, std::string> enums;
};

struct TwinMessage {
    std::uint32_t id = 0;
    std::vector<TwinSignal> signals;
};

std::string Stripped(const std::string& text) {
    const std::size_t first = text.find_first_not_of(WhiteSpace);
    return first == std::string::npos
               ? ""
               : text.substr(first, text.find_last_not_of(WhiteSpace) - first + 1);
}

// Each operation takes what stands behind the id of the statement, its first white space included.

void TwinComment(TwinSignal& signal, const std::string& rest) {
    const std::size_t first = rest.find('"');
    const std::size_t last = rest.rfind('"');
    if (first == std::string::npos || Stripped(rest.substr(0, first)) != signal.name) {
        return;
    }
    if (last > first) {
        signal.comment += rest.substr(first + 1, last - first - 1);
    }
}

// The text behind the name of the signal, or none where it does not stand at the front of rest.
bool BehindName(const TwinSignal& signal, const std::string& rest, std::string& behind) {
    const std::size_t start = rest.find_first_not_of(WhiteSpace);
    if (start == std::string::npos) {
        return false;
    }
    behind = rest.substr(start);
    if (!behind.starts_with(signal.name)) {
        return false;
    }
    behind.erase(0, signal.name.size());
    return !behind.empty() && WhiteSpace.find(behind.front()) != std::string_view::npos;
}

void TwinValueType(TwinSignal& signal, const std::string& rest) {
    std::string behind;
    if (!BehindName(signal, rest, behind)) {
        return;
    }
    behind.erase(0, behind.find_first_not_of(WhiteSpace));
    const std::size_t semicolon = behind.find(';');
    std::uint32_t number = 0;
    if (!behind.starts_with(":") || semicolon == std::string::npos ||
        !TryParseU32(behind.substr(1, semicolon - 1), number)) {
        return;
    }
    if (number == 1 && signal.length == 32) {
        signal.valueType = 2;
    }
    if (number == 2 && signal.length == 64) {
        signal.valueType = 3;
    }
}

void TwinDescriptions(TwinSignal& signal, const std::string& rest) {
    std::string text;
    if (!BehindName(signal, rest, text)) {
        return;
    }
    for (std::size_t quote = text.find('"'); quote != std::string::npos; quote = text.find('"')) {
        std::int32_t value = 0;
        const bool isNumber = TryParseI32(text.substr(0, quote), value);
        text.erase(0, quote + 1);
        if (!isNumber) {
            continue;
        }
        const std::size_t closing = text.find('"');
        const std::string description = closing == std::string::npos ? "" : text.substr(0, closing);
        const auto [entry, isNew] = signal.enums.try_emplace(value, description);
        if (!isNew) {
            entry->second += Concat(" - ", description);
        }
        text.erase(0, closing == std::string::npos ? closing : closing + 1);
    }
}

// -- The generator --

class Generator {
  public:
    explicit Generator(std::uint32_t seed) : random(seed) {}

    // The text of the file, and in messages what the twin makes of it.
    std::string Make() {
        AddMessage();
        for (std::uint32_t count = 40 + Below(80); count > 0; --count) {
            switch (Below(9)) {
                case 0:
                case 1:
                    AddMessage();
                    break;
                case 2:
                    AddSignals();
                    break;
                case 3:
                case 4:
                    AddLookup("CM_ SG_ ", Comment(), TwinComment);
                    break;
                case 5:
                case 6:
                    AddLookup("SIG_VALTYPE_ ", ValueType(), TwinValueType);
                    break;
                default:
                    AddLookup("VAL_ ", Descriptions(), TwinDescriptions);
                    break;
            }
        }
        return text;
    }

    std::vector<TwinMessage> messages;

  private:
    std::uint32_t Below(std::uint32_t limit) {
        return static_cast<std::uint32_t>(random()) % limit;
    }

    std::string_view OneOf(const std::vector<std::string_view>& choices) {
        return choices[Below(static_cast<std::uint32_t>(choices.size()))];
    }

    // One text of each list, in their order.
    std::string Phrase(std::initializer_list<std::vector<std::string_view>> lists) {
        std::string phrase;
        for (const auto& choices : lists) {
            phrase += OneOf(choices);
        }
        return phrase;
    }

    std::uint32_t Id() { return 1 + Below(3); }

    // A name with the white space around it that its statement may have.
    std::string Name() {
        constexpr std::string_view Letters = "aaab1 \t\n";
        std::string name;
        for (std::uint32_t length = Below(4); length > 0; --length) {
            name += Letters[Below(Letters.size())];
        }
        const bool isLong = Below(40) == 0;
        return isLong ? Concat("long_names_are_told_apart_beyond_32", name) : name;
    }

    void AddMessage() {
        messages.push_back({Id(), {}});
        text += Concat("BO_ ", std::to_string(messages.back().id), " x: 8 N\n");
        signalOwnerOpen = true;
        if (Below(4) != 0) {
            AddSignals();
        }
    }

    // Behind a statement of another kind the signals are lost, for the twin as for the library.
    void AddSignals() {
        const std::uint32_t most = Below(8) == 0 ? 60 : 4;
        for (std::uint32_t count = 1 + Below(most); count > 0; --count) {
            const std::string name = Name();
            const std::string_view length = OneOf({"8", "32", "32", "64", "64"});
            text += Concat(" SG_ ", name, ": 0|", length, "@1+ (1,0) [0|1] \"\" N\n");
            if (signalOwnerOpen) {
                TwinSignal signal;
                signal.name = Stripped(name);
                TryParseU32(length, signal.length);
                messages.back().signals.push_back(signal);
            }
        }
    }

    // A statement about a name, which is mostly that of a signal.
    template <typename Operation>
    void AddLookup(std::string_view keywords, const std::string& end, Operation operation) {
        std::uint32_t id = Id();
        std::string name = Name();
        const TwinMessage& message = messages[Below(static_cast<std::uint32_t>(messages.size()))];
        if (!message.signals.empty() && Below(4) != 0) {
            id = message.id;
            name = message.signals[Below(static_cast<std::uint32_t>(message.signals.size()))].name;
        }
        const std::string rest = Concat(OneOf({" ", " ", "\t", "\n "}), name, end, "\n");
        text += Concat(keywords, std::to_string(id), rest);
        signalOwnerOpen = false;
        for (TwinMessage& owner : messages) {
            for (TwinSignal& signal : owner.signals) {
                if (owner.id == id) {
                    operation(signal, rest);
                }
            }
        }
    }

    std::string Comment() {
        return Phrase({{" ", "", "\t", " a"},
                       {"\"", "\"", "\"", ""},
                       {"p", "q r", "", "p\nq"},
                       {"\"", "\"", "\"", ""},
                       {";"}});
    }

    std::string ValueType() {
        return Phrase({{" ", " ", " ", "\n", " ", ""},
                       {":", ":", ":", ":", ""},
                       {" ", ""},
                       {"1", "2", "1", "2", "1", "2", "0", "x"},
                       {";", ";", ";", ";", ";", ""}});
    }

    std::string Descriptions() {
        std::string pairs;
        for (std::uint32_t count = Below(4); count > 0; --count) {
            pairs += Phrase({{" ", " ", " ", "\n", ""},
                             {"0", "1", "-1", "x", "a 1"},
                             {" \""},
                             {"p", "q r", "", "1"},
                             {"\"", "\"", "\"", ""}});
        }
        return pairs + ";";
    }

    std::mt19937 random;
    std::string text;
    bool signalOwnerOpen = false;
};

// -- The comparison --

// What the three kinds of statements decide of a signal.
std::string Line(std::uint32_t id, std::string_view name, std::uint32_t valueType,
                 std::string_view comment, std::string_view enums) {
    return Concat(std::to_string(id), " ", Quoted(name), " type ", std::to_string(valueType), " ",
                  Quoted(comment), " ", enums);
}

class OwnerLookup : public test::DatabaseTest {};

TEST_F(OwnerLookup, FindsTheSignalsThatAWalkThroughAllOfThemFinds) {
    std::size_t comments = 0;
    std::size_t floats = 0;
    std::size_t enums = 0;
    for (std::uint32_t seed = 1; seed <= 300; ++seed) {
        Generator generator(seed);
        const std::string text = generator.Make();
        std::vector<std::string> expected;
        for (const TwinMessage& message : generator.messages) {
            for (const TwinSignal& signal : message.signals) {
                std::string pairs;
                for (const auto& [value, description] : signal.enums) {
                    pairs += Concat(pairs.empty() ? "" : ",", std::to_string(value), ":",
                                    Quoted(description));
                }
                expected.push_back(
                    Line(message.id, signal.name, signal.valueType, signal.comment, pairs));
                comments += signal.comment.empty() ? 0 : 1;
                floats += signal.valueType > 1 ? 1 : 0;
                enums += signal.enums.size();
            }
        }
        ASSERT_EQ(test::ReadText(text), test::GoodRead);
        std::vector<std::string> found;
        for (std::size_t at = 0; at < database.messages.Size(); ++at) {
            const CANMessage& message = database.messages[at];
            for (const CANSignal* signal : message.signals) {
                found.push_back(Line(message.id, signal->rawName, signal->valueType,
                                     test::CommentOf(signal->notes), test::EnumsOf(*signal)));
            }
        }
        ASSERT_EQ(found, expected) << "seed " << seed << "\n" << text;
    }
    // The files are worth the name only if many statements hit.
    EXPECT_GT(comments, 1000U);
    EXPECT_GT(floats, 500U);
    EXPECT_GT(enums, 1000U);
}

}  // namespace
}  // namespace vexil
