// The summary of a rewrite, from a comparison of the statements of the two files.
// SPDX-License-Identifier: MIT
#include "account/rewrite_summary.h"

#include <algorithm>
#include <map>
#include <string>
#include <unordered_set>

#include "source/statement_scanner.h"

namespace vexil::tool {
namespace {

// Characters next to which white space has no meaning.
bool IsMark(char ch) {
    return std::string_view(":;,|()[]").find(ch) != std::string_view::npos;
}

// Returns the statement without white space that has no meaning. Quoted text does not change.
std::string Words(std::string_view text) {
    std::string words;
    bool isQuoted = false;
    bool isApart = false;
    for (const char ch : text) {
        if (!isQuoted && IsSpace(ch)) {
            isApart = true;
            continue;
        }
        if (isApart && !words.empty() && !IsMark(words.back()) && !IsMark(ch)) {
            words += ' ';
        }
        isApart = false;
        isQuoted = isQuoted != (ch == '"');
        words += ch;
    }
    return words;
}

// The statements of the written file, in which those of the other file are searched.
class WrittenStatements {
  public:
    explicit WrittenStatements(std::string_view text) {
        for (const SourceStatement& each : ScanStatements(text)) {
            std::string statement = Words(text.substr(each.begin, each.end - each.begin));
            if (each.keyword == Keyword::Bu) {
                AddNodes(statement);
            }
            statements.insert(std::move(statement));
        }
    }

    bool Have(const AccountedStatement& statement) const {
        // For NS_, only the keyword counts. Any reader may skip its symbols.
        if (statement.cause == Cause::Symbols) {
            return true;
        }
        const std::string words = Words(statement.text);
        return statement.cause == Cause::Nodes ? HaveNodes(words) : statements.contains(words);
    }

  private:
    // Calls a function for each word after the colon.
    template <typename Call>
    static void ForEachNode(std::string_view statement, Call call) {
        const std::size_t colon = statement.find(':');
        statement.remove_prefix(colon == std::string_view::npos ? statement.size() : colon + 1);
        while (!statement.empty()) {
            const std::size_t end = std::min(statement.find(' '), statement.size());
            if (end != 0) {
                call(statement.substr(0, end));
            }
            statement.remove_prefix(std::min(end + 1, statement.size()));
        }
    }

    void AddNodes(std::string_view statement) {
        ForEachNode(statement, [this](std::string_view node) { nodes.emplace(node); });
    }

    // The order of the nodes has no meaning.
    bool HaveNodes(std::string_view statement) const {
        bool all = true;
        ForEachNode(statement, [this, &all](std::string_view node) {
            all = all && nodes.contains(std::string(node));
        });
        return all;
    }

    std::unordered_set<std::string> statements;
    std::unordered_set<std::string> nodes;
};

// Returns whether a finding about the file also concerns its rewrite. Equal ids and names of
// messages do not: they are written unchanged.
bool ConcernsRewrite(Cause cause) {
    return cause != Cause::SameMessageId && cause != Cause::SameMessageName;
}

class Counter {
  public:
    void Add(Cause cause, std::uint32_t line) {
        CauseCount& entry = counts.try_emplace(cause, CauseCount{cause, 0, line}).first->second;
        ++entry.count;
    }

    std::vector<CauseCount> Counts() const {
        std::vector<CauseCount> all;
        for (const auto& [cause, count] : counts) {
            all.push_back(count);
        }
        return all;
    }

  private:
    std::map<Cause, CauseCount> counts;
};

}  // namespace

RewriteSummary SummarizeRewrite(const Account& account, const std::vector<Finding>& findings,
                                std::string_view written) {
    const WrittenStatements writtenStatements(written);
    RewriteSummary summary;
    Counter losses;
    Counter changes;
    const auto add = [&](Cause cause, std::uint32_t line) {
        (FateOf(cause) == Fate::Changed ? changes : losses).Add(cause, line);
    };
    for (const AccountedStatement& statement : account.statements) {
        const Fate fate = FateOf(statement.cause);
        summary.hasFindings = summary.hasFindings || fate == Fate::Refused || fate == Fate::Dropped;
        if (fate != Fate::Kept && !writtenStatements.Have(statement)) {
            add(statement.cause, statement.line);
        }
    }
    for (const Finding& finding : account.fileFindings) {
        if (ConcernsRewrite(finding.cause)) {
            add(finding.cause, finding.line);
        }
    }
    for (const Finding& finding : findings) {
        add(finding.cause, finding.line);
    }
    summary.losses = losses.Counts();
    summary.changes = changes.Counts();
    return summary;
}

std::size_t TotalOf(const std::vector<CauseCount>& counts) {
    std::size_t total = 0;
    for (const CauseCount& each : counts) {
        total += each.count;
    }
    return total;
}

}  // namespace vexil::tool
