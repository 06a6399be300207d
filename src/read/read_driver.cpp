// Reading a file: the loop over its statements, and the handler of each kind.
// SPDX-License-Identifier: MIT
#include "read/read_driver.h"

#include <array>

#include "attributes/attribute_statements.h"
#include "frame/can_database.h"
#include "read/attribute_fold.h"
#include "read/handlers.h"
#include "text/keywords.h"
#include "text/statement_file.h"

namespace vexil {
namespace {

// Handles the current statement of the file. Returns whether an SG_ statement directly after it
// belongs to the last message. Intentional: a statement of any other kind ends the signals of a
// message, and later ones are dropped without a parse error.
//   ownsSignals  the result for the previous statement.
using Handler = bool (*)(const StatementFile& file, bool ownsSignals);

bool HandleMessage(const StatementFile& file, bool /*ownsSignals*/) {
    return HandleMessageStatement(file.statement, file.lineNumber - 1);
}

bool HandleSignal(const StatementFile& file, bool ownsSignals) {
    return ownsSignals && HandleSignalStatement(file.statement, file.lineNumber - 1);
}

template <void (*handle)(std::string_view text)>
bool Handle(const StatementFile& file, bool /*ownsSignals*/) {
    handle(file.statement);
    return false;
}

template <void (*parse)(AttributeTable& table, Arena& arena, std::string_view text)>
bool HandleAttribute(const StatementFile& file, bool /*ownsSignals*/) {
    parse(database.attributes, database.arena, file.statement);
    return false;
}

struct StatementKind {
    std::string_view keyword;
    Handler handler;
};

// The statement kinds that are read. All others are dropped.
constexpr std::array statementKinds = {
    StatementKind{keyword::BO_, HandleMessage},
    StatementKind{keyword::SG_, HandleSignal},
    StatementKind{keyword::CM_, Handle<HandleComment>},
    StatementKind{keyword::SIG_VALTYPE_, Handle<HandleValueType>},
    StatementKind{keyword::VAL_, Handle<HandleValueDescriptions>},
    StatementKind{keyword::BA_DEF_, HandleAttribute<ParseDefinitionStatement>},
    StatementKind{keyword::BA_DEF_DEF_, HandleAttribute<ParseDefaultStatement>},
    StatementKind{keyword::BA_, HandleAttribute<ParseValueStatement>},
};

// The handler for each row of the keyword table; null if the kind is dropped.
constexpr std::array<Handler, KeywordCount> handlers = [] {
    std::array<Handler, KeywordCount> byRow{};
    for (const StatementKind& kind : statementKinds) {
        byRow[KeywordRowOf(kind.keyword)] = kind.handler;
    }
    return byRow;
}();

void ReadStatements(StatementFile& file) {
    bool ownsSignals = false;
    while (file.NextStatement()) {
        const Handler handler = handlers[file.statementKeyword];
        ownsSignals = handler != nullptr && handler(file, ownsSignals);
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
    database.EndRead();
    resultCode = file.parseState;
    file.Close();
    if (resultCode != StateEndOfFile) {
        return false;
    }
    resultCode = file.parseState;
    return true;
}

}  // namespace vexil
