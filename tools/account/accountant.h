// Makes the account of the statements of a text. Compares the statements as their author meant them
// with those that the library cut, and checks the results against the database.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "account/account.h"
#include "account/attribute_book.h"
#include "account/classify.h"
#include "source/library_cut.h"
#include "source/statement_scanner.h"

namespace vexil::tool {

class Accountant {
  public:
    Accountant(const SourceText& source, const Snapshot& snapshot);

    Account Run();

  private:
    // Whether an SG_ statement is read at this position, and into which message.
    struct SignalOwner {
        bool isOpen = false;
        Cause closed = Cause::SignalWithoutMessage;  // the cause if it is not open
        std::uint32_t closedBy = NoIndex;            // the statement that closed it
        std::uint32_t message = NoIndex;             // the statement of the last message
        Cause messageCause = Cause::Kept;            // the cause of this statement
    };

    // The statements that the library found inside a statement of the author.
    struct Inside {
        const LibraryStatement* first = nullptr;
        const LibraryStatement* effective = nullptr;  // the first one that had an effect
    };

    void AddStatement(std::uint32_t index);
    Outcome ClassifyStatement(const SourceStatement& statement, std::size_t nextBegin);
    Outcome ClassifyNextCut(std::size_t authorEnd);
    Inside TakeInside(std::size_t end);
    Outcome WithInside(Outcome outcome, const SourceStatement& statement,
                       const LibraryStatement* own, const Inside& inside) const;
    Outcome ClassifyCut(const LibraryStatement& cut, std::size_t authorEnd);
    Outcome ClassifyMessageCut(const LibraryStatement& cut, std::string_view text);
    Outcome ClassifySignalCut(const LibraryStatement& cut, std::string_view text);
    Outcome ClassifyOrphan() const;
    Outcome ClassifyUncut(const SourceStatement& statement) const;
    std::optional<Outcome> TakeRefusal(const LibraryStatement& cut, std::string_view text);
    Outcome WithBytes(Outcome outcome, const SourceStatement& statement);
    void CloseSignals(Cause cause);
    void CountLostSignals();
    void AddLateOutcomes();
    void AddDroppedDefinitions();

    std::string LineOf(std::uint32_t statement) const;

    const SourceText& sourceText;
    const Snapshot& database;
    std::string_view whole;
    std::vector<SourceStatement> authored;
    std::vector<LibraryStatement> cuts;
    std::size_t nextCut = 0;
    const LibraryStatement* lastCut = nullptr;
    std::uint32_t lastCutOwner = NoIndex;  // the statement in which it begins
    ReadContext context;
    AttributeBook attributes;
    SignalOwner signalOwner;
    std::uint32_t nextError = 0;
    std::size_t nextInvalid = 0;
    std::size_t nextRemoved = 0;
    std::vector<std::uint32_t> signalsLost;  // by statement: signals lost with it
    Account accounted;
};

}  // namespace vexil::tool
