// The reading of a file: the loop over its statements, and which handler sees which.
// SPDX-License-Identifier: MIT
#include "read/read_driver.h"

#include "attributes/attribute_statements.h"
#include "frame/can_database.h"
#include "read/attribute_fold.h"
#include "read/handlers.h"
#include "text/keywords.h"
#include "text/statement_file.h"

namespace vexil {
namespace {

// Whether the statement behind this one may be a signal of the last message. Every statement of
// another kind ends the signals of a message, so those behind it are dropped without a record.
bool HandleModelStatement(std::string_view statement, std::uint32_t line, bool signalOwnerOpen) {
    Position end = 0;
    if (MatchKeyword(statement, keyword::BO_, end, 0)) {
        return HandleMessageStatement(statement, line);
    }
    return signalOwnerOpen && MatchKeyword(statement, keyword::SG_, end, 0) &&
           HandleSignalStatement(statement, line);
}

// Offers the statement to the handlers of what refines the model, until one claims it.
void HandleRefinement(std::string_view statement) {
    if (HandleMessageComment(statement) || HandleSignalComment(statement) ||
        HandleValueType(statement) || HandleValueDescriptions(statement)) {
        return;
    }
    if (IsAttributeStatement(statement)) {
        ParseAttributeStatement(database.attributes, statement);
    }
}

void ReadStatements(StatementFile& file) {
    bool signalOwnerOpen = false;
    while (file.NextStatement()) {
        signalOwnerOpen =
            HandleModelStatement(file.statement, file.lineNumber - 1, signalOwnerOpen);
        HandleRefinement(file.statement);
    }
}

}  // namespace

bool ReadDbcFile(const char* path, std::uint32_t pathBufferSize, std::uint32_t& resultCode) {
    database.Reset();
    StatementFile file;
    file.Open(path, pathBufferSize, OpenMode::Read);
    resultCode = file.parseState;
    if (resultCode != StateReading) {
        return false;
    }
    ReadStatements(file);
    FoldReservedAttributes();
    database.messagesById.clear();
    database.attributes.ClearEntries();
    resultCode = file.parseState;
    file.Close();
    if (resultCode != StateEndOfFile) {
        return false;
    }
    resultCode = file.parseState;
    return true;
}

}  // namespace vexil
