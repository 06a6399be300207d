// Receives the values of a document one by one, and passes each complete message to the builder.
// Only the values of one message are in memory at a time.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "document/network_builder.h"
#include "document/network_shapes.h"
#include "document/remarks.h"

namespace vexil::tool {

class NetworkReader {
  public:
    // Empties the database. The result must live as long as the reader.
    explicit NetworkReader(DocumentResult& documentResult);

    // Receive the parts of the document in their order. Return false to stop parsing; the result
    // then has a fault.
    bool Key(std::string_view name);
    bool Scalar(const JsonScalar& scalar);
    bool BeginObject();
    bool EndObject();
    bool BeginList();
    bool EndList();

    // Returns the path of the next value, or of a member of the next object.
    std::string Path(std::string_view member = {}) const;

  private:
    // An object or list that has begun and is not skipped.
    struct Frame {
        Shape shape;
        bool isList;
        bool isRefused = false;          // object: the database must not have it
        DocumentIndex index = 0;         // list: of the next element
        FieldSet seen = 0;               // object: the rows of the members that it has
        const Member* member = nullptr;  // object: whose value comes next
        bool isNamed = false;            // object: a member has begun
        std::string name = {};           // object: of that member, even if unknown
    };

    bool IsTooDeep();
    bool Begin(bool isList);
    void Open(Shape shape, bool isList);
    void Finish(Frame& object);
    void FinishDescription(Frame& object);
    void FinishSignal(Frame& object);
    void FinishMessage(Frame& object);
    void RequireName(Frame& object);
    void Accept(const Member& member, const JsonScalar& scalar);
    void* RecordOf(Shape shape);
    void Require(Frame& object, std::string_view name);
    void Refuse(std::string_view member, std::string_view text);
    void RemarkOnCut();
    void RefuseRecord(std::string_view text);
    void Leave();

    DocumentResult& result;
    NetworkBuilder builder;
    std::vector<Frame> frames;
    std::size_t skipped = 0;  // depth of nested objects and lists that are skipped

    // The objects and lists that have begun, the innermost last.
    DatabaseInfo info{};
    MessageDraft message;
    SignalDraft signal;
    CanEnumRecord description{};
};

}  // namespace vexil::tool
