// The report of a check as JSON; docs/check.schema.json describes it.
// SPDX-License-Identifier: MIT
#pragma once

#include <iosfwd>
#include <string_view>

#include "view/check_report.h"

namespace vexil::tool {

// A document about any number of files, written while they are checked.
class JsonReport {
  public:
    JsonReport(std::ostream& out, const CheckView& view);

    void Add(const CheckReport& report);

    // A file that could not be read.
    void AddFailure(std::string_view name, std::string_view reason);

    void Finish();

  private:
    void BeginFile(std::string_view name);

    std::ostream& stream;
    CheckView viewOptions;
    bool isFirst = true;
};

}  // namespace vexil::tool
