// The attribute section of a written file. attribute_statements.h reads its lines, and
// read/attribute_fold.h copies their values into the model.
// SPDX-License-Identifier: MIT
#include "attributes/attribute_section.h"

#include "attributes/attribute_text.h"
#include "attributes/reserved_names.h"
#include "frame/can_database.h"

namespace vexil {
namespace {

// A file without the attribute means classic CAN.
void DefineBusType(AttributeTable& table) {
    if (database.info.busType == BusCanFd) {
        Attribute busType;
        busType.name = attribute::BusType;
        busType.valueType = AttributeValueType::Str;
        busType.defaultContent.stringValue = CanFdText;
        table.AddDefinition(busType);
    }
}

void DefineProtocol(AttributeTable& table) {
    const std::uint32_t type = database.info.protocolType;
    if (type == ProtocolJ1939 || type == ProtocolNmea) {
        Attribute protocol;
        protocol.name = type == ProtocolJ1939 ? attribute::J1939PGN : attribute::IsNMEA;
        protocol.minValue = 0;
        protocol.maxValue = 1;
        protocol.defaultContent.intValue = 1;
        table.AddDefinition(protocol);
    }
}

// Adds the definition of a name attribute, without which its values have no effect.
const Attribute* DefineName(AttributeTable& table, std::string_view name,
                            AttributeObjectKind kind) {
    Attribute definition;
    definition.name = name;
    definition.objectKind = kind;
    definition.valueType = AttributeValueType::Str;
    table.AddDefinition(definition);
    return table.definitions.back().get();
}

void AddMessageNames(AttributeTable& table, const MessageList& messages) {
    const Attribute* definition = nullptr;
    for (const CANMessage* message : messages) {
        if (message->longName == message->name) {
            continue;
        }
        if (definition == nullptr) {
            definition = DefineName(table, attribute::Marrowby_Msg_Name, AttributeObjectKind::Msg);
        }
        table.AddValue({definition, {}, {.stringValue = message->longName}, message->id});
    }
}

void AddSignalNames(AttributeTable& table, const MessageList& messages) {
    const Attribute* definition = nullptr;
    for (const CANMessage* message : messages) {
        for (const CANSignal* signal : message->signals) {
            if (signal->longName == signal->name) {
                continue;
            }
            if (definition == nullptr) {
                definition =
                    DefineName(table, attribute::Marrowby_Sig_Name, AttributeObjectKind::Sig);
            }
            table.AddValue(
                {definition, signal->name, {.stringValue = signal->longName}, message->id});
        }
    }
}

}  // namespace

void WriteAttributeSection(StatementFile& file, const MessageList& messages) {
    AttributeTable table;
    DefineBusType(table);
    DefineProtocol(table);
    AddMessageNames(table, messages);
    AddSignalNames(table, messages);
    LineBuffer text;
    AppendAttributeSection(text, table);
    if (text.Size() != 0) {
        file.WriteLine(text);
    }
}

}  // namespace vexil
