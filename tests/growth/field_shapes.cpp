// Long fields of one statement.
// SPDX-License-Identifier: MIT
#include <utility>

#include "shape_text.h"
#include "shapes.h"

namespace vexil::growth {
namespace {

// One message with the piece over and over as one of its fields.
Shape MessageField(std::string name, std::string before, std::string piece, std::string after) {
    return {std::move(name), [=](std::size_t size) {
                return Input{before + Repeated(piece, size) + after + "\n", 1};
            }};
}

// One signal, likewise.
Shape SignalField(std::string name, std::string before, std::string piece, std::string after) {
    return {std::move(name), [=](std::size_t size) {
                return Input{MessageLine(1) + before + Repeated(piece, size) + after + "\n", 1, 1};
            }};
}

// One signal that is refused, likewise.
Shape RefusedSignalField(std::string name, std::string before, std::string piece) {
    return {std::move(name), [=](std::size_t size) {
                return Input{MessageLine(1) + before + Repeated(piece, size) + "\n", 1, 0, 0, 1};
            }};
}

}  // namespace

std::vector<Shape> FieldShapes() {
    return {
        MessageField("MessageName", "BO_ 1 ", "a b", ": 8 A"),
        MessageField("MessageNameOfQuotes", "BO_ 1 ", "\"", ": 8 A"),
        MessageField("Transmitter", "BO_ 1 M: 8 ", "a:", ""),
        SignalField("SignalName", " SG_ ", "a m", "x : 0|8@1+ (1,0) [0|0] \"\" B"),
        SignalField("MultiplexNumber", " SG_ S m", "1x", " : 0|8@1+ (1,0) [0|0] \"\" B"),
        SignalField("DigitsOfAStartBit", " SG_ S : 0", "x0", "|8@1+ (1,0) [0|0] \"\" B"),
        SignalField("DigitsOfAFactor", " SG_ S : 0|8@1+ (1.", "1", ",0) [0|0] \"\" B"),
        SignalField("TextBehindAFactor", " SG_ S : 0|8@1+ (1", "(a", ",0) [0|0] \"\" B"),
        SignalField("Unit", " SG_ S : 0|8@1+ (1,0) [0|0] \"", "\xc2\xb0", "\" B"),
        SignalField("UnitWithoutAnEnd", " SG_ S : 0|8@1+ (1,0) [0|0] \"", "u ", ""),
        SignalField("ReceiverList", " SG_ S : 0|8@1+ (1,0) [0|0] \"\" ", "a,b,", "B"),
        SignalField("LongReceiver", " SG_ S : 0|8@1+ (1,0) [0|0] \"\" ", "a b", ""),
        SignalField("ReceiversOfBlanks", " SG_ S : 0|8@1+ (1,0) [0|0] \"\" ", " ,", "B"),
        RefusedSignalField("MissingSeparators", " SG_ S : 0|8@1+ ", "(1 "),
        RefusedSignalField("MissingColon", " SG_ ", "m "),
    };
}

}  // namespace vexil::growth
