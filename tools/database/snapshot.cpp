// Walking the database through the functions of the library.
// SPDX-License-Identifier: MIT
#include "database/snapshot.h"

#include <cstring>

namespace vexil::tool {
namespace {

class Taker {
  public:
    explicit Taker(Snapshot& snapshot) : snapshot_(snapshot) {}

    void Run() {
        VexilGetDatabaseInfo(&snapshot_.info, sizeof snapshot_.info);
        snapshot_.messages.reserve(VexilGetNumCanMessages());
        CanMessageRecord record{};
        for (std::uint32_t index = 0; VexilGetCanMessageData(index, &record) != 0; ++index) {
            TakeMessage(index, record);
        }
        ParseError error{};
        for (std::uint32_t index = 0; VexilGetErrorData(index, &error) != 0; ++index) {
            snapshot_.errors.push_back({error.code, error.line, Keep(error.text)});
        }
    }

  private:
    TextRef Keep(const char* text) {
        const std::size_t size = std::strlen(text);
        const TextRef kept{static_cast<std::uint32_t>(snapshot_.texts.size()),
                           static_cast<std::uint32_t>(size)};
        snapshot_.texts.append(text, size);
        return kept;
    }

    // A text that is mostly the same as another one of the record shares its place.
    TextRef Keep(const char* text, TextRef other) {
        return snapshot_.Text(other) == text ? other : Keep(text);
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
        message.firstSignal = static_cast<std::uint32_t>(snapshot_.signals.size());
        message.signalCount = static_cast<std::uint32_t>(record.signalCount);
        for (std::uint32_t signal = 0; signal < message.signalCount; ++signal) {
            TakeSignal(index, signal);
        }
        snapshot_.messages.push_back(message);
    }

    void TakeSignal(std::uint32_t messageIndex, std::uint32_t signalIndex) {
        VexilGetCanSignalData(messageIndex, signalIndex, &signal_);
        SignalFacts signal;
        signal.name = Keep(signal_.name);
        signal.longName = Keep(signal_.longName, signal.name);
        signal.unit = Keep(signal_.unit);
        signal.unitUtf8 = Keep(signal_.unitUtf8, signal.unit);
        signal.receiverList = Keep(signal_.receiverList);
        signal.comment = Keep(signal_.comment);
        signal.multiplexType = signal_.multiplexType;
        signal.multiplexValue = signal_.multiplexValue;
        signal.startBit = signal_.startBit;
        signal.bitLength = signal_.bitLength;
        signal.byteOrder = signal_.byteOrder;
        signal.valueType = signal_.valueType;
        signal.factor = signal_.factor;
        signal.offset = signal_.offset;
        signal.minimum = signal_.minimum;
        signal.maximum = signal_.maximum;
        signal.startValue = signal_.startValue;
        signal.inactiveValue = signal_.inactiveValue;
        signal.firstDescription = static_cast<std::uint32_t>(snapshot_.descriptions.size());
        signal.descriptionCount = signal_.enumCount;
        CanEnumRecord description{};
        for (std::uint32_t index = 0; index < signal_.enumCount; ++index) {
            VexilGetCanSignalEnumData(messageIndex, signalIndex, index, &description);
            snapshot_.descriptions.push_back({description.value, Keep(description.text)});
        }
        snapshot_.signals.push_back(signal);
    }

    Snapshot& snapshot_;
    CanSignalRecord signal_{};
};

}  // namespace

Snapshot TakeSnapshot() {
    Snapshot snapshot;
    Taker(snapshot).Run();
    return snapshot;
}

}  // namespace vexil::tool
