// VERSION, NS_, BS_ and BU_: what stands in front of the messages. Nothing of it is read back.
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <functional>
#include <string_view>
#include <utility>
#include <vector>

#include "frame/can_database.h"
#include "text/constants.h"
#include "text/hash_index.h"
#include "text/keyed_hash.h"
#include "write/sections.h"

namespace vexil {
namespace {

constexpr std::size_t WrapWidth = 256;

// The distinct names among those that are added. They are views.
class NodeNames {
  public:
    void Add(std::string_view name) {
        const std::size_t hash = KeyedHash(0, name);
        const auto isName = [&](std::size_t position) { return names[position] == name; };
        if (index.Find(hash, isName) == npos) {
            index.Add(hash, names.size());
            names.push_back(name);
        }
    }

    // In descending byte order.
    std::vector<std::string_view> Sorted() && {
        std::sort(names.begin(), names.end(), std::greater<>());
        return std::move(names);
    }

  private:
    std::vector<std::string_view> names;
    HashIndex index;
};

std::vector<std::string_view> SortedNodeNames() {
    NodeNames nodes;
    const auto add = [&nodes](std::string_view name) { nodes.Add(name); };
    for (const auto& message : database.messages) {
        add(message->transmitter.empty() ? DefaultNode : message->transmitter);
        for (const auto& signal : message->signals) {
            if (signal->receivers.IsEmpty()) {
                add(DefaultNode);
            }
            signal->receivers.ForEach(add);
        }
    }
    return std::move(nodes).Sorted();
}

}  // namespace

void WriteVersionAndSymbols(StatementFile& file) {
    file.WriteLine(std::string(keyword::VERSION) + " \"\"");
    file.WriteLine("");
    file.WriteLine(std::string(keyword::NS_) + " :");
    for (const std::string_view symbol : SymbolList) {
        file.WriteLine(std::string(4, ' ').append(symbol));
    }
    file.WriteLine("");
}

void WriteBitTiming(StatementFile& file) {
    file.WriteLine(std::string(keyword::BS_) + " :");
    file.WriteLine("");
}

void WriteNodes(StatementFile& file) {
    file.WriteLine(BuildNodeList());
    file.WriteLine("");
}

std::string BuildNodeList() {
    std::string text = std::string(keyword::BU_) + " : ";
    std::size_t wrapOffset = 0;
    for (const std::string_view node : SortedNodeNames()) {
        if (text.size() + node.size() - wrapOffset >= WrapWidth) {
            text += '\n';
            wrapOffset += WrapWidth;
        } else {
            text += ' ';
        }
        text += node;
    }
    return text;
}

}  // namespace vexil
