// Tests of MessagesOfId: it finds what a walk over every signal of every message finds.
// SPDX-License-Identifier: MIT
#include "frame/messages_of_id.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "support/random_text.h"

namespace vexil {
namespace {

using Found = std::vector<const CANSignal*>;
using FoundAt = std::vector<std::pair<const CANSignal*, Position>>;

// Messages of one id in the database and in the lookup alike.
class Network {
  public:
    void AddMessage() {
        messages.push_back(std::make_shared<CANMessage>());
        lookup.Add(messages.back());
    }

    void AddSignal(const std::string& rawName) {
        const auto signal = std::make_shared<CANSignal>();
        signal->rawName = rawName;
        messages.back()->AddSignal(signal);
    }

    void ExpectSame(const std::string& name, const std::string& text, Position from) {
        Found walked;
        FoundAt walkedAt;
        for (const auto& message : messages) {
            for (const auto& signal : message->signals) {
                if (signal->rawName == name) {
                    walked.push_back(signal.get());
                }
                Position end = npos;
                if (signal->MatchSignalName(text, from, end)) {
                    walkedAt.emplace_back(signal.get(), end);
                }
            }
        }
        Found found;
        lookup.FindSignalsNamed(name, [&found](const SignalsOfName& signals) {
            found.insert(found.end(), signals.signals.begin(), signals.signals.end());
        });
        EXPECT_EQ(found, walked) << testing::PrintToString(name);
        FoundAt foundAt;
        lookup.FindSignalsAt(text, from, [&foundAt](const SignalsOfName& signals, Position end) {
            for (const CANSignal* signal : signals.signals) {
                foundAt.emplace_back(signal, end);
            }
        });
        std::sort(foundAt.begin(), foundAt.end());
        std::sort(walkedAt.begin(), walkedAt.end());
        EXPECT_EQ(foundAt, walkedAt) << testing::PrintToString(text) << " from " << from;
    }

    MessageList messages;
    MessagesOfId lookup{7};
};

// One of few words, with white space inside now and then, as a file may have it in a name.
std::string AnyName(test::RandomText& random) {
    std::string name;
    for (std::size_t words = random.Below(4); words > 0; --words) {
        if (!name.empty()) {
            name.append(1 + random.Below(2), " \t\n"[random.Below(3)]);
        }
        name.append(1 + random.Below(2), static_cast<char>('a' + random.Below(3)));
    }
    return name;
}

TEST(SignalIndex, FindsNothingInAnEmptyText) {
    CANSignal signal;
    signal.rawName = "S";
    SignalIndex index;
    index.Add(&signal);
    std::vector<std::size_t> ends;
    const auto visit = [&ends](const auto&, std::size_t end) { ends.push_back(end); };
    index.FindAtStart("", visit);
    EXPECT_EQ(ends, std::vector<std::size_t>{});
    index.FindAtStart("S ", visit);
    EXPECT_EQ(ends, std::vector<std::size_t>{1});
}

TEST(MessagesOfId, HandsOutItsIdAndItsMessagesInTheirOrder) {
    Network network;
    EXPECT_EQ(network.lookup.Id(), 7U);
    EXPECT_TRUE(network.lookup.Messages().empty());
    network.AddMessage();
    network.AddMessage();
    EXPECT_EQ(network.lookup.Messages(), network.messages);
}

TEST(MessagesOfId, FindsNothingWithoutMessages) {
    Network network;
    network.ExpectSame("S", "S : 1", 0);
}

TEST(MessagesOfId, FindsSignalsThatAreAddedBetweenTwoLooks) {
    Network network;
    network.AddMessage();
    for (int count = 0; count < 70; ++count) {
        const std::string name(1 + static_cast<std::size_t>(count % 35), 'S');
        network.AddSignal(name);
        network.ExpectSame(name, "SSS : 1", 0);
    }
    network.AddMessage();
    network.ExpectSame("SSS", " SSS\n", 0);
    network.AddSignal("SSS");
    network.AddSignal("");
    network.ExpectSame("SSS", " SSS\n", 0);
    network.ExpectSame("", "x SSS ", 1);
    network.ExpectSame("", "", 0);
}

TEST(MessagesOfId, FindsEveryNameThatBeginsTheText) {
    Network network;
    network.AddMessage();
    network.AddMessage();
    for (const char* const name : {"A", "A B", "A B C", "A  B", "A\tB", "AB", "B", "A B"}) {
        network.AddSignal(name);
    }
    for (const char* const text : {"A B C 1", "A B C", "A B\n", "A  B ", "A\tB ", "A ", "A", "AB ",
                                   "AB", "", "  A B 1", "A BC ", "C A "}) {
        network.ExpectSame("A B", text, 0);
        network.ExpectSame("A\tB", text, 1);
        network.ExpectSame("A  B", text, npos);
    }
}

TEST(MessagesOfId, FindsWhatAWalkFinds) {
    for (std::uint32_t seed = 1; seed <= 300 && !HasFailure(); ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        test::RandomText random(seed);
        Network network;
        network.AddMessage();
        for (std::size_t steps = 20 + random.Below(60); steps > 0; --steps) {
            if (random.Below(30) == 0) {
                network.AddMessage();
            }
            network.AddSignal(AnyName(random));
            if (random.Below(3) == 0) {
                std::string text = random.Below(2) == 0 ? " \t" : "";
                text.append(AnyName(random)).append(" ").append(AnyName(random));
                text.append(random.Below(2) == 0 ? "\n" : "");
                network.ExpectSame(AnyName(random), text, random.Below(text.size() + 2));
            }
        }
    }
}

std::shared_ptr<CANMessage> MessageOf(std::uint32_t id) {
    auto message = std::make_shared<CANMessage>();
    message->id = id;
    return message;
}

TEST(MessagesById, FindsTheMessagesOfAnIdInTheirOrder) {
    MessagesById byId;
    EXPECT_EQ(byId.Find(5), nullptr);
    const MessageList all = {MessageOf(5), MessageOf(7), MessageOf(5), MessageOf(0)};
    for (const auto& message : all) {
        byId.Add(message);
    }
    EXPECT_EQ(byId.Size(), 3U);
    EXPECT_EQ(byId.Find(5)->Messages(), (MessageList{all[0], all[2]}));
    EXPECT_EQ(byId.Find(7)->Messages(), (MessageList{all[1]}));
    EXPECT_EQ(byId.Find(6), nullptr);
    EXPECT_EQ(byId.Find(0)->Messages(), (MessageList{all[3]}));
    EXPECT_EQ(byId.Find(5)->Messages(), (MessageList{all[0], all[2]}));
}

TEST(MessagesById, FindsEachIdAsItGrows) {
    MessagesById byId;
    for (std::uint32_t id = 0; id < 1000; ++id) {
        EXPECT_EQ(byId.Find(id), nullptr);
        byId.Add(MessageOf(id));
        ASSERT_EQ(byId.Find(id)->Id(), id);
        ASSERT_EQ(byId.Find(id / 2)->Id(), id / 2);
    }
    EXPECT_EQ(byId.Size(), 1000U);
}

TEST(MessagesById, FindsNothingAfterClear) {
    MessagesById byId;
    byId.Add(MessageOf(5));
    EXPECT_NE(byId.Find(5), nullptr);
    byId.Clear();
    EXPECT_EQ(byId.Size(), 0U);
    EXPECT_EQ(byId.Find(5), nullptr);
    const auto again = MessageOf(5);
    byId.Add(again);
    EXPECT_EQ(byId.Find(5)->Messages(), (MessageList{again}));
}

}  // namespace
}  // namespace vexil
