// A record on each line, its fields in the order of the header.
// SPDX-License-Identifier: MIT
#include "view/network_json.h"

#include <array>
#include <charconv>
#include <ostream>

#include "document/json_text.h"
#include "document/network_shapes.h"

namespace vexil::tool {
namespace {

constexpr std::size_t BufferSize = 1 << 16;

// With two digits, as --version prints it.
std::string LibraryVersion() {
    constexpr int Digits = 2;
    std::array<char, 32> text{};
    const auto result = std::to_chars(text.data(), text.data() + text.size(),
                                      VexilGetLibraryVersion(), std::chars_format::fixed, Digits);
    return {text.data(), result.ptr};
}

void AppendFields(std::string& out, std::span<const RecordField> fields, const void* record) {
    char separator = '{';
    for (const RecordField& field : fields) {
        out += separator;
        out += '"';
        out += field.name;
        out += "\":";
        AppendJsonValue(out, field, record);
        separator = ',';
    }
}

// Whether the record may have cut the text. It cuts at a character, so up to three bytes of the
// field are free then.
//   unused  bytes at the end of the field that no text reaches
bool MayBeCut(const RecordField& field, const void* record, std::size_t unused) {
    constexpr std::size_t LargestCharacter = 4;
    return field.kind == FieldKind::Text &&
           LoadText(field, record).size() + LargestCharacter + unused >= field.size;
}

// Appends the list of texts that may be cut, if there is any.
void AppendCut(std::string& out, std::span<const RecordField> fields, const void* record) {
    const bool isError = fields.data() == ErrorFields().data();
    const std::size_t unused = isError ? 1 : 0;
    std::string_view separator = R"(,"cut":[)";
    for (const RecordField& field : fields) {
        if (MayBeCut(field, record, unused)) {
            out += separator;
            AppendJsonText(out, field.name);
            separator = ",";
        }
    }
    out += separator == "," ? "]" : "";
}

}  // namespace

NetworkJson::NetworkJson(std::ostream& out, const DatabaseInfo& info) : stream(out) {
    buffer += R"({"formatVersion":)";
    AppendJsonWhole(buffer, DocumentFormat);
    buffer += ",\n\"libraryVersion\":";
    AppendJsonText(buffer, LibraryVersion());
    buffer += ",\n\"info\":";
    AppendFields(buffer, InfoFields(), &info);
    buffer += "},\n\"messages\":[";
}

void NetworkJson::Add(const CanMessageRecord& message) {
    CloseTo(Level::Messages);
    Begin(MessageFields(), &message, Level::Signals);
    buffer += R"(,"signals":[)";
}

void NetworkJson::Add(const CanSignalRecord& signal) {
    CloseTo(Level::Signals);
    Begin(SignalFields(), &signal, Level::Descriptions);
    buffer += R"(,"valueDescriptions":[)";
}

void NetworkJson::Add(const CanEnumRecord& description) {
    Begin(DescriptionFields(), &description, Level::Descriptions);
    buffer += '}';
    isFirst = false;
}

void NetworkJson::Add(const ParseError& error) {
    CloseTo(Level::Errors);
    Begin(ErrorFields(), &error, Level::Errors);
    buffer += '}';
    isFirst = false;
}

void NetworkJson::BeginAccount() {
    CloseTo(Level::Done);
    buffer += ",\n\"account\":";
    Flush();
}

void NetworkJson::Finish() {
    CloseTo(Level::Done);
    buffer += "}\n";
    Flush();
}

// Begins an object with its fields on a line of its own. The list after it has no element yet.
void NetworkJson::Begin(std::span<const RecordField> fields, const void* record, Level after) {
    if (buffer.size() > BufferSize) {
        Flush();
    }
    buffer += isFirst ? "\n" : ",\n";
    AppendFields(buffer, fields, record);
    AppendCut(buffer, fields, record);
    isFirst = true;
    level = after;
}

// Ends the objects and lists that are open inside a level, and those before it.
void NetworkJson::CloseTo(Level target) {
    if (level == Level::Descriptions && target != Level::Descriptions) {
        buffer += isFirst ? "]}" : "\n]}";
        isFirst = false;
        level = Level::Signals;
    }
    if (level == Level::Signals && target != Level::Signals) {
        buffer += isFirst ? "]}" : "\n]}";
        isFirst = false;
        level = Level::Messages;
    }
    if (level == Level::Messages && target != Level::Messages && target != Level::Signals) {
        buffer += isFirst ? "]" : "\n]";
        buffer += ",\n\"errors\":[";
        isFirst = true;
        level = Level::Errors;
    }
    if (level == Level::Errors && target == Level::Done) {
        buffer += isFirst ? "]" : "\n]";
        level = Level::Done;
    }
}

void NetworkJson::Flush() {
    stream.write(buffer.data(), static_cast<std::streamsize>(buffer.size()));
    buffer.clear();
}

}  // namespace vexil::tool
