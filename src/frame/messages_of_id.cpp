// The messages read so far under one id, and their signals by name.
// SPDX-License-Identifier: MIT
#include "frame/messages_of_id.h"

#include <algorithm>
#include <utility>

#include "text/keyed_hash.h"

namespace vexil {

std::size_t SignalIndex::WordEnd(std::string_view text, std::size_t at) {
    return std::min<std::size_t>(FindSpace(text, FindNonSpace(text, at)), text.size());
}

std::size_t SignalIndex::Child(std::size_t node, std::string_view word) const {
    return children.Find(KeyedHash(node, word), [&](std::size_t child) {
        return nodes[child].parent == node && nodes[child].word == word;
    });
}

void SignalIndex::Add(CANSignal* signal) {
    if (nodes.empty()) {
        nodes.emplace_back();
    }
    const std::string_view name = signal->rawName;
    std::size_t node = Root;
    for (std::size_t at = 0; at < name.size();) {
        const std::size_t end = WordEnd(name, at);
        const std::string_view word = name.substr(at, end - at);
        std::size_t child = Child(node, word);
        if (child == npos) {
            child = nodes.size();
            nodes.push_back({node, word});
            children.Add(KeyedHash(node, word), child);
        }
        node = child;
        at = end;
    }
    nodes[node].signals.push_back(signal);
}

std::size_t SignalIndex::NodeOf(std::string_view name) const {
    std::size_t node = nodes.empty() ? npos : Root;
    for (std::size_t at = 0; at < name.size() && node != npos;) {
        const std::size_t end = WordEnd(name, at);
        node = Child(node, name.substr(at, end - at));
        at = end;
    }
    return node;
}

void MessagesOfId::Add(std::shared_ptr<CANMessage> message) {
    messages.push_back(std::move(message));
}

void MessagesOfId::UpdateIndex() {
    while (indexedMessages < messages.size()) {
        const auto& signals = messages[indexedMessages]->signals;
        for (; indexedSignals < signals.size(); ++indexedSignals) {
            index.Add(signals[indexedSignals].get());
        }
        if (indexedMessages + 1 == messages.size()) {
            return;
        }
        ++indexedMessages;
        indexedSignals = 0;
    }
}

void MessagesById::Add(std::shared_ptr<CANMessage> message) {
    const std::uint32_t id = message->id;
    MessagesOfId* messages = Find(id);
    if (messages == nullptr) {
        messages = &entries.emplace_back(id);
        index.Add(KeyedHash(id, {}), entries.size() - 1);
    }
    messages->Add(std::move(message));
}

MessagesOfId* MessagesById::Find(std::uint32_t id) {
    if (last + 1 < entries.size() && entries[last + 1].Id() == id) {
        ++last;
    } else if (last >= entries.size() || entries[last].Id() != id) {
        const std::size_t position = index.Find(KeyedHash(id, {}), [&](std::size_t candidate) {
            return entries[candidate].Id() == id;
        });
        if (position == npos) {
            return nullptr;
        }
        last = position;
    }
    return &entries[last];
}

void MessagesById::Clear() {
    last = 0;
    index.Clear();
    entries.clear();
}

}  // namespace vexil
