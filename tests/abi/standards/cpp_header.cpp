// vexil64.hpp in the oldest C++ that it supports and in later ones: each template is used. Compiled
// only.
// SPDX-License-Identifier: MIT
#include "vexil64.hpp"

// Declared first, so that no compiler misses a declaration.
std::size_t UseEachFunction(const std::string& path);

std::size_t UseEachFunction(const std::string& path) {
    std::size_t sum = vexil64::read(path).size() + vexil64::errors().size();
    for (const vexil64::StatementError& error : vexil64::errors()) {
        sum += error.text().size() + error.line() + error.code();
    }
    const vexil64::Message message =
        vexil64::append(vexil64::NewMessage(1, "Message").dlc(8).transmitter("A").comment("B"));
    const vexil64::Signal signal = vexil64::append(
        message, vexil64::NewSignal("Signal").little_endian(0, 8).scale(1).limits(0, 255));
    vexil64::append(signal, 0, "Off");
    for (const vexil64::Message& each : vexil64::messages()) {
        for (const vexil64::Signal& part : each.signals()) {
            for (const vexil64::Description& description : part.descriptions()) {
                sum += description.text().size();
            }
        }
    }
    std::uint8_t frame[8] = {};
    vexil64::encode(signal, 1, frame);
    sum += vexil64::is_present(signal, message.selector(), frame) ? 1U : 0U;
    sum += vexil64::decode(signal, frame) > 0 ? 1U : 0U;
    vexil64::write(path);
    return sum;
}
