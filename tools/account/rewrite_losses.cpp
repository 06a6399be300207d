// Finds content of the database that a written file lacks or has in another form.
// SPDX-License-Identifier: MIT

#include <cstdlib>
#include <initializer_list>
#include <string>
#include <utility>

#include "account/account.h"
#include "account/attribute_book.h"
#include "format/format.h"

namespace vexil::tool {
namespace {

// Returns whether a number is equal after it was written with ten digits and read.
bool SurvivesTenDigits(double number) {
    const std::string text = Format("{:.10g}", number);
    return std::strtod(text.c_str(), nullptr) == number;
}

class Finder {
  public:
    Finder(const Account& account, const Snapshot& snapshot)
        : accounted(account), database(snapshot) {}

    std::vector<Finding> Run() {
        for (const AccountedStatement& statement : accounted.statements) {
            LookAtAttribute(statement);
        }
        for (std::uint32_t index = 0; index < accounted.messageStatements.size(); ++index) {
            if (database.messages[index].transmitter.size == 0) {
                Add(Cause::PlaceholderNode, accounted.messageStatements[index], "no sender");
            }
        }
        for (std::uint32_t index = 0; index < accounted.signalStatements.size(); ++index) {
            LookAtSignal(database.signals[index], accounted.signalStatements[index]);
        }
        return std::move(findings);
    }

  private:
    void Add(Cause cause, std::uint32_t statement, std::string detail) {
        const AccountedStatement& at = accounted.statements[statement];
        findings.push_back({cause, at.line, at.column, std::move(detail)});
    }

    void LookAtAttribute(const AccountedStatement& statement) {
        const Fate fate = FateOf(statement.cause);
        if (!statement.keyword.starts_with("BA_") ||
            (fate != Fate::Kept && fate != Fate::Changed)) {
            return;
        }
        const KeptAttribute* const attribute = FindKeptAttribute(AttributeName(statement.text));
        if (attribute != nullptr && !attribute->isWritten) {
            findings.push_back({Cause::AttributeNotWritten, statement.line, statement.column,
                                std::string(attribute->name)});
        }
    }

    void LookAtSignal(const SignalFacts& signal, std::uint32_t statement) {
        for (const double number : {signal.factor, signal.offset, signal.minimum, signal.maximum}) {
            if (!SurvivesTenDigits(number)) {
                Add(Cause::MoreThanTenDigits, statement,
                    Format("{} is written as {:.10g}", number, number));
            }
        }
        if (signal.receiverList.size == 0) {
            Add(Cause::PlaceholderNode, statement, "no receivers");
        }
        // If the unit was changed by the read, the cause of its statement already reports it.
        if (database.Text(signal.unit) != database.Text(signal.unitUtf8) &&
            accounted.statements[statement].cause != Cause::UnitFolded) {
            Add(Cause::UnitWrittenInAscii, statement,
                Format(R"("{}" is written as "{}")", database.Text(signal.unitUtf8),
                       database.Text(signal.unit)));
        }
        const bool isFloat = signal.valueType == ValueFloat32 || signal.valueType == ValueFloat64;
        if (isFloat && signal.descriptionCount != 0) {
            Add(Cause::DescriptionsOfFloat, statement,
                Format("{} descriptions", signal.descriptionCount));
        }
    }

    const Account& accounted;
    const Snapshot& database;
    std::vector<Finding> findings;
};

}  // namespace

std::vector<Finding> FindRewriteLosses(const Account& account, const Snapshot& snapshot) {
    return Finder(account, snapshot).Run();
}

}  // namespace vexil::tool
