// Iterates over the database through the functions of the library.
// SPDX-License-Identifier: MIT
#include "database/snapshot.h"

#include <cstring>

namespace vexil::tool {
namespace {

class Taker {
  public:
    explicit Taker(Snapshot& snapshot) : database(snapshot) {}

    void Run() {
        VexilGetDatabaseInfo(&database.info, sizeof database.info);
        database.messages.reserve(VexilGetNumCanMessages());
        CanMessageRecord record{};
        for (std::uint32_t index = 0; VexilGetCanMessageData(index, &record) != 0; ++index) {
            TakeMessage(index, record);
        }
        ParseError error{};
        for (std::uint32_t index = 0; VexilGetErrorData(index, &error) != 0; ++index) {
            database.errors.push_back({error.code, error.line, Keep(error.text)});
        }
    }

  private:
    TextRef Keep(const char* text) {
        const std::size_t size = std::strlen(text);
        const TextRef kept{static_cast<std::uint32_t>(database.texts.size()),
                           static_cast<std::uint32_t>(size)};
        database.texts.append(text, size);
        return kept;
    }

    // Does not store a text that equals another text of the record, which is the usual case.
    TextRef Keep(const char* text, TextRef other) {
        return database.Text(other) == text ? other : Keep(text);
    }

    void TakeMessage(std::uint32_t index, const CanMessageRecord& record) {
        MessageFacts message;
        message.id = record.id;
        message.dlc = record.dlc;
        message.name = Keep(record.name);
        message.longName = Keep(record.longName, message.name);
        message.transmitter = Keep(record.transmitter);
        message.comment = Keep(record.comment);
        message.sendType = Keep(record.sendType);
        message.cycleTime = record.cycleTime;
        message.firstSignal = static_cast<std::uint32_t>(database.signals.size());
        message.signalCount = static_cast<std::uint32_t>(record.signalCount);
        for (std::uint32_t signal = 0; signal < message.signalCount; ++signal) {
            TakeSignal(index, signal);
        }
        database.messages.push_back(message);
    }

    void TakeSignal(std::uint32_t messageIndex, std::uint32_t signalIndex) {
        VexilGetCanSignalData(messageIndex, signalIndex, &signalRecord);
        SignalFacts signal;
        signal.name = Keep(signalRecord.name);
        signal.longName = Keep(signalRecord.longName, signal.name);
        signal.unit = Keep(signalRecord.unit);
        signal.unitUtf8 = Keep(signalRecord.unitUtf8, signal.unit);
        signal.receiverList = Keep(signalRecord.receiverList);
        signal.comment = Keep(signalRecord.comment);
        signal.multiplexType = signalRecord.multiplexType;
        signal.multiplexValue = signalRecord.multiplexValue;
        signal.startBit = signalRecord.startBit;
        signal.bitLength = signalRecord.bitLength;
        signal.byteOrder = signalRecord.byteOrder;
        signal.valueType = signalRecord.valueType;
        signal.factor = signalRecord.factor;
        signal.offset = signalRecord.offset;
        signal.minimum = signalRecord.minimum;
        signal.maximum = signalRecord.maximum;
        signal.startValue = signalRecord.startValue;
        signal.inactiveValue = signalRecord.inactiveValue;
        signal.firstDescription = static_cast<std::uint32_t>(database.descriptions.size());
        signal.descriptionCount = signalRecord.enumCount;
        CanEnumRecord description{};
        for (std::uint32_t index = 0; index < signalRecord.enumCount; ++index) {
            VexilGetCanSignalEnumData(messageIndex, signalIndex, index, &description);
            database.descriptions.push_back({description.value, Keep(description.text)});
        }
        database.signals.push_back(signal);
    }

    Snapshot& database;
    CanSignalRecord signalRecord{};
};

}  // namespace

Snapshot TakeSnapshot() {
    Snapshot snapshot;
    Taker(snapshot).Run();
    return snapshot;
}

}  // namespace vexil::tool
