// The end of a read: one step per reserved attribute.
//
// An attribute is looked up under one kind and one type; a file that defines it otherwise does not
// reach the model. Attributes of messages and signals count only where they are defined.
// SPDX-License-Identifier: MIT
#include "read/attribute_fold.h"

#include <cstdint>
#include <string>
#include <string_view>

#include "attributes/reserved_names.h"
#include "frame/can_database.h"
#include "frame/model_text.h"
#include "text/lexical.h"

namespace vexil {
namespace {

// The value if there is one, else the default.
const AttributeContent& ContentOf(const AttributeValue* value, const Attribute& definition) {
    return value != nullptr ? value->content : definition.defaultContent;
}

// Calls fold(message, definition, value) for each message, if the attribute is defined; value is
// null where the message has none.
template <typename Fold>
void ForEachMessage(std::string_view name, AttributeValueType type, Fold fold) {
    const AttributeTable& table = database.attributes;
    const Attribute* definition = table.FindDefinition(name, AttributeObjectKind::Msg, type);
    if (definition == nullptr) {
        return;
    }
    for (const auto& message : database.messages) {
        fold(*message, *definition, table.FindValue(*definition, message->id, {}));
    }
}

// The same for each signal of each message. A signal is known by its identifier.
template <typename Fold>
void ForEachSignal(std::string_view name, AttributeValueType type, Fold fold) {
    const AttributeTable& table = database.attributes;
    const Attribute* definition = table.FindDefinition(name, AttributeObjectKind::Sig, type);
    if (definition == nullptr) {
        return;
    }
    for (const auto& message : database.messages) {
        for (const auto& signal : message->signals) {
            fold(*signal, *definition, table.FindValue(*definition, message->id, signal->name));
        }
    }
}

// What the network has of the attribute, or null when it is not defined: a value needs a
// definition.
const AttributeContent* NetworkContent(std::string_view name, AttributeValueType type) {
    const AttributeTable& table = database.attributes;
    const Attribute* definition = table.FindDefinition(name, AttributeObjectKind::Gen, type);
    return definition == nullptr ? nullptr
                                 : &ContentOf(table.FindValue(*definition, 0, {}), *definition);
}

void FoldBusType() {
    const AttributeContent* text = NetworkContent(attribute::BusType, AttributeValueType::Str);
    if (text != nullptr) {
        database.info.busType = text->stringValue == CanFdText ? BusCanFd : BusClassicCan;
    }
}

// Kept on purpose: a value other than 1 means no, and the default is not asked then.
void FoldProtocol(std::string_view name, std::uint32_t protocol) {
    const AttributeContent* number = NetworkContent(name, AttributeValueType::Int);
    if (number != nullptr && number->intValue == 1) {
        database.info.protocolType = protocol;
    }
}

// NMEA comes last, so it wins when a file claims both.
void FoldProtocolType() {
    FoldProtocol(attribute::J1939PGN, ProtocolJ1939);
    FoldProtocol(attribute::IsNMEA, ProtocolNmea);
}

// Only the name for display changes; a default is no name.
template <typename Owner>
void SetLongName(Owner& owner, const AttributeValue* value) {
    if (value != nullptr) {
        owner.longName = value->content.stringValue;
        CleanControlChars(owner.longName);
    }
}

void FoldMessageNames() {
    ForEachMessage(attribute::Marrowby_Msg_Name, AttributeValueType::Str,
                   [](CANMessage& message, const Attribute&, const AttributeValue* value) {
                       SetLongName(message, value);
                   });
}

void FoldSendTypes() {
    ForEachMessage(
        attribute::GenMsgSendType, AttributeValueType::Enum,
        [](CANMessage& message, const Attribute& definition, const AttributeValue* value) {
            const std::string* text = definition.EnumText(ContentOf(value, definition));
            message.sendType = text != nullptr ? MakeCIdentifier(*text) : std::string();
        });
}

void FoldCycleTimes() {
    ForEachMessage(
        attribute::GenMsgCycleTime, AttributeValueType::Int,
        [](CANMessage& message, const Attribute& definition, const AttributeValue* value) {
            message.cycleTime = ContentOf(value, definition).intValue;
        });
}

void FoldSignalNames() {
    ForEachSignal(attribute::Marrowby_Sig_Name, AttributeValueType::Str,
                  [](CANSignal& signal, const Attribute&, const AttributeValue* value) {
                      SetLongName(signal, value);
                  });
}

void FoldStartValues() {
    ForEachSignal(attribute::GenSigStartValue, AttributeValueType::Int,
                  [](CANSignal& signal, const Attribute& definition, const AttributeValue* value) {
                      signal.startValue = ContentOf(value, definition).intValue;
                  });
}

void FoldInactiveValues() {
    ForEachSignal(attribute::GenSigInactiveValue, AttributeValueType::Int,
                  [](CANSignal& signal, const Attribute& definition, const AttributeValue* value) {
                      signal.inactiveValue = ContentOf(value, definition).intValue;
                  });
}

}  // namespace

void FoldReservedAttributes() {
    FoldBusType();
    FoldProtocolType();
    FoldMessageNames();
    FoldSendTypes();
    FoldCycleTimes();
    FoldSignalNames();
    FoldStartValues();
    FoldInactiveValues();
}

}  // namespace vexil
