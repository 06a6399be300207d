// Floating-point numbers as text.
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "text/line_buffer.h"

namespace vexil {

// Number formatting of the global C++ locale at the construction of the object.
class NumberText {
  public:
    NumberText();

    // Appends the two numbers between the four characters of separators: " (0.1,-40)" for " (,)". A
    // number has at most ten significant digits, in the form of printf("%.10g"), with the decimal
    // point and the grouping of the locale. A value with more digits is rounded.
    void AppendPair(LineBuffer& line, std::string_view separators, double first,
                    double second) const;

  private:
    bool isClassic;  // full stop, no grouping
};

}  // namespace vexil
