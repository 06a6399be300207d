// The account of a file. A first form: the kinds alone decide.
// SPDX-License-Identifier: MIT
#include "account/account.h"

#include "source/statement_scanner.h"

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

Account MakeAccount(const SourceText& source, const Snapshot& /*snapshot*/) {
    Account account;
    const std::string_view text = source.Text();
    for (const SourceStatement& each : ScanStatements(text)) {
        const Place place = source.PlaceOf(source.ByteOffset(each.begin));
        const Cause cause = each.keyword == Keyword::None ? Cause::StrayText : Cause::Kept;
        account.statements.push_back({cause, place.line, place.column, RowOf(each.keyword).text,
                                      text.substr(each.begin, each.end - each.begin), ""});
    }
    return account;
}

std::vector<Finding> FindLayoutFaults(const Account& /*account*/, const Snapshot& /*snapshot*/) {
    return {};
}

std::vector<Finding> FindRewriteLosses(const Account& /*account*/, const Snapshot& /*snapshot*/) {
    return {};
}

}  // namespace vexil::tool
