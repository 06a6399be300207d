// What a model is after the library has written it, and after that file has been read.
//
// Nearly all comes back. What does not is listed here, each exception under the name that marks the
// place in round_trip_rules.cpp where it is made; nothing else may differ.
//
// On writing:
//   SuffixedNames        signals of one name in a message are numbered, also in the database
// On reading the file:
//   NamelessMessages     a message without a name is refused, and its signals are lost with it
//   LostSignals          a number that leaves the range of a double when it is rounded to ten
//   digits
//                        refuses its signal, and the signals after it in the message are lost
//   TenDigits            a number keeps ten digits
//   ReversedRanges       minimum and maximum change places when they are the wrong way round
//   DefaultNodes         no transmitter and no receivers are "Marrowby" in a file
//   IndicatorNames       a name such as M or m1 before the colon is a multiplex indicator
//   OtherConstants       multiplex types above 2 are plain, a plain signal has no multiplex value,
//                        byte orders are 0 or 1, and value types above 3 are signed
//   UnitsInAscii         a unit has "_" for each character outside ASCII, also where it is UTF-8
//   UnitEnds             a unit loses the blanks at its ends; after a double quote inside it come
//                        the receivers
//   ControlCharacters    a file has no control characters but white space
//   SharedOwners         comments, value descriptions, value types and long names reach every
//                        message of the id and every signal of the id and name
//   NamelessSignals      value descriptions and value types cannot name a signal without a name
//   LongNameDelimiters   a long name has one blank for each run of white space, ";" and ","; one
//                        that begins with one of them or ends early by a quote is lost or cut
//   DescriptionQuotes    a double quote in a value description ends it and shifts what follows
//   FloatDescriptions    value descriptions of a float stay out of the file
//   OneWayAttributes     start and inactive values are read and never written
//   OtherProtocols       a protocol that is neither J1939 nor NMEA is plain CAN, and a bus that is
//                        not CAN FD leaves the bus type of before
//
// Left out, since a keyword there ends the statement and what follows may be anything: keywords as
// names of signals and nodes, inside units and value descriptions, and after the first line of a
// comment; and value descriptions of several lines and more than 4096 bytes. The golden files show
// what becomes of keywords.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <vector>

#include "property/model.h"

namespace vexil::test {

// Changes the names of the model as a write does. Returns whether any has changed.
bool SuffixedNames(Model& model);

// Whether the file of the model has a keyword where it ends a statement.
bool HoldsStrayKeyword(const Model& model);

// The messages in their order in a file that is written in the order of an Order
// constant.
std::vector<ModelMessage> InOrder(std::vector<ModelMessage> messages, std::uint32_t order);

// What the file of the model gives, written in the order of an Order constant and read with this
// info in the database.
Model ReadBack(const Model& model, std::uint32_t order, const DatabaseInfo& before);

}  // namespace vexil::test
