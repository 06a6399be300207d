// The outcomes of attribute statements at the end of a file: values of unknown owners, and
// statements that have no effect because the same is true without them.
// SPDX-License-Identifier: MIT

#include <algorithm>
#include <map>

#include "account/attribute_words.h"
#include "account/lexical.h"
#include "format/format.h"

namespace vexil::tool {

class AttributeEffects {
  public:
    AttributeEffects(const AttributeBook& book, const Owners& owners, const Snapshot& snapshot)
        : attributeBook(book),
          readOwners(owners),
          database(snapshot),
          covered(book.definitions.size()),
          hasEffect(book.definitions.size()) {
        for (std::uint32_t message = 0; message < snapshot.messages.size(); ++message) {
            const MessageFacts& facts = snapshot.messages[message];
            for (std::uint32_t index = 0; index < facts.signalCount; ++index) {
                const std::uint32_t signal = facts.firstSignal + index;
                const std::string_view name = snapshot.Text(snapshot.signals[signal].name);
                if (signal < owners.SignalsRead() && owners.SignalName(signal) != name) {
                    otherNames.try_emplace({facts.id, name}, signal);
                }
            }
        }
    }

    std::vector<AttributeBook::LateOutcome> Run() {
        for (const auto& [statement, name] : attributeBook.undefined) {
            if (attributeBook.FindForValue(name)) {
                outcomes.push_back({statement, {Cause::BeforeItsDefinition, name}});
            }
        }
        for (const std::uint32_t statement : attributeBook.overwritten) {
            outcomes.push_back({statement, {Cause::OverwrittenDefault, ""}});
        }
        for (const AttributeBook::Value& value : attributeBook.values) {
            ClassifyValue(value);
        }
        for (const AttributeBook::Default& each : attributeBook.defaults) {
            if (!DefaultHasEffect(attributeBook.definitions[each.definition], each.definition)) {
                AddWithoutEffect(each.statement, "it says what holds without it");
            }
        }
        for (std::uint32_t index = 0; index < attributeBook.definitions.size(); ++index) {
            const AttributeBook::Definition& definition = attributeBook.definitions[index];
            if (definition.IsUsed() && !DefinitionHasEffect(definition, index)) {
                AddWithoutEffect(definition.statement, "no value of it has an effect");
            }
        }
        return std::move(outcomes);
    }

  private:
    using Definition = AttributeBook::Definition;

    void AddWithoutEffect(std::uint32_t statement, std::string_view detail) {
        outcomes.push_back({statement, {Cause::KeptWithoutEffect, std::string(detail)}});
    }

    // The first signal of an id whose identifier is the name.
    std::uint32_t FindSignal(std::uint32_t id, const std::string& name) const {
        for (std::uint32_t signal = readOwners.FirstSignal(id, name); signal != NoIndex;
             signal = readOwners.NextSignal(signal)) {
            if (database.Text(database.signals[signal].name) == name) {
                return signal;
            }
        }
        const auto other = otherNames.find({id, name});
        return other == otherNames.end() ? NoIndex : other->second;
    }

    void ClassifyValue(const AttributeBook::Value& value) {
        const Definition& definition = attributeBook.definitions[value.definition];
        std::string_view written;
        if (definition.owner == AttributeOwner::Message) {
            const std::uint32_t message = readOwners.FirstMessage(value.id);
            if (message == NoIndex) {
                outcomes.push_back(
                    {value.statement,
                     {Cause::UnknownMessage, Format("no message has the id {}", value.id)}});
                return;
            }
            written = readOwners.MessageName(message);
            covered[value.definition] += readOwners.MessageCount(value.id);
        } else if (definition.owner == AttributeOwner::Signal) {
            const std::uint32_t signal = FindSignal(value.id, value.signal);
            if (signal == NoIndex) {
                outcomes.emplace_back(value.statement, MissingSignal(value));
                return;
            }
            written = readOwners.SignalName(signal);
            ++covered[value.definition];
        } else {
            ++covered[value.definition];
        }
        if (ValueHasEffect(definition, value.value, written)) {
            hasEffect[value.definition] = true;
        } else {
            AddWithoutEffect(value.statement, "the value is what holds without it");
        }
    }

