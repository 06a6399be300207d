// What a model is after the library has written it, and after that file has been read.
// SPDX-License-Identifier: MIT
#include "property/round_trip_rules.h"

#include <algorithm>
#include <cstring>
#include <map>
#include <utility>

#include "property/text_rules.h"
#include "support/reference_text.h"
#include "support/unique_names_twin.h"

namespace vexil::test {
namespace {

constexpr const char* DefaultNode = "Marrowby";

std::string ReceiverText(const ModelSignal& signal) {
    std::string text;
    for (const std::string& receiver : signal.receivers) {
        text += (text.empty() ? "" : ",") + receiver;
    }
    return text;
}

std::string DefaultNodes(const std::string& nodes) {
    return nodes.empty() ? DefaultNode : nodes;
}

std::string ControlCharacters(const std::string& text) {
    return WithoutControls(text);
}

bool IsFloat(const ModelSignal& signal) {
    return signal.valueType == ValueFloat32 || signal.valueType == ValueFloat64;
}

void IndicatorNames(const ModelSignal& written, ModelSignal& read) {
    std::string head = ' ' + written.name;
    if (written.multiplexType == MultiplexSelector) {
        head += " M";
    } else if (written.multiplexType == MultiplexSelected) {
        head += " m" + std::to_string(written.multiplexValue);
    }
    const Indicator indicator = IndicatorOf(head + ' ');
    read.multiplexType = indicator.type;
    read.multiplexValue = indicator.value;
    read.name = read.longName = indicator.name;
}

void OtherConstants(const ModelSignal& written, ModelSignal& read) {
    read.byteOrder = written.byteOrder != 0 ? 1 : 0;
    read.valueType = written.valueType != 0 ? 1 : 0;
}

// Returns the code of the statement's failure, or 0.
std::uint32_t TenDigits(const ModelSignal& written, ModelSignal& read) {
    read.factor = written.factor;
    read.offset = written.offset;
    read.minimum = written.minimum;
    read.maximum = written.maximum;
    if (!NumberByFile(read.factor) || !NumberByFile(read.offset)) {
        return StepSignalScaling;
    }
    if (!NumberByFile(read.minimum) || !NumberByFile(read.maximum)) {
        return StepSignalRange;
    }
    return 0;
}

void ReversedRanges(ModelSignal& read) {
    if (read.minimum > read.maximum) {
        std::swap(read.minimum, read.maximum);
    }
}

void UnitEnds(const ModelSignal& written, ModelSignal& read) {
    const std::string behindQuote =
        ControlCharacters(written.unit + "\" " + DefaultNodes(ReceiverText(written)) + '\n');
    const std::size_t closing = behindQuote.find('"');
    read.unit = reference::Trimmed(behindQuote.substr(0, closing));
    read.unitUtf8 = read.unit;  // UnitsInAscii
    read.receivers = ReceiversOf(behindQuote.substr(closing + 1));
}

// Returns the code of the statement's failure, or 0.
std::uint32_t ReadSignal(const ModelSignal& written, ModelSignal& read) {
    IndicatorNames(written, read);
    read.startBit = written.startBit;
    read.bitLength = written.bitLength;
    OtherConstants(written, read);
    const std::uint32_t code = TenDigits(written, read);
    ReversedRanges(read);
    UnitEnds(written, read);
    return code;
}

void ReadMessages(const std::vector<ModelMessage>& written, Model& read) {
    for (const ModelMessage& message : written) {
        if (message.name.empty()) {  // NamelessMessages
            read.errorCodes.push_back(StepMessageName);
            continue;
        }
        ModelMessage& owner = read.messages.emplace_back();
        owner.id = message.id;
        owner.dlc = message.dlc;
        owner.name = owner.longName = message.name;
        owner.transmitter = DefaultNodes(message.transmitter);
        for (const ModelSignal& signal : message.signals) {
            ModelSignal taken;  // OneWayAttributes: start and inactive value stay 0
            const std::uint32_t code = ReadSignal(signal, taken);
            if (code != 0) {  // LostSignals
                read.errorCodes.push_back(code);
                break;
            }
            owner.signals.push_back(taken);
        }
    }
}

// Calls visit for each signal of the id and name: SharedOwners.
template <typename Visit>
void ForEachSignal(Model& read, std::uint32_t id, const std::string& name, Visit visit) {
    for (ModelMessage& message : read.messages) {
        for (ModelSignal& signal : message.signals) {
            if (message.id == id && signal.name == name) {
                visit(signal);
            }
        }
    }
}

void ReadComments(const std::vector<ModelMessage>& written, Model& read) {
    const auto append = [](std::string& field, const std::string& comment) {
        field = WithEscapedQuotes(field + ControlCharacters(comment));
    };
    for (const ModelMessage& message : written) {
        for (ModelMessage& owner : read.messages) {
            if (owner.id == message.id) {
                append(owner.comment, message.comment);
            }
        }
        for (const ModelSignal& signal : message.signals) {
            ForEachSignal(read, message.id, signal.name,
                          [&](ModelSignal& owner) { append(owner.comment, signal.comment); });
        }
    }
}

// The first long name that a file gives to each owner; of two lines for one owner there is one, and
// that may be of no use.
template <typename Owner>
class LongNames {
  public:
    void Add(const Owner& owner, const std::string& statement, std::size_t tokenAt) {
        std::string text;
        if (written.insert(owner).second &&
            AttributeText(ControlCharacters(statement), tokenAt, text)) {
            names[owner] = WithoutLineControls(text);
        }
    }

