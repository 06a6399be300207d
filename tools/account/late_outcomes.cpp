// Outcomes that are known only at the end of the file.
// SPDX-License-Identifier: MIT

#include <map>
#include <utility>

#include "account/accountant.h"
#include "account/attribute_tokens.h"
#include "format/format.h"

namespace vexil::tool {

// Adds to each use of an undefined attribute the line of its definition, if that was dropped.
void Accountant::AddDroppedDefinitions() {
    std::map<std::string_view, std::uint32_t> lines;
    for (const AccountedStatement& statement : accounted.statements) {
        if (statement.keyword == "BA_DEF_" && FateOf(statement.cause) == Fate::Dropped) {
            lines.try_emplace(AttributeName(statement.text), statement.line);
        }
    }
    for (AccountedStatement& statement : accounted.statements) {
        if (statement.cause == Cause::AttributeNotDefined && !lines.empty()) {
            const auto line = lines.find(AttributeName(statement.text));
            if (line != lines.end()) {
                statement.detail += Format("; its definition in line {} was dropped", line->second);
            }
        }
    }
}

void Accountant::AddLateOutcomes() {
    for (const Reference& reference : context.references) {
        AccountedStatement& statement = accounted.statements[reference.statement];
        if (statement.cause == Cause::UnknownMessage) {
            Outcome outcome = ClassifyMissingOwner(reference, context.owners);
            statement.cause = outcome.cause;
            statement.detail = std::move(outcome.detail);
        }
    }
    for (auto& [index, outcome] : attributes.Finish(context.owners, database)) {
        AccountedStatement& statement = accounted.statements[index];
        const bool isAttribute = statement.keyword.starts_with("BA_");
        const bool isLess = outcome.cause == Cause::KeptWithoutEffect;
        if (isAttribute && (!isLess || statement.cause == Cause::Kept)) {
            statement.cause = outcome.cause;
            statement.detail = std::move(outcome.detail);
        }
    }
}

// Adds to each refused or dropped message the number of its lost signals, and to each refused
// signal the number of later signals that were lost with it.
void Accountant::CountLostSignals() {
    std::uint32_t message = NoIndex;
    std::uint32_t refused = NoIndex;
    for (std::uint32_t index = 0; index < accounted.statements.size(); ++index) {
        const AccountedStatement& statement = accounted.statements[index];
        if (statement.keyword == "BO_") {
            message = index;
        }
        if (statement.keyword == "SG_" && FateOf(statement.cause) == Fate::Refused) {
            refused = index;
        }
        // The library can have found the other statement inside a text, where the author has none.
        if (statement.cause == Cause::SignalOfRefusedMessage && message != NoIndex) {
            ++signalsLost[message];
        }
        if (statement.cause == Cause::SignalAfterRefusedSignal && refused != NoIndex) {
            ++signalsLost[refused];
        }
    }
    for (std::uint32_t index = 0; index < accounted.statements.size(); ++index) {
        if (signalsLost[index] != 0 && FateOf(accounted.statements[index].cause) == Fate::Refused) {
            accounted.statements[index].detail +=
                Format("; {} signal{} went with it", signalsLost[index],
                       signalsLost[index] == 1 ? "" : "s");
        }
    }
}

}  // namespace vexil::tool
