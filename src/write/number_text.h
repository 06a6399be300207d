// Floating-point numbers as text.
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "text/line_buffer.h"

namespace vexil {

// The form that the global C++ locale gives to numbers at the time when the object is made.
class NumberText {
  public:
    NumberText();

    // Appends the two numbers among the four characters of separators: " (0.1,-40)" for " (,)".
    // A number has at most ten significant digits, as printf("%.10g") writes it, with the decimal
    // point and the grouping of the locale. A value that needs more digits comes back changed.
    void AppendPair(LineBuffer& line, std::string_view separators, double first,
                    double second) const;

  private:
    bool isClassic;  // full stop, no grouping
};

}  // namespace vexil
