// Builds the database from the records of a document, one message after the other.
// SPDX-License-Identifier: MIT
#pragma once

#include <vexil64.h>

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "document/remarks.h"

namespace vexil::tool {

// Where a record is in the document, without its message and signal.
using DocumentIndex = std::uint32_t;

// Which fields of a record the document has: a bit for each row of its table in record_fields.h.
using FieldSet = std::uint32_t;

struct DescriptionDraft {
    DocumentIndex index = 0;
    std::int32_t value = 0;
    std::string text;
};

struct SignalDraft {
    SignalDraft();  // with the defaults of the fields that a document may leave out

    DocumentIndex index = 0;
    FieldSet given = 0;
    CanSignalRecord record{};
    std::vector<DescriptionDraft> descriptions;
};

struct MessageDraft {
    MessageDraft();

    DocumentIndex index = 0;
    FieldSet given = 0;
    CanMessageRecord record{};
    std::vector<SignalDraft> signals;
};

class NetworkBuilder {
  public:
    // Empties the database. The result must live as long as the builder.
    explicit NetworkBuilder(DocumentResult& documentResult);

    static void SetInfo(const DatabaseInfo& info);

    // Appends a message with its signals and value descriptions, fetches their records again, and
    // adds a remark for each value that differs.
    void Add(const MessageDraft& message);

  private:
    void AddSignal(const MessageDraft& message, const SignalDraft& signal);
    void AddDescriptions(const std::string& path, std::uint32_t signalIndex,
                         const SignalDraft& signal);
    void Refuse(const std::string& path);

    DocumentResult& result;
    std::uint32_t messageIndex = 0;  // of the last message in the database
};

// The paths of the records.
std::string PathOfMessage(DocumentIndex message);
std::string PathOfSignal(DocumentIndex message, DocumentIndex signal);

}  // namespace vexil::tool
