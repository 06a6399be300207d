// Templates of HTML: a text with places that are filled in, each value escaped.
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace vexil::tool {

// The text as the content of an HTML element or of an attribute in quotes. Control characters,
// which HTML does not allow, and bytes that are not valid UTF-8 become U+FFFD.
std::string EscapeHtml(std::string_view text);

// The values of a template, by name. A section of the template is left out if its value is an empty
// text or an empty list, so a name must have a value even if that is empty: otherwise the template
// takes the value that an enclosing list has for the name.
class TemplateValues {
  public:
    using List = std::vector<TemplateValues>;
    using Value = std::variant<std::string, List>;

    void Set(std::string_view name, Value value) { values.emplace_back(name, std::move(value)); }

    const std::vector<std::pair<std::string, Value>>& All() const { return values; }

  private:
    std::vector<std::pair<std::string, Value>> values;
};

// A template in the language Mustache: {{name}} is escaped, {{&name}} is not and is therefore only
// for text that comes from other templates or from the program.
class HtmlTemplate {
  public:
    // Precondition: the text is a valid template; otherwise Fill returns an empty text.
    explicit HtmlTemplate(std::string_view text);
    HtmlTemplate(const HtmlTemplate&) = delete;
    HtmlTemplate& operator=(const HtmlTemplate&) = delete;
    HtmlTemplate(HtmlTemplate&& other) noexcept;
    HtmlTemplate& operator=(HtmlTemplate&& other) noexcept;
    ~HtmlTemplate();

    std::string Fill(const TemplateValues& values) const;

  private:
    struct Parsed;
    std::unique_ptr<Parsed> parsed;
};

}  // namespace vexil::tool
