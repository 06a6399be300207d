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

// Hands the statement of the file to the handler of its kind. A kind without a handler is dropped,
// and so is what a handler cannot use. Returns whether an SG_ statement right behind belongs to the
// last message: Kept on purpose: a statement of any other kind ends the signals of a message, and
// those behind it are dropped without a record.
bool HandleStatement(const StatementFile& file, bool signalOwnerOpen) {
    const std::string_view statement = file.statement;
    const std::uint32_t line = file.lineNumber - 1;
    switch (file.statementKeyword) {
        case RowOf(keyword::BO_):
            return HandleMessageStatement(statement, line);
        case RowOf(keyword::SG_):
            return signalOwnerOpen && HandleSignalStatement(statement, line);
        case RowOf(keyword::CM_):
            if (!HandleMessageComment(statement)) {
                HandleSignalComment(statement);
            }
            return false;
        case RowOf(keyword::SIG_VALTYPE_):
            HandleValueType(statement);
            return false;
        case RowOf(keyword::VAL_):
            HandleValueDescriptions(statement);
            return false;
        default:
            if (IsAttributeStatement(statement)) {
                ParseAttributeStatement(database.attributes, statement);
            }
            return false;
    }
}

void ReadStatements(StatementFile& file) {
    bool signalOwnerOpen = false;
    while (file.NextStatement()) {
        signalOwnerOpen = HandleStatement(file, signalOwnerOpen);
    }
}

}  // namespace

bool ReadDbcFile(const char* path, std::uint32_t pathBufferSize, std::uint32_t& resultCode) {
    database.Reset();
    database.messagesById.Clear();  // a read that ran out of memory left it as it was
    StatementFile file;
    file.Open(path, pathBufferSize, OpenMode::Read);
    resultCode = file.parseState;
    if (resultCode != StateReading) {
        return false;
    }
    ReadStatements(file);
    FoldReservedAttributes();
    database.messagesById.Clear();
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
