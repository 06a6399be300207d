// Floating-point numbers as text.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace vexil {

// Returns the two numbers between the three characters of separators: "(0.1,-40)" for "(,)".
// A number has at most ten significant digits, as printf("%.10g") writes it, with the decimal point
// and the grouping of the global C++ locale. A value that needs more digits comes back changed.
std::string NumberPairText(std::string_view separators, double first, double second,
                           std::string line = {});

}  // namespace vexil
