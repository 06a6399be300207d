// Decodes frames. Each line of standard input is a message id and bytes in hexadecimal; prints a
// line for each signal of the message.
//   frame_values FILE    the DBC file that describes the messages
// SPDX-License-Identifier: MIT
#include <iomanip>
#include <iostream>
#include <string>
#include <vector>

#include "vexil64.hpp"

namespace {

std::vector<std::uint8_t> Bytes(const std::string& hexadecimal) {
    std::vector<std::uint8_t> bytes;
    for (std::size_t i = 0; i < hexadecimal.size(); i += 2) {
        bytes.push_back(
            static_cast<std::uint8_t>(std::stoul(hexadecimal.substr(i, 2), nullptr, 16)));
    }
    return bytes;
}

}  // namespace

int main(int argc, char** argv) try {
    vexil64::read(argc > 1 ? argv[1] : "");
    std::cout << std::setprecision(17);
    std::uint32_t id = 0;
    for (std::string frame; std::cin >> id >> frame;) {
        const std::optional<vexil64::Message> message = vexil64::find_message(id);
        for (const vexil64::Signal& signal : message.value().signals()) {
            std::cout << id << ' ' << signal.name() << ' ' << vexil64::decode(signal, Bytes(frame))
                      << '\n';
        }
    }
} catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
}
