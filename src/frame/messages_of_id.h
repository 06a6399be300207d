// The messages read so far under one id, and their signals by name. Comments, value descriptions
// and value types reach every message of their id and every signal of their name.
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

#include "frame/can_message.h"
#include "text/char_class.h"
#include "text/constants.h"
#include "text/hash_index.h"

namespace vexil {

// How many signals of a name, from the first on, have seen each value type.
struct ValueTypeProgress {
    std::size_t float32 = 0;
    std::size_t float64 = 0;
};

// The signals of one name, in the order in which they came.
struct SignalsOfName {
    std::span<CANSignal* const> signals;  // never empty
    ValueTypeProgress& progress;          // kept for who sets value types
};

// Signals by their rawName, at the same cost whatever names a file holds: a name is looked up word
// by word in a tree of words, a word being a run of white space and the run of other characters
// behind it. The names are views into the signals.
class SignalIndex {
  public:
    void Add(CANSignal* signal);

    // Calls visit(SignalsOfName) when there are signals of the name.
    template <typename Visit>
    void Find(std::string_view name, Visit visit) {
        const std::size_t node = NodeOf(name);
        if (node != npos && !nodes[node].signals.empty()) {
            visit(nodes[node].Signals());
        }
    }

    // Calls visit(SignalsOfName, end) for each name that begins text and has white space behind it;
    // end is its length. REQUIRES: text begins with no white space.
    template <typename Visit>
    void FindAtStart(std::string_view text, Visit visit) {
        std::size_t node = Root;
        for (std::size_t at = 0; at < text.size();) {
            const std::size_t end = WordEnd(text, at);
            node = Child(node, text.substr(at, end - at));
            if (node == npos || end == text.size()) {
                return;
            }
            if (!nodes[node].signals.empty()) {
                visit(nodes[node].Signals(), end);
            }
            at = end;
        }
    }

  private:
    struct Node {
        std::size_t parent = npos;
        std::string_view word = {};
        std::vector<CANSignal*> signals = {};  // whose name ends here
        ValueTypeProgress progress = {};       // of these

        SignalsOfName Signals() { return {signals, progress}; }
    };

    static constexpr std::size_t Root = 0;

    // The position behind the word that starts at at.
    static std::size_t WordEnd(std::string_view text, std::size_t at);

    // The node of the name, or npos.
    std::size_t NodeOf(std::string_view name) const;

    // The child of the node for the word, or npos.
    std::size_t Child(std::size_t node, std::string_view word) const;

    std::vector<Node> nodes;  // the root first; empty without signals
    HashIndex children;       // of nodes, by parent and word
};

class MessagesOfId {
  public:
    explicit MessagesOfId(std::uint32_t messageId) : id(messageId) {}

    std::uint32_t Id() const { return id; }
    const MessageList& Messages() const { return messages; }

    void Add(std::shared_ptr<CANMessage> message);

    // Calls visit(SignalsOfName) when there are signals of that rawName.
    template <typename Visit>
    void FindSignalsNamed(std::string_view name, Visit visit) {
        if (IsSmall()) {
            std::array<CANSignal*, WalkLimit> found{};
            std::size_t count = 0;
            for (const auto& signal : messages.front()->signals) {
                if (signal->rawName == name) {
                    found[count++] = signal.get();
                }
            }
            if (count > 0) {
                ValueTypeProgress none;  // a walk starts at the first signal each time
                visit(SignalsOfName{std::span(found).first(count), none});
            }
            return;
        }
        UpdateIndex();
        index.Find(name, visit);
    }

    // Calls visit(SignalsOfName, end) for each name that stands in text at or behind from, as
    // CANSignal::MatchSignalName finds it; end is the position behind the name.
    template <typename Visit>
    void FindSignalsAt(std::string_view text, Position from, Visit visit) {
        if (IsSmall()) {
            for (const auto& signal : messages.front()->signals) {
                Position end = npos;
                if (signal->MatchSignalName(text, from, end)) {
                    FindSignalsNamed(signal->rawName, [&](SignalsOfName found) {
                        if (found.signals.front() == signal.get()) {
                            visit(found, end);
                        }
                    });
                }
            }
            return;
        }
        const Position start = FindNonSpace(text, from);
        if (start == npos) {
            return;
        }
        UpdateIndex();
        index.FindAtStart(text.substr(start), [&](SignalsOfName signals, std::size_t end) {
            visit(signals, start + end);
        });
    }

  private:
    // Whether a walk over the signals is as good as the index: so it is for most messages.
    bool IsSmall() const {
        return messages.size() == 1 && messages.front()->signals.size() <= WalkLimit;
    }

    // Takes the signals read since the last call into the index. Only the last message can have
    // grown, since signals always belong to the message in front of them.
    void UpdateIndex();

    static constexpr std::size_t WalkLimit = 32;

    std::uint32_t id;
    MessageList messages;  // in the order of the file
    SignalIndex index;
    std::size_t indexedMessages = 0;  // messages in front of the first that is not wholly indexed
    std::size_t indexedSignals = 0;   // signals of that one that are in the index
};

// The messages read so far, by id.
class MessagesById {
  public:
    // Adds the message behind those of its id.
    void Add(std::shared_ptr<CANMessage> message);

    // Returns the messages of the id, valid until the next Add, or null when there is none.
    MessagesOfId* Find(std::uint32_t id);

    std::size_t Size() const { return entries.size(); }  // how many ids there are
    void Clear();

  private:
    std::vector<MessagesOfId> entries;  // in the order in which the ids came
    HashIndex index;                    // of entries
    std::size_t last = 0;  // position of what was found last: most statements ask for it again, and
                           // most others for the next
};

}  // namespace vexil
