// VERSION, NS_, BS_ and BU_: the sections before the messages. The reader drops them.
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <functional>
#include <string_view>
#include <utility>
#include <vector>

#include "text/constants.h"
#include "text/hash_index.h"
#include "text/keyed_hash.h"
#include "write/sections.h"

namespace vexil {
namespace {

constexpr std::size_t WrapWidth = 256;

// The set of names that were added. They are views.
class NodeNames {
  public:
    // Adds the names of a comma-separated list, or the default node for an empty list.
    void AddList(std::string_view list) {
        do {
            const std::size_t comma = std::min(list.find(','), list.size());
            Add(comma == 0 ? DefaultNode : list.substr(0, comma));
            list.remove_prefix(std::min(comma + 1, list.size()));
        } while (!list.empty());
    }

    // In descending byte order.
    std::vector<std::string_view> Sorted() && {
        std::sort(names.begin(), names.end(), std::greater<>());
        return std::move(names);
    }

  private:
    void Add(std::string_view name) {
        const std::size_t hash = KeyedHash(0, name);
        const auto isName = [&](std::uint32_t position) { return names[position] == name; };
        if (index.Find(hash, isName) == nullptr) {
            index.Add(hash, names.size());
            names.push_back(name);
        }
    }

    std::vector<std::string_view> names;
    HashIndex index;
};

std::vector<std::string_view> SortedNodeNames(const MessageList& messages) {
    NodeNames nodes;
    for (const CANMessage* message : messages) {
        nodes.AddList(message->transmitter);
        for (const CANSignal* signal : message->signals) {
            nodes.AddList(signal->receivers);
        }
    }
    return std::move(nodes).Sorted();
}

}  // namespace

void WriteVersionAndSymbols(StatementFile& file, const MessageList& /*messages*/) {
    LineBuffer line;
    file.WriteLine(line.Append(keyword::VERSION, " \"\""));
    file.WriteLine(line);
    file.WriteLine(line.Append(keyword::NS_, " :"));
    for (const std::string_view symbol : SymbolList) {
        file.WriteLine(line.Append("    ", symbol));
    }
    file.WriteLine(line);
}

void WriteBitTiming(StatementFile& file, const MessageList& /*messages*/) {
    LineBuffer line;
    file.WriteLine(line.Append(keyword::BS_, " :"));
    file.WriteLine(line);
}

void WriteNodes(StatementFile& file, const MessageList& messages) {
    LineBuffer line;
    AppendNodeList(line, messages);
    file.WriteLine(line);
    file.WriteLine(line);
}

void AppendNodeList(LineBuffer& text, const MessageList& messages) {
    text.Append(keyword::BU_, " : ");
    std::size_t wrapOffset = 0;
    for (const std::string_view node : SortedNodeNames(messages)) {
        if (text.Size() + node.size() - wrapOffset >= WrapWidth) {
            text.Append('\n');
            wrapOffset += WrapWidth;
        } else {
            text.Append(' ');
        }
        text.Append(node);
    }
}

}  // namespace vexil
