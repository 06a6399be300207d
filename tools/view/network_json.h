// The database as a JSON document; docs/network.schema.json describes it.
// SPDX-License-Identifier: MIT
#pragma once

#include <vexil64.h>

#include <iosfwd>
#include <span>
#include <string>

#include "database/record_fields.h"

namespace vexil::tool {

// Writes the document as the records come, so that it is never in memory as a whole. The records of
// a message follow it: its signals, and after each signal the value descriptions of it. All errors
// follow all messages.
class NetworkJson {
  public:
    NetworkJson(std::ostream& out, const DatabaseInfo& info);

    void Add(const CanMessageRecord& message);
    void Add(const CanSignalRecord& signal);
    void Add(const CanEnumRecord& description);
    void Add(const ParseError& error);

    // Ends all but the document, and begins its member "account", whose value the caller writes.
    void BeginAccount();

    void Finish();

  private:
    // What is open, the outer one first.
    enum class Level { Messages, Signals, Descriptions, Errors, Done };

    void Begin(std::span<const RecordField> fields, const void* record, Level after);
    void CloseTo(Level target);
    void Flush();

    std::ostream& stream;
    std::string buffer;
    Level level = Level::Messages;
    bool isFirst = true;  // of its list
};

}  // namespace vexil::tool
