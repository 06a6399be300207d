// The account of a file: the fate of each of its statements, and findings about the whole file.
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "account/cause.h"
#include "account/fate.h"
#include "database/snapshot.h"
#include "source/source_text.h"

namespace vexil::tool {

// A statement of the text as its author meant it, or stray text, which has no keyword.
struct AccountedStatement {
    Cause cause = Cause::Kept;
    std::uint32_t line = 0;
    std::uint32_t column = 0;
    std::string_view keyword;
    std::string_view text;  // a view into the text of the source
    std::string detail;     // details of the cause for this statement; may be empty
};

// A finding about the file as a whole, the layout of its signals, or its rewrite.
struct Finding {
    Cause cause = Cause::NoStatement;
    std::uint32_t line = 0;  // 0: the finding has no line
    std::uint32_t column = 0;
    std::string detail;
};

struct Account {
    std::vector<AccountedStatement> statements;
    std::vector<Finding> fileFindings;

    // The statement of each message and signal of the database, as an index into statements, in the
    // order of the database. Signals of all messages are in one list.
    std::vector<std::uint32_t> messageStatements;
    std::vector<std::uint32_t> signalStatements;

    std::array<std::size_t, FateCount> CountsByFate() const;  // in the order of AllFates
    std::map<Cause, std::size_t> CountsByCause() const;       // of the statements
};

// Accounts for each statement of a text that the library has just read.
//   source    must outlive the account
//   snapshot  the database after this read
Account MakeAccount(const SourceText& source, const Snapshot& snapshot);

// Whether the text has no statement at all, so that it is not a DBC file.
bool HasNoStatement(const Account& account);

// Returns the errors in the layout of the signals: overlaps, signals outside their message,
// multiplexed signals without a selector, ranges that no raw value can reach.
std::vector<Finding> FindLayoutFaults(const Account& account, const Snapshot& snapshot);

// Returns what a file that the library writes now loses or changes, in addition to the fates of the
// statements: a finding for each place.
std::vector<Finding> FindRewriteLosses(const Account& account, const Snapshot& snapshot);

}  // namespace vexil::tool
