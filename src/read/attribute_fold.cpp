// The end of a read: one step per reserved attribute.
//
// An attribute is looked up under one kind and one type; a file that defines it otherwise does not
// reach the model. Attributes of messages and signals count only where they are defined.
// SPDX-License-Identifier: MIT
#include "read/attribute_fold.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

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

// Finds the values that one definition has for the owners of the model. Most files give them in the
// order of the model, so a look at the next value spares most searches.
class ValuesOfOwners {
  public:
    ValuesOfOwners(const AttributeTable& attributes, const Attribute& attributeDefinition)
        : table(attributes), definition(attributeDefinition) {}

    // As AttributeTable::FindValue.
    const AttributeValue* Find(std::uint32_t messageId, std::string_view signalName) {
        const AttributeValue* value = Next();
        if (value == nullptr || value->messageId != messageId || value->signalName != signalName) {
            value = table.FindValue(definition, messageId, signalName);
        }
        if (value != nullptr) {
            next = static_cast<std::size_t>(value - table.values.data()) + 1;
        }
        return value;
    }

  private:
    // The first value of the definition behind the last one found, if it is near.
    const AttributeValue* Next() {
        const std::size_t end = std::min(next + LookAhead, table.values.size());
        for (std::size_t at = next; at < end; ++at) {
            if (table.values[at].definition == &definition) {
                return &table.values[at];
            }
        }
        return nullptr;
    }

    static constexpr std::size_t LookAhead = 32;  // entries; values of other owners stand between

    const AttributeTable& table;
    const Attribute& definition;
    std::size_t next = 0;  // position in the values of the table
};

// Calls fold(message, definition, value) for each message, if the attribute is defined; value is
// null where the message has none.
template <typename Fold>
void ForEachMessage(std::string_view name, AttributeValueType type, Fold fold) {
    const AttributeTable& table = database.attributes;
    const Attribute* definition = table.FindDefinition(name, AttributeObjectKind::Msg, type);
    if (definition == nullptr) {
        return;
    }
    ValuesOfOwners values(table, *definition);
    for (const auto& message : database.messages) {
        fold(*message, *definition, values.Find(message->id, {}));
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
    ValuesOfOwners values(table, *definition);
    for (const auto& message : database.messages) {
        for (const auto& signal : message->signals) {
            fold(*signal, *definition, values.Find(message->id, signal->name));
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

// The names for display that values give, each made once, however many owners a value has.
class LongNames {
  public:
    const SharedText& Of(const AttributeValue& value) {
        const auto& values = database.attributes.values;
        names.resize(values.size());
        SharedText& name = names[static_cast<std::size_t>(&value - values.data())];
        if (name.IsEmpty()) {
            name = DisplayForm(SharedText(value.content.stringValue));
        }
        return name;
    }

  private:
    std::vector<SharedText> names;  // by position of the value
};

// Only the name for display changes; a default is no name.
template <typename Owner>
auto SetLongName(LongNames& names) {
    return [&names](Owner& owner, const Attribute&, const AttributeValue* value) {
        if (value != nullptr) {
            owner.longName = names.Of(*value);
        }
    };
}

void FoldMessageNames() {
    LongNames names;
    ForEachMessage(attribute::Marrowby_Msg_Name, AttributeValueType::Str,
                   SetLongName<CANMessage>(names));
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
    LongNames names;
    ForEachSignal(attribute::Marrowby_Sig_Name, AttributeValueType::Str,
                  SetLongName<CANSignal>(names));
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
