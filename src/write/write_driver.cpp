// The writing of a file: from the database to the closed file, and what comes back.
// SPDX-License-Identifier: MIT
#include "write/write_driver.h"

#include "attributes/attribute_section.h"
#include "frame/can_database.h"
#include "text/statement_file.h"
#include "write/sections.h"
#include "write/write_order.h"

namespace vexil {
namespace {

// Writes every section. There is no early exit: behind a failure each line does nothing.
void WriteSections(StatementFile& file, const MessageList& messages) {
    WriteVersionAndSymbols(file);
    WriteBitTiming(file);
    WriteNodes(file);
    WriteMessages(file, messages);
    WriteComments(file, messages);
    WriteAttributeSection(file, messages);
    WriteValueSections(file, messages);
}

}  // namespace

bool WriteDbcFile(const char* path, std::uint32_t pathBufferSize, std::uint32_t order,
                  std::uint32_t& resultCode) {
    if (database.messages.empty()) {
        resultCode = StateClosed;
        return false;
    }
    StatementFile file;
    file.Open(path, pathBufferSize, OpenMode::Write);
    resultCode = file.parseState;
    if (resultCode != StateWriting) {
        return false;
    }
    for (const auto& message : database.messages) {
        message->MakeSignalNamesUnique();
    }
    WriteSections(file, MessagesInOrder(database.messages, order));
    // Kept on purpose: the result is settled before the file is closed, so a failure of the last
    // line or of the closing shows in the result code alone.
    resultCode = file.parseState;
    file.Close();
    if (resultCode != StateWriting) {
        return false;
    }
    resultCode = file.parseState;
    return true;
}

}  // namespace vexil
