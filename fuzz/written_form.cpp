// The part of a model that a written file contains.
// SPDX-License-Identifier: MIT
#include "written_form.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "property/round_trip_rules.h"

namespace vexil::fuzz {
namespace {

constexpr const char* DefaultNode = "Marrowby";

// The reader cuts a statement above 4096 bytes. This limit leaves room for the part of a statement
// before its texts.
constexpr std::size_t ShortStatement = 3900;

bool IsFloat(const test::ModelSignal& signal) {
    return signal.valueType == ValueFloat32 || signal.valueType == ValueFloat64;
}

double TenDigits(double number) {
    char text[64];
    std::snprintf(text, sizeof text, "%.10g", number);
    return std::strtod(text, nullptr);
}

void AsWritten(test::ModelSignal& signal) {
    signal.hasNameSuffix = false;
    signal.unitUtf8 = signal.unit;
    signal.startValue = signal.inactiveValue = 0;
    if (signal.receivers.empty()) {
        signal.receivers = {DefaultNode};
    }
    for (double* number : {&signal.factor, &signal.offset, &signal.minimum, &signal.maximum}) {
        *number = TenDigits(*number);
    }
    if (IsFloat(signal)) {
        signal.enums.clear();
    }
}

bool IsLong(const std::string& text) {
    return text.size() > ShortStatement && text.find('\n') != std::string::npos;
}

bool IsLong(const test::ModelSignal& signal) {
    std::string descriptions;
    for (const auto& [value, text] : signal.enums) {
        descriptions += std::to_string(value) + " \"" + text + "\" ";
    }
    return IsLong(signal.comment) || IsLong(signal.unit + signal.name) || IsLong(descriptions);
}

}  // namespace

test::Model WrittenForm(test::Model model, std::uint32_t order) {
    model.errorCodes.clear();
    model.messages = test::InOrder(model.messages, order);
    for (test::ModelMessage& message : model.messages) {
        message.sendType.clear();
        message.cycleTime = 0;
        if (message.transmitter.empty()) {
            message.transmitter = DefaultNode;
        }
        std::for_each(message.signals.begin(), message.signals.end(), AsWritten);
    }
    return model;
}

bool HoldsLongStatement(const test::Model& model) {
    return std::any_of(model.messages.begin(), model.messages.end(), [](const auto& message) {
        return IsLong(message.comment) ||
               std::any_of(message.signals.begin(), message.signals.end(),
                           [](const auto& signal) { return IsLong(signal); });
    });
}

}  // namespace vexil::fuzz
