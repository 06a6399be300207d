// Floating-point numbers as text.
// SPDX-License-Identifier: MIT
#include "write/number_text.h"

#include <sstream>

namespace vexil {

std::string NumberPairText(std::string_view separators, double first, double second) {
    std::ostringstream text;
    text.precision(10);
    text << separators[0] << first << separators[1] << second << separators[2];
    return text.str();
}

}  // namespace vexil
