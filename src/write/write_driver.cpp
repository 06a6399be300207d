// Writing a file: the sections and their order, and the result code.
// SPDX-License-Identifier: MIT
#include "write/write_driver.h"

#include <array>

#include "attributes/attribute_section.h"
#include "frame/can_database.h"
#include "text/statement_file.h"
#include "write/sections.h"
#include "write/write_order.h"

namespace vexil {
namespace {

using Section = void (*)(StatementFile& file, const MessageList& messages);

// In the order of the file.
constexpr std::array<Section, 8> sections = {
    WriteVersionAndSymbols, WriteBitTiming,        WriteNodes,
    WriteMessages,          WriteComments,         WriteAttributeSection,
    WriteValueDescriptions, WriteSignalValueTypes,
};

}  // namespace

bool WriteDbcFile(const char* path, std::uint32_t pathBufferSize, std::uint32_t order,
                  std::uint32_t& resultCode) {
    if (database.messages.Size() == 0) {
        resultCode = StateClosed;
        return false;
    }
    StatementFile file;
    file.Open(path, pathBufferSize, OpenMode::Write);
    resultCode = file.parseState;
    if (resultCode != StateWriting) {
        return false;
    }
    for (std::size_t at = 0; at < database.messages.Size(); ++at) {
        database.messages[at].MakeSignalNamesUnique(database.arena);
    }
    // There is no early exit: after a failure WriteLine does nothing.
    const MessageList messages = MessagesInOrder(database.messages, order);
    for (const Section write : sections) {
        write(file, messages);
    }
    // Intentional: the return value is determined before the file is closed, so only the result
    // code reports a failure of the last line.
    resultCode = file.parseState;
    file.Close();
    if (resultCode != StateWriting) {
        return false;
    }
    resultCode = file.parseState;
    return true;
}

}  // namespace vexil
