// The statements of a network file and their repetitions.
// SPDX-License-Identifier: MIT
#include "network_file.h"

#include <algorithm>
#include <cstdint>

#include "network_statement.h"

namespace vexil::fuzz {
namespace {

constexpr std::size_t MostStatements = 200;
constexpr std::size_t MostBytes = 16 * 1024;
constexpr std::uint32_t MostRepetitions = 200;

// Appends a statement with its repetitions and changes, as the input describes them, until the text
// has the size.
void AppendStatement(std::string& text, ByteSource& input, std::uint32_t number, std::size_t size) {
    std::uint32_t repetitions = 1;
    std::uint32_t cutBytes = 0;
    std::uint32_t place = 0;
    std::string_view inserted;
    for (bool isModifier = true; isModifier;) {
        if (input.Next('=')) {
            repetitions = input.Word() % MostRepetitions;
        } else if (input.Next('x')) {
            cutBytes = input.Word();
        } else if (input.Next('i')) {
            place = input.Word();
            inserted = input.TextUpTo('|');
        } else {
            isModifier = false;
        }
    }
    const ByteSource description = input;
    StatementOf(input, number);
    for (std::uint32_t at = 0; at < repetitions && text.size() < size; ++at) {
        ByteSource again = description;
        std::string statement = StatementOf(again, number * repetitions + at);
        statement.resize(statement.size() - std::min<std::size_t>(cutBytes, statement.size()));
        statement.insert(place % (statement.size() + 1), inserted);
        text += statement;
    }
}

}  // namespace

NetworkFile::NetworkFile(ByteSource& input) {
    while (!input.IsAtEnd() && !input.Next('~') && statements.size() < MostStatements) {
        if (input.Next('\n')) {
            continue;
        }
        const std::string_view description = input.Rest();
        AppendStatement(text, input, static_cast<std::uint32_t>(statements.size()), MostBytes);
        statements.push_back(description.substr(0, description.size() - input.Rest().size()));
    }
}

std::string NetworkFile::Grown(std::size_t from, bool inTurn, std::size_t size) const {
    std::string grown;
    const auto append = [&](std::size_t at, std::uint32_t number) {
        ByteSource description(statements[at]);
        const std::size_t before = grown.size();
        AppendStatement(grown, description, number, size);
        return grown.size() > before;
    };
    const std::size_t first = std::min(from, statements.size());
    for (std::size_t at = 0; at < first; ++at) {
        append(at, static_cast<std::uint32_t>(at));
    }
    const std::size_t last = statements.size();
    bool grows = first < last;
    for (std::uint32_t number = 0; inTurn && grows; ++number) {
        grows = false;
        for (std::size_t at = first; at < last; ++at) {
            grows = append(at, number) || grows;
        }
    }
    const std::size_t start = grown.size();
    for (std::size_t at = first; !inTurn && at < last; ++at) {
        const std::size_t share =
            start + (size - std::min(start, size)) * (at - first + 1) / (last - first);
        std::uint32_t number = 0;
        while (grown.size() < share && append(at, number)) {
            ++number;
        }
    }
    return grown;
}

}  // namespace vexil::fuzz
