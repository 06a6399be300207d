// vexil-dbc show: reading, choosing the messages, and the views of them.
// SPDX-License-Identifier: MIT
#include "commands/show.h"

#include <algorithm>
#include <cstdint>
#include <iostream>
#include <numeric>
#include <optional>
#include <string_view>
#include <utility>

#include "account/account.h"
#include "commands/source_input.h"
#include "database/message_search.h"
#include "file/terminal.h"
#include "view/closest_word.h"
#include "view/message_list.h"
#include "view/message_page.h"

namespace vexil::tool {
namespace {

DrawStyle StyleOf(const ShowOptions& options) {
    DrawStyle style;
    const std::size_t terminal = TerminalWidth();
    if (options.width != 0) {
        style.width = options.width;
    } else if (terminal != 0) {
        style.width = std::max(LeastWidth, terminal);
    }
    style.ascii = options.ascii;
    style.colour = WantsColour();
    return style;
}

void ReportUnmatched(const Snapshot& snapshot, const std::string& word) {
    if (word.find_first_of("*?") != std::string::npos) {
        PrintError("no message matches '" + word + "'");
        return;
    }
    // Comparing is slow, and names of very different length are no typing mistakes.
    const std::size_t slack = std::max<std::size_t>(2, word.size() / 3);
    std::vector<std::string_view> names;
    for (const MessageFacts& message : snapshot.messages) {
        const std::string_view name = snapshot.Text(message.name);
        if (name.size() <= word.size() + slack && word.size() <= name.size() + slack) {
            names.push_back(name);
        }
    }
    const std::string_view closest = ClosestWord(word, names);
    PrintError("there is no message '" + word + "'; " +
               (closest.empty() ? "--list lists all messages"
                                : "did you mean " + std::string(closest) + "?"));
}

// The messages to show, or nothing if a word matches none.
std::optional<std::vector<std::uint32_t>> Choose(const Snapshot& snapshot,
                                                 const std::vector<std::string>& words) {
    std::vector<std::uint32_t> chosen;
    if (words.empty()) {
        chosen.resize(snapshot.messages.size());
        std::iota(chosen.begin(), chosen.end(), 0U);
        return chosen;
    }
    bool allMatch = true;
    for (const std::string& word : words) {
        const std::vector<std::uint32_t> found = FindMessages(snapshot, word);
        if (found.empty()) {
            ReportUnmatched(snapshot, word);
            allMatch = false;
        }
        chosen.insert(chosen.end(), found.begin(), found.end());
    }
    std::sort(chosen.begin(), chosen.end());
    chosen.erase(std::unique(chosen.begin(), chosen.end()), chosen.end());
    return allMatch ? std::optional(std::move(chosen)) : std::nullopt;
}

void Print(const Snapshot& snapshot, const std::vector<std::uint32_t>& messages,
           const ShowOptions& options) {
    const DrawStyle style = StyleOf(options);
    if (options.list) {
        PrintMessageList(std::cout, snapshot, messages, style);
        return;
    }
    bool isFirst = true;
    for (const std::uint32_t message : messages) {
        std::cout << (isFirst ? "" : "\n");
        isFirst = false;
        PrintMessagePage(std::cout, snapshot, snapshot.messages[message], style);
    }
}

}  // namespace

ExitCode Show(const ShowOptions& options) {
    SourceInput input{options.file, options.from, {}};
    if (const auto failure = LoadSource(input)) {
        return *failure;
    }
    if (const auto failure = LoadDatabase(input, input.file.bytes)) {
        return *failure;
    }
    const Snapshot snapshot = TakeSnapshot();
    if (snapshot.messages.empty() && snapshot.errors.empty() &&
        HasNoStatement(MakeAccount(SourceText(std::move(input.file.bytes)), snapshot))) {
        PrintFileError("read", options.file, NoDbcFile);
        return ExitCannotRead;
    }
    const auto messages = Choose(snapshot, options.messages);
    if (!messages) {
        return ExitUsage;
    }
    Print(snapshot, *messages, options);
    if (!snapshot.errors.empty()) {
        PrintError("'" + options.file + "': " + std::to_string(snapshot.errors.size()) +
                   (snapshot.errors.size() == 1 ? " statement was" : " statements were") +
                   " refused; vexil-dbc check reports them");
    }
    return ExitSuccess;
}

}  // namespace vexil::tool
