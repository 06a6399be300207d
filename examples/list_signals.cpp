// Lists the refused statements and the signals of a DBC file. docs/cpp.md shows this program.
// SPDX-License-Identifier: MIT
#include <iostream>
#include <vexil64.hpp>

int main(int argc, char** argv) try {
    for (const auto& error : vexil64::read(argc > 1 ? argv[1] : "")) {
        std::cout << "line " << error.line() << " refused: " << error.first_line() << '\n';
    }
    for (const auto& message : vexil64::messages()) {
        for (const auto& signal : message.signals()) {
            std::cout << message.name() << '.' << signal.name() << " \"" << signal.unit() << "\"\n";
        }
    }
} catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
}
