// Value descriptions that owners share, and names that are prefixes of one another.
// SPDX-License-Identifier: MIT
#include <utility>

#include "shape_text.h"
#include "shapes.h"
#include "vexil64.h"

namespace vexil::growth {
namespace {

// The value of the description at an index. No value comes twice.
using ValueOf = std::size_t (*)(std::size_t index);

std::size_t Ascending(std::size_t index) {
    return index;
}

std::size_t Descending(std::size_t index) {
    return 2147483647U - index;
}

std::string Description(std::string_view name, std::size_t value) {
    return "VAL_ 1 " + std::string(name) + Numbered(" ", value) + " \"t\";\n";
}

// Appends the pairs of values from 0 on until the text has the size. Returns their number.
std::size_t AppendPairs(std::string& text, std::size_t size) {
    return FillUpTo(text, size, [](std::size_t index) { return Numbered(" ", index) + " \"t\""; });
}

// A message of as many signals of one name as there may be, in about that many bytes.
Input MessageOfOneName(std::size_t size) {
    Input input{MessageLine(1), 1};
    while (input.text.size() < size && input.signals < MaxSignalsPerMessage) {
        input.text += SignalLine("S");
        ++input.signals;
    }
    return input;
}

// -- One message: each signal has all descriptions --

Input DescriptionsForOneName(std::size_t size) {
    Input input = MessageOfOneName(size / 2);
    FillUpTo(input.text, size, [](std::size_t) { return Description("S", 0); });
    input.enums = input.signals;
    return input;
}

Shape ValuesForOneName(std::string name, ValueOf valueOf, std::vector<Bound> bounds) {
    return {std::move(name),
            [valueOf](std::size_t size) {
                Input input = MessageOfOneName(size / 2);
                const std::size_t values = FillUpTo(input.text, size, [&](std::size_t index) {
                    return Description("S", valueOf(index));
                });
                input.enums = input.signals * values;
                return input;
            },
            std::move(bounds)};
}

Input OneStatementForOneName(std::size_t size) {
    Input input = MessageOfOneName(size / 2);
    input.text += "VAL_ 1 S";
    input.enums = input.signals * AppendPairs(input.text, size);
    input.text += ";\n";
    return input;
}

// Signals of two names in turn, and a long statement for each name.
Input TwoNamesInTurn(std::size_t size) {
    Input input{MessageLine(1), 1};
    while (input.text.size() < size / 2 && input.signals < MaxSignalsPerMessage) {
        input.text += SignalLine("S") + SignalLine("T");
        input.signals += 2;
    }
    input.text += "VAL_ 1 S";
    const std::size_t values = AppendPairs(input.text, size * 3 / 4);
    input.text += ";\nVAL_ 1 T";
    const std::size_t others = AppendPairs(input.text, size);
    input.text += ";\n";
    input.enums = input.signals / 2 * (values + others);
    return input;
}

// -- Messages of one id with a signal of one name each: what follows a signal reaches it --

Input OneIdAndDescriptionsOfOneName(std::size_t size) {
    Input input;
    input.messages = FillUpTo(input.text, size, [](std::size_t) {
        return MessageLine(1) + SignalLine("S") + Description("S", 0);
    });
    input.signals = input.messages;
    input.enums = input.messages;
    return input;
}

Shape OneIdAndValuesOfOneName(std::string name, ValueOf valueOf, std::vector<Bound> bounds) {
    return {std::move(name),
            [valueOf](std::size_t size) {
                Input input;
                input.messages = FillUpTo(input.text, size, [&](std::size_t index) {
                    return MessageLine(1) + SignalLine("S") + Description("S", valueOf(index));
                });
                input.signals = input.messages;
                input.enums = input.messages * (input.messages + 1) / 2;
                return input;
            },
            std::move(bounds)};
}

// -- Names that are prefixes of one another --

// "1", "1 1" and so on, so that each could also be a value, and one statement that means them all.
Input OneStatementForNestedNames(std::size_t size) {
    Input input{MessageLine(1), 1};
    std::string name = "1";
    while (input.text.size() < size / 2 && input.signals < MaxSignalsPerMessage) {
        input.text += SignalLine(name);
        ++input.signals;
        name += " 1";
    }
    name.resize(name.size() - 2);
    input.text += "VAL_ 1 " + name;
    // Only the longest name sees the value 0. To the others it is text after the number 1.
    input.enums = input.signals * (AppendPairs(input.text, size) - 1) + 1;
    input.text += ";\n";
    return input;
}

}  // namespace

std::vector<Shape> DescriptionShapes() {
    // All descriptions reach all signals, so a full fetch gives their product.
    const std::vector<Bound> product = {{Phase::Fetch, Unit::FetchedRecord, 100, 0, 64 * KiB},
                                        {Phase::Write, Unit::WrittenByte, 20, 0, 64 * KiB}};
    // A signal has the descriptions that follow it: half of the product. They differ from signal to
    // signal, so the first one of each costs as much as all.
    const std::vector<Bound> half = {
        {Phase::FirstDescriptions, Unit::FetchedRecord, 400, 0, 64 * KiB},
        {Phase::Fetch, Unit::FetchedRecord, 400, 0, 64 * KiB},
        {Phase::Write, Unit::WrittenByte, 40, 0, 64 * KiB}};
    return {
        {"DescriptionsForOneName",
         DescriptionsForOneName,
         {{Phase::Write, Unit::WrittenByte, 20, 0, 256 * KiB}}},
        ValuesForOneName("AscendingValuesForOneName", Ascending, product),
        ValuesForOneName("DescendingValuesForOneName", Descending, product),
        {"OneStatementForOneName", OneStatementForOneName, product},
        {"TwoNamesInTurn", TwoNamesInTurn, product},
        // One value, whose text is put together for each signal anew.
        {"OneIdAndDescriptionsOfOneName",
         OneIdAndDescriptionsOfOneName,
         {{Phase::FirstDescriptions, Unit::InputByteSquared, 0.015, 0, 64 * KiB},
          {Phase::Fetch, Unit::InputByteSquared, 0.015, 0, 64 * KiB},
          {Phase::Write, Unit::WrittenByte, 40, 0, 64 * KiB}}},
        OneIdAndValuesOfOneName("OneIdAndAscendingValuesOfOneName", Ascending, half),
        OneIdAndValuesOfOneName("OneIdAndDescendingValuesOfOneName", Descending, half),
        {"OneStatementForNestedNames",
         OneStatementForNestedNames,
         {{Phase::FirstDescriptions, Unit::InputByteToThreeHalves, 5, 3, 64 * KiB},
          {Phase::Fetch, Unit::FetchedRecord, 100, 100, 64 * KiB},
          {Phase::Write, Unit::WrittenByte, 20, 10, 64 * KiB}}},
    };
}

}  // namespace vexil::growth
