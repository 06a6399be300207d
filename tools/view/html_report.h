// A report of networks as one page of HTML that needs nothing else.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "account/account.h"
#include "database/snapshot.h"
#include "view/html_template.h"

namespace vexil::tool {

struct ReportedFile {
    std::string_view name;
    const Snapshot& snapshot;
    const Account& account;
    const std::vector<Finding>& layoutFindings;
};

// A section for each file. The same files give the same bytes.
class HtmlReport {
  public:
    HtmlReport();

    void Add(const ReportedFile& file);

    // A file that could not be read.
    void AddFailure(std::string_view name, std::string_view reason);

    // The whole page.
    std::string Page() const;

  private:
    void AddSection(std::string_view name, TemplateValues& values);

    HtmlTemplate pageTemplate;
    HtmlTemplate fileTemplate;
    HtmlTemplate messageTemplate;
    std::vector<std::string> names;
    std::string sections;
    std::size_t messageCount = 0;
    std::size_t signalCount = 0;
};

}  // namespace vexil::tool
