// Prints the version of the library and the number of messages in a file.
// SPDX-License-Identifier: MIT
#include <iostream>
#include <vexil64.hpp>

int main(int argc, char** argv) {
    vexil64::read(argc > 1 ? argv[1] : "");
    std::cout << "vexil64 " << vexil64::version() << " reads " << vexil64::messages().size()
              << " messages\n";
}
