// What one trip through a written file changes.
// SPDX-License-Identifier: MIT
#include "corpus/trip_exceptions.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string_view>

namespace vexil::test {
namespace {

// Each changes a record and tells whether it did.
using MessageChange = bool (*)(MessageRecords& message);
using SignalChange = bool (*)(SignalRecords& signal);

struct TripException {
    const char* name;
    const char* reason;
    MessageChange message;
    SignalChange signal;
};

bool RoundToTenDigits(double& number) {
    char text[64];
    std::snprintf(text, sizeof text, "%.10g", number);
    const double rounded = std::strtod(text, nullptr);
    const bool changed = rounded != number;
    number = rounded;
    return changed;
}

template <std::size_t Size>
bool FillIfEmpty(char (&text)[Size], const char* filling) {
    if (text[0] != '\0') {
        return false;
    }
    std::snprintf(text, Size, "%s", filling);
    return true;
}

// Each run of delimiters inside or at the end of text becomes one blank. One in front does not come
// from a name, which begins with a character that is no white space; a comma there is no case here.
template <std::size_t Size>
bool FoldDelimiters(char (&text)[Size]) {
    constexpr std::string_view Delimiters = " \f\n\r\t\v;,";
    std::string folded;
    for (const char ch : std::string(text)) {
        if (Delimiters.find(ch) == std::string_view::npos) {
            folded += ch;
        } else if (!folded.ends_with(' ')) {
            folded += ' ';
        }
    }
    const bool changed = folded != text;
    std::snprintf(text, Size, "%s", folded.c_str());
    return changed;
}

// Numbers the signals of one name, from 0 on, with a name of at most 32 characters.
bool NumberEqualNames(MessageRecords& message) {
    std::map<std::string, int> signalsOfName;
    for (const SignalRecords& signal : message.signals) {
        ++signalsOfName[signal.record.name];
    }
    std::map<std::string, int> next;
    bool changed = false;
    for (SignalRecords& signal : message.signals) {
        const std::string name = signal.record.name;
        if (signalsOfName[name] > 1) {
            std::snprintf(signal.record.name, sizeof signal.record.name, "%.27s_%04d", name.c_str(),
                          next[name]++);
            changed = true;
        }
    }
    return changed;
}

constexpr TripException Exceptions[] = {
    {"signals of one name", "a message may not have two in a file, so they are numbered",
     NumberEqualNames, nullptr},
    {"delimiters in long names of messages",
     "an attribute text is cut at them and joined again with one blank",
     [](MessageRecords& message) { return FoldDelimiters(message.record.longName); }, nullptr},
    {"delimiters in long names of signals",
     "an attribute text is cut at them and joined again with one blank", nullptr,
     [](SignalRecords& signal) { return FoldDelimiters(signal.record.longName); }},
    {"ten significant digits", "the four numbers of a signal are written with at most ten digits",
     nullptr,
     [](SignalRecords& signal) {
         const bool factor = RoundToTenDigits(signal.record.factor);
         const bool offset = RoundToTenDigits(signal.record.offset);
         const bool minimum = RoundToTenDigits(signal.record.minimum);
         const bool maximum = RoundToTenDigits(signal.record.maximum);
         return factor || offset || minimum || maximum;
     }},
    {"units outside ASCII", "a unit is written in its ASCII form", nullptr,
     [](SignalRecords& signal) {
         const bool changed = std::strcmp(signal.record.unit, signal.record.unitUtf8) != 0;
         std::memcpy(signal.record.unitUtf8, signal.record.unit, sizeof signal.record.unit);
         return changed;
     }},
    {"attributes of messages that travel one way",
     "GenMsgSendType and GenMsgCycleTime are read and never written",
     [](MessageRecords& message) {
         const bool changed = message.record.sendType[0] != '\0' || message.record.cycleTime != 0;
         message.record.sendType[0] = '\0';
         message.record.cycleTime = 0;
         return changed;
     },
     nullptr},
    {"attributes of signals that travel one way",
     "GenSigStartValue and GenSigInactiveValue are read and never written", nullptr,
     [](SignalRecords& signal) {
         const bool changed = signal.record.startValue != 0 || signal.record.inactiveValue != 0;
         signal.record.startValue = 0;
         signal.record.inactiveValue = 0;
         return changed;
     }},
    {"messages without a transmitter", "the default node is written in its place",
     [](MessageRecords& message) { return FillIfEmpty(message.record.transmitter, "Marrowby"); },
     nullptr},
    {"signals without a receiver", "the default node is written in its place", nullptr,
     [](SignalRecords& signal) { return FillIfEmpty(signal.record.receiverList, "Marrowby"); }},
    {"value descriptions of floats", "a float has no VAL_ line", nullptr,
     [](SignalRecords& signal) {
         const bool isFloat =
             signal.record.valueType == ValueFloat32 || signal.record.valueType == ValueFloat64;
         const bool changed = isFloat && !signal.enums.empty();
         if (changed) {
             signal.enums.clear();
             signal.record.enumCount = 0;
         }
         return changed;
     }},
};

}  // namespace

void ApplyTripExceptions(DatabaseRecords& model, std::map<std::string, std::size_t>& counts) {
    for (const TripException& exception : Exceptions) {
        std::size_t& count = counts[exception.name];
        for (MessageRecords& message : model.messages) {
            if (exception.message != nullptr && exception.message(message)) {
                ++count;
            }
            for (SignalRecords& signal : message.signals) {
                if (exception.signal != nullptr && exception.signal(signal)) {
                    ++count;
                }
            }
        }
    }
}

}  // namespace vexil::test
