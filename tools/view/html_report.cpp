// Sections are made as the files come. A message is made at a time, so that the values of large
// files are never in memory as a whole.
// SPDX-License-Identifier: MIT
#include "view/html_report.h"

#include "view/report_assets.h"
#include "view/report_values.h"

namespace vexil::tool {

HtmlReport::HtmlReport()
    : pageTemplate(ReportPage), fileTemplate(ReportFile), messageTemplate(ReportMessage) {}

void HtmlReport::Add(const ReportedFile& file) {
    std::string messages;
    for (const MessageFacts& message : file.snapshot.messages) {
        messages += messageTemplate.Fill(MessageValues(file.snapshot, message));
    }
    TemplateValues values;
    AddNetworkValues(file.snapshot, values);
    AddAccountValues(file.account, file.layoutFindings, values);
    values.Set("messages", std::move(messages));
    values.Set("reason", "");
    AddSection(file.name, values);
    messageCount += file.snapshot.messages.size();
    signalCount += file.snapshot.signals.size();
}

void HtmlReport::AddFailure(std::string_view name, std::string_view reason) {
    TemplateValues values;
    values.Set("reason", std::string(reason));
    AddSection(name, values);
}

void HtmlReport::AddSection(std::string_view name, TemplateValues& values) {
    names.emplace_back(name);
    values.Set("file", std::string(name));
    values.Set("number", std::to_string(names.size()));
    sections += fileTemplate.Fill(values);
}

std::string HtmlReport::Page() const {
    TemplateValues::List links;
    for (const std::string& name : names) {
        TemplateValues link;
        link.Set("linkNumber", std::to_string(links.size() + 1));
        link.Set("linkName", name);
        links.push_back(std::move(link));
    }
    TemplateValues values;
    values.Set("title",
               names.size() == 1 ? names.front() : std::to_string(names.size()) + " networks");
    values.Set("style", std::string(ReportStyle));
    values.Set("script", std::string(ReportScript));
    values.Set("styleHash", std::string(ReportStyleHash));
    values.Set("scriptHash", std::string(ReportScriptHash));
    values.Set("totalMessages", std::to_string(messageCount));
    values.Set("totalSignals", std::to_string(signalCount));
    values.Set("severalFiles", names.size() > 1 ? "yes" : "");
    values.Set("links", std::move(links));
    values.Set("sections", sections);
    return pageTemplate.Fill(values);
}

}  // namespace vexil::tool
