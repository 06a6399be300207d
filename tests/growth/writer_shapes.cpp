// Messages and signals that are work for the writer.
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <iterator>
#include <utility>

#include "shape_text.h"
#include "shapes.h"
#include "vexil64.h"

namespace vexil::growth {
namespace {

// Messages that are full of signals.
//   signalOf  a signal from its index in its message.
Input MessagesFullOf(const std::function<std::string(std::size_t)>& signalOf, std::size_t size) {
    Input input;
    while (input.text.size() < size) {
        input.text += MessageLine(++input.messages);
        for (std::size_t index = 0; index < MaxSignalsPerMessage && input.text.size() < size;
             ++index) {
            input.text += signalOf(index);
            ++input.signals;
        }
    }
    return input;
}

//   nameOf  the name of a signal from its index in its message.
Shape FullMessages(std::string name, std::function<std::string(std::size_t)> nameOf) {
    return {std::move(name), [nameOf](std::size_t size) {
                return MessagesFullOf([&](std::size_t index) { return SignalLine(nameOf(index)); },
                                      size);
            }};
}

// Signals that are as short as a signal can be, without a name.
Input ShortestSignals(std::size_t size) {
    return MessagesFullOf([](std::size_t) { return "SG_ :0|1(1,0)[0|0]\n"; }, size);
}

// The same, each in a message of its own.
Input ShortestMessagesWithASignal(std::size_t size) {
    Input input;
    input.messages =
        FillUpTo(input.text, size, [](std::size_t) { return "BO_ 0 M:8\nSG_ :0|1(1,0)[0|0]\n"; });
    input.signals = input.messages;
    return input;
}

std::string OneName(std::size_t) {
    return "S";
}

std::string DistinctName(std::size_t index) {
    return Numbered("S", index);
}

std::string NameOfPairs(std::size_t index) {
    return Numbered("S", index / 2);
}

std::string NameOfHundredGroups(std::size_t index) {
    return Numbered("S", index % 100);
}

// Cut to one and the same text to make room for a number.
std::string LongName(std::size_t index) {
    return Numbered("a_name_of_twenty_seven_char", index / 2 % 5000);
}

std::string NameToBeChanged(std::size_t index) {
    return Numbered("S ", index) + "\xc2\xb5";
}

Input Transmitters(std::size_t size) {
    Input input;
    input.messages = FillUpTo(input.text, size, [](std::size_t index) {
        return MessageLine(index, "M", Numbered("N", index));
    });
    return input;
}

Input Receivers(std::size_t size) {
    Input input{MessageLine(1) + " SG_ S : 0|8@1+ (1,0) [0|0] \"\" N", 1, 1};
    FillUpTo(input.text, size, [](std::size_t index) { return Numbered(",N", index); });
    input.text += "\n";
    return input;
}

Input MessagesOfOneName(std::size_t size) {
    Input input;
    input.messages =
        FillUpTo(input.text, size, [](std::size_t index) { return MessageLine(index % 7); });
    return input;
}

Input DescendingMessages(std::size_t size) {
    Input input;
    input.messages = FillUpTo(input.text, size, [size](std::size_t index) {
        return MessageLine(index, Numbered("M", size - index));
    });
    return input;
}

Input LongNumbers(std::size_t size) {
    Input input{MessageLine(1), 0};
    const std::string signal =
        " SG_ S : 4294967295|4294967295@0- (1.7976931348623157e308,"
        "-2.2250738585072014e-308) [-1e300|1e300] \"\" B\n";
    FillUpTo(input.text, size, [&](std::size_t) { return signal; });
    input.messages = 1;
    input.signals = std::min<std::uint64_t>(
        (input.text.size() - MessageLine(1).size()) / signal.size(), MaxSignalsPerMessage);
    return input;
}

}  // namespace

std::vector<Shape> WriterShapes() {
    return {
        FullMessages("SignalsOfOneName", OneName),
        FullMessages("SignalsOfManyNames", DistinctName),
        FullMessages("SignalsInPairs", NameOfPairs),
        FullMessages("SignalsInGroups", NameOfHundredGroups),
        FullMessages("SignalsWithLongNames", LongName),
        FullMessages("SignalsToRename", NameToBeChanged),
        {"ShortestSignals", ShortestSignals},
        {"ShortestMessagesWithASignal", ShortestMessagesWithASignal},
        {"Transmitters", Transmitters},
        {"Receivers", Receivers},
        {"MessagesOfOneName", MessagesOfOneName},
        {"DescendingMessages", DescendingMessages},
        {"LongNumbers", LongNumbers},
    };
}

std::vector<Shape> AllShapes() {
    std::vector<Shape> all;
    for (std::vector<Shape> shapes : {LineShapes(), FieldShapes(), OwnerShapes(),
                                      DescriptionShapes(), AttributeShapes(), WriterShapes()}) {
        std::move(shapes.begin(), shapes.end(), std::back_inserter(all));
    }
    return all;
}

}  // namespace vexil::growth