    void Apply(const Owner& owner, std::string& longName) const {
        const auto name = names.find(owner);
        longName = name == names.end() ? longName : name->second;
    }

  private:
    std::set<Owner> written;
    std::map<Owner, std::string> names;
};

void LongNameDelimiters(const std::vector<ModelMessage>& written, Model& read) {
    LongNames<std::uint32_t> messageNames;
    LongNames<std::pair<std::uint32_t, std::string>> signalNames;
    for (const ModelMessage& message : written) {
        const std::string id = std::to_string(message.id);
        if (message.longName != message.name) {
            messageNames.Add(message.id, "BA_ \"N\" BO_ " + id + " \"" + message.longName + "\";",
                             4);
        }
        for (const ModelSignal& signal : message.signals) {
            if (signal.longName != signal.name) {
                signalNames.Add(
                    {message.id, signal.name},
                    "BA_ \"N\" SG_ " + id + ' ' + signal.name + " \"" + signal.longName + "\";", 5);
            }
        }
    }
    for (ModelMessage& message : read.messages) {
        messageNames.Apply(message.id, message.longName);
        for (ModelSignal& signal : message.signals) {
            signalNames.Apply({message.id, signal.name}, signal.longName);
        }
    }
}

void ReadDescriptions(const std::vector<ModelMessage>& written, Model& read) {
    for (const ModelMessage& message : written) {
        for (const ModelSignal& signal : message.signals) {
            if (IsFloat(signal) || signal.name.empty()) {  // FloatDescriptions, NamelessSignals
                continue;
            }
            std::string text;
            for (const auto& [value, description] : signal.enums) {
                text += ' ' + std::to_string(value) + " \"" + description + '"';
            }
            ForEachSignal(read, message.id, signal.name, [&](ModelSignal& owner) {
                AddDescriptions(ControlCharacters(text + ";\n"), owner.enums);  // DescriptionQuotes
            });
        }
    }
}

void ReadValueTypes(const std::vector<ModelMessage>& written, Model& read) {
    for (const ModelMessage& message : written) {
        for (const ModelSignal& signal : message.signals) {
            if (!IsFloat(signal) || signal.name.empty()) {  // NamelessSignals
                continue;
            }
            ForEachSignal(read, message.id, signal.name, [&](ModelSignal& owner) {
                if (owner.bitLength == (signal.valueType == ValueFloat32 ? 32U : 64U)) {
                    owner.valueType = signal.valueType;
                }
            });
        }
    }
}

DatabaseInfo OtherProtocols(const DatabaseInfo& written, const DatabaseInfo& before) {
    const bool isKnown =
        written.protocolType == ProtocolJ1939 || written.protocolType == ProtocolNmea;
    return {isKnown ? written.protocolType : static_cast<std::uint32_t>(ProtocolPlainCan),
            written.busType == BusCanFd ? written.busType : before.busType};
}

template <std::size_t Size>
void StoreCut(char (&array)[Size], const std::string& text) {
    const std::string cut = CutText(text, Size - 1);
    std::memcpy(array, cut.c_str(), cut.size() + 1);
}

SignalRecords RecordsOf(const ModelSignal& signal) {
    SignalRecords records;
    CanSignalRecord& record = records.record;
    StoreCut(record.name, signal.name);
    StoreCut(record.longName, signal.longName);
    StoreCut(record.unit, signal.unit);
    StoreCut(record.unitUtf8, signal.unitUtf8);
    StoreCut(record.receiverList, ReceiverText(signal));
    StoreCut(record.comment, signal.comment);
    record.multiplexType = signal.multiplexType;
    record.multiplexValue = signal.multiplexValue;
    record.startBit = signal.startBit;
    record.bitLength = signal.bitLength;
    record.byteOrder = signal.byteOrder;
    record.valueType = signal.valueType;
    record.factor = signal.factor;
    record.offset = signal.offset;
    record.minimum = signal.minimum;
    record.maximum = signal.maximum;
    record.startValue = signal.startValue;
    record.inactiveValue = signal.inactiveValue;
    record.enumCount = static_cast<std::uint32_t>(signal.enums.size());
    for (const auto& [value, text] : signal.enums) {
        CanEnumRecord& description = records.enums.emplace_back();
        description.value = value;
        StoreCut(description.text, text);
    }
    return records;
}

}  // namespace

bool SuffixedNames(Model& model) {
    bool hasChanged = false;
    for (ModelMessage& message : model.messages) {
        std::vector<TwinSignal> twins;
        for (const ModelSignal& signal : message.signals) {
            twins.push_back({signal.name, signal.hasNameSuffix});
        }
        TwinMakeSignalNamesUnique(twins);
        for (std::size_t at = 0; at < twins.size(); ++at) {
            ModelSignal& signal = message.signals[at];
            hasChanged = hasChanged || signal.name != twins[at].name;
            signal.name = twins[at].name;
            signal.hasNameSuffix = twins[at].hasNameSuffix;
        }
    }
    return hasChanged;
}

bool HoldsStrayKeyword(const Model& model) {
    const auto inSignal = [](const ModelSignal& signal) {
        return IsKeyword(signal.name) || HoldsKeyword(signal.unit) ||
               HoldsKeywordBehindItsFirstLine(signal.comment) ||
               std::any_of(signal.receivers.begin(), signal.receivers.end(), IsKeyword) ||
               std::any_of(signal.enums.begin(), signal.enums.end(),
                           [](const auto& entry) { return HoldsKeyword(entry.second); });
    };
    return std::any_of(
        model.messages.begin(), model.messages.end(), [&](const ModelMessage& message) {
            return IsKeyword(message.transmitter) ||
                   HoldsKeywordBehindItsFirstLine(message.comment) ||
                   std::any_of(message.signals.begin(), message.signals.end(), inSignal);
        });
}

std::vector<ModelMessage> InOrder(std::vector<ModelMessage> messages, std::uint32_t order) {
    if (order == OrderByIdDescending) {
        std::stable_sort(messages.begin(), messages.end(),
                         [](const auto& a, const auto& b) { return a.id > b.id; });
    } else if (order == OrderByNameAscending) {
        std::stable_sort(messages.begin(), messages.end(),
                         [](const auto& a, const auto& b) { return a.name < b.name; });
    }
    return messages;
}

Model ReadBack(const Model& model, std::uint32_t order, const DatabaseInfo& before) {
    const std::vector<ModelMessage> written = InOrder(model.messages, order);
    Model read;
    read.info = OtherProtocols(model.info, before);
    ReadMessages(written, read);
    ReadComments(written, read);
    LongNameDelimiters(written, read);
    ReadDescriptions(written, read);
    ReadValueTypes(written, read);
    return read;
}

DatabaseRecords RecordsOf(const Model& model) {
    DatabaseRecords records;
    records.info = model.info;
    for (const ModelMessage& message : model.messages) {
        MessageRecords& owner = records.messages.emplace_back();
        owner.record.id = message.id;
        owner.record.dlc = message.dlc;
        owner.record.signalCount = message.signals.size();
        StoreCut(owner.record.name, message.name);
        StoreCut(owner.record.longName, message.longName);
        StoreCut(owner.record.transmitter, message.transmitter);
        StoreCut(owner.record.comment, message.comment);
        StoreCut(owner.record.sendType, message.sendType);
        owner.record.cycleTime = message.cycleTime;
        for (const ModelSignal& signal : message.signals) {
            owner.signals.push_back(RecordsOf(signal));
        }
    }
    return records;
}

}  // namespace vexil::test