    Outcome MissingSignal(const AttributeBook::Value& value) const {
        if (readOwners.FirstMessage(value.id) == NoIndex) {
            return {Cause::UnknownMessage, Format("no message has the id {}", value.id)};
        }
        return {Cause::UnknownSignal,
                Format("message {} has no signal {}", value.id, value.signal)};
    }

    static std::string ChoiceOf(const Definition& definition, std::int32_t number) {
        const auto index = static_cast<std::size_t>(number);
        return index < definition.choices.size() ? MakeIdentifier(definition.choices[index]) : "";
    }

    bool ValueHasEffect(const Definition& definition, const AttributeValue& value,
                        std::string_view written) const {
        if (definition.owner == AttributeOwner::Network) {
            return definition.type == AttributeType::Text
                       ? IsCanFd(value) != IsCanFd(definition.byDefault)
                       : IsProtocol(definition) &&
                             (value.number == 1) != (definition.byDefault.number == 1);
        }
        switch (definition.type) {
            case AttributeType::Int:
                return value.number != definition.byDefault.number;
            case AttributeType::Enum:
                return ChoiceOf(definition, value.number) !=
                       ChoiceOf(definition, definition.byDefault.number);
            default:
                return value.text != written;
        }
    }

    static bool IsCanFd(const AttributeValue& value) { return value.text == "CAN FD"; }

    // Whether this attribute decides the protocol: IsNMEA takes precedence over J1939PGN.
    bool IsProtocol(const Definition& definition) const {
        return definition.attribute->name == "IsNMEA" || database.info.protocolType != ProtocolNmea;
    }

    // Whether any object has no value of its own.
    bool IsUncovered(const Definition& definition, std::uint32_t index) const {
        switch (definition.owner) {
            case AttributeOwner::Message:
                return covered[index] < database.messages.size();
            case AttributeOwner::Signal:
                return covered[index] < database.signals.size();
            default:
                return covered[index] == 0;
        }
    }

    bool DefaultHasEffect(const Definition& definition, std::uint32_t index) const {
        if (!IsUncovered(definition, index)) {
            return false;
        }
        if (definition.owner == AttributeOwner::Network) {
            return definition.type == AttributeType::Text
                       ? IsCanFd(definition.byDefault)
                       : IsProtocol(definition) && definition.byDefault.number == 1;
        }
        switch (definition.type) {
            case AttributeType::Int:
                return definition.byDefault.number != 0;
            case AttributeType::Enum:
                return ChoiceOf(definition, definition.byDefault.number) != ChoiceOf(definition, 0);
            default:
                return false;
        }
    }

    bool DefinitionHasEffect(const Definition& definition, std::uint32_t index) const {
        const std::string_view name = definition.attribute->name;
        if (name == "BusType") {
            return database.info.busType == BusCanFd;
        }
        if (name == "J1939PGN") {
            return database.info.protocolType == ProtocolJ1939;
        }
        if (name == "IsNMEA") {
            return database.info.protocolType == ProtocolNmea;
        }
        const auto anyMessage = [this](auto has) {
            return std::any_of(database.messages.begin(), database.messages.end(), has);
        };
        const auto anySignal = [this](auto has) {
            return std::any_of(database.signals.begin(), database.signals.end(), has);
        };
        if (name == "GenMsgSendType") {
            return anyMessage([](const MessageFacts& each) { return each.sendType.size != 0; });
        }
        if (name == "GenMsgCycleTime") {
            return anyMessage([](const MessageFacts& each) { return each.cycleTime != 0; });
        }
        if (name == "GenSigStartValue") {
            return anySignal([](const SignalFacts& each) { return each.startValue != 0; });
        }
        if (name == "GenSigInactiveValue") {
            return anySignal([](const SignalFacts& each) { return each.inactiveValue != 0; });
        }
        return hasEffect[index];
    }

    const AttributeBook& attributeBook;
    const Owners& readOwners;
    const Snapshot& database;
    std::vector<std::size_t> covered;  // objects with a value of their own, by definition
    std::vector<bool> hasEffect;
    std::map<std::pair<std::uint32_t, std::string_view>, std::uint32_t> otherNames;
    std::vector<AttributeBook::LateOutcome> outcomes;
};

std::vector<AttributeBook::LateOutcome> AttributeBook::Finish(const Owners& owners,
                                                              const Snapshot& snapshot) const {
    return AttributeEffects(*this, owners, snapshot).Run();
}

}  // namespace vexil::tool
