// The end of a read: copying the reserved attributes into the model, one row or step for each.
//
// An attribute has one owner kind and one type. A definition with others has no effect. Attributes
// of messages and signals have no effect without a definition.
// SPDX-License-Identifier: MIT
#include "read/attribute_fold.h"

#include <array>

#include "attributes/reserved_names.h"
#include "frame/can_database.h"
#include "frame/model_text.h"

namespace vexil {
namespace {

// The value if there is one, else the default.
const AttributeContent& ContentOf(const AttributeValue* value, const Attribute& definition) {
    return value != nullptr ? value->content : definition.defaultContent;
}

// The attribute of the network, or null when it is not defined: a value requires a definition.
const AttributeContent* NetworkContent(std::string_view name, AttributeValueType type) {
    AttributeTable& table = database.attributes;
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

// Intentional: a value other than 1 means no, whatever the default is.
void FoldProtocol(std::string_view name, std::uint32_t protocol) {
    const AttributeContent* number = NetworkContent(name, AttributeValueType::Int);
    if (number != nullptr && number->intValue == 1) {
        database.info.protocolType = protocol;
    }
}

// An attribute of messages or signals. fold sets the field of an owner from the definition and the
// value; value is null if the owner has none.
template <typename Owner>
struct OwnerAttribute {
    std::string_view name;
    AttributeValueType type = AttributeValueType::Unsup;
    void (*fold)(Owner& owner, const Attribute& definition, const AttributeValue* value) = nullptr;
};

// Sets the long name only, and ignores the default. A value has no control characters, since they
// separate the tokens of its statement.
template <typename Owner>
void FoldLongName(Owner& owner, const Attribute& /*definition*/, const AttributeValue* value) {
    owner.longName = value != nullptr ? value->content.stringValue : owner.longName;
}

void FoldSendType(CANMessage& message, const Attribute& definition, const AttributeValue* value) {
    message.sendType = IdentifierForm(
        database.arena, definition.EnumText(ContentOf(value, definition)).value_or(""));
}

template <auto number, typename Owner>
void FoldNumber(Owner& owner, const Attribute& definition, const AttributeValue* value) {
    owner.*number = ContentOf(value, definition).intValue;
}

constexpr std::array<OwnerAttribute<CANMessage>, 3> messageAttributes = {{
    {attribute::Marrowby_Msg_Name, AttributeValueType::Str, FoldLongName},
    {attribute::GenMsgSendType, AttributeValueType::Enum, FoldSendType},
    {attribute::GenMsgCycleTime, AttributeValueType::Int, FoldNumber<&CANMessage::cycleTime>},
}};

constexpr std::array<OwnerAttribute<CANSignal>, 3> signalAttributes = {{
    {attribute::Marrowby_Sig_Name, AttributeValueType::Str, FoldLongName},
    {attribute::GenSigStartValue, AttributeValueType::Int, FoldNumber<&CANSignal::startValue>},
    {attribute::GenSigInactiveValue, AttributeValueType::Int,
     FoldNumber<&CANSignal::inactiveValue>},
}};

void FoldMessages() {
    AttributeTable& table = database.attributes;
    for (const auto& [name, type, fold] : messageAttributes) {
        const Attribute* definition = table.FindDefinition(name, AttributeObjectKind::Msg, type);
        for (std::size_t at = 0; definition != nullptr && at < database.messages.Size(); ++at) {
            CANMessage& message = database.messages[at];
            fold(message, *definition, table.FindValue(*definition, message.id, {}));
        }
    }
}

// Attributes refer to a signal by its identifier.
void FoldSignals() {
    AttributeTable& table = database.attributes;
    for (const auto& [name, type, fold] : signalAttributes) {
        const Attribute* definition = table.FindDefinition(name, AttributeObjectKind::Sig, type);
        for (std::size_t at = 0; definition != nullptr && at < database.messages.Size(); ++at) {
            const CANMessage& message = database.messages[at];
            for (CANSignal* signal : message.signals) {
                fold(*signal, *definition, table.FindValue(*definition, message.id, signal->name));
            }
        }
    }
}

}  // namespace

void FoldReservedAttributes() {
    FoldBusType();
    // NMEA comes last, so it has precedence when a file sets both.
    FoldProtocol(attribute::J1939PGN, ProtocolJ1939);
    FoldProtocol(attribute::IsNMEA, ProtocolNmea);
    FoldMessages();
    FoldSignals();
}

}  // namespace vexil
