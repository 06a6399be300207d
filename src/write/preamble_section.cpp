// VERSION, NS_, BS_ and BU_: what stands in front of the messages. Nothing of it is read back.
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <set>
#include <string_view>

#include "frame/can_database.h"
#include "text/constants.h"
#include "write/sections.h"

namespace vexil {
namespace {

constexpr std::size_t WrapWidth = 256;

std::set<std::string_view> NodeNames() {
    std::set<std::string_view> nodes;
    for (const auto& message : database.messages) {
        nodes.insert(message->transmitter.empty() ? DefaultNode : message->transmitter);
        for (const auto& signal : message->signals) {
            if (signal->receivers.empty()) {
                nodes.insert(DefaultNode);
            }
            for (const std::string& receiver : signal->receivers) {
                nodes.insert(receiver);
            }
        }
    }
    return nodes;
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
    const std::set<std::string_view> nodes = NodeNames();
    std::string text = std::string(keyword::BU_) + " : ";
    std::size_t wrapOffset = 0;
    std::for_each(nodes.rbegin(), nodes.rend(), [&](std::string_view node) {
        if (text.size() + node.size() - wrapOffset >= WrapWidth) {
            text += '\n';
            wrapOffset += WrapWidth;
        } else {
            text += ' ';
        }
        text += node;
    });
    return text;
}

}  // namespace vexil
