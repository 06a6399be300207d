// Makes the account of a file from its parts.
// SPDX-License-Identifier: MIT
#include "account/account.h"

#include <algorithm>

#include "account/accountant.h"
#include "account/file_findings.h"

namespace vexil::tool {

std::array<std::size_t, FateCount> Account::CountsByFate() const {
    std::array<std::size_t, FateCount> counts{};
    for (const AccountedStatement& statement : statements) {
        ++counts[static_cast<std::size_t>(FateOf(statement.cause))];
    }
    return counts;
}

std::map<Cause, std::size_t> Account::CountsByCause() const {
    std::map<Cause, std::size_t> counts;
    for (const AccountedStatement& statement : statements) {
        ++counts[statement.cause];
    }
    return counts;
}

Account MakeAccount(const SourceText& source, const Snapshot& snapshot) {
    Account account = Accountant(source, snapshot).Run();
    account.fileFindings = FindFileFindings(source, account, snapshot);
    return account;
}

bool HasNoStatement(const Account& account) {
    return std::any_of(account.fileFindings.begin(), account.fileFindings.end(),
                       [](const Finding& each) { return each.cause == Cause::NoStatement; });
}

}  // namespace vexil::tool
