// Filling in templates, the only user of the library for Mustache.
// SPDX-License-Identifier: MIT
#include "view/html_template.h"

#include <kainjow/mustache.hpp>

#include "source/utf8.h"

namespace vexil::tool {
namespace {

using Data = kainjow::mustache::data;

// NOLINTNEXTLINE(misc-no-recursion): as deep as the sections of the template
Data MakeData(const TemplateValues& values) {
    Data object(Data::type::object);
    for (const auto& [name, value] : values.All()) {
        if (const auto* text = std::get_if<std::string>(&value)) {
            object[name] = text->empty() ? Data(false) : Data(*text);
            continue;
        }
        Data list(Data::type::list);
        for (const TemplateValues& each : std::get<TemplateValues::List>(value)) {
            list.push_back(MakeData(each));
        }
        object[name] = std::move(list);
    }
    return object;
}

// What HTML has in the place of the character; empty if that is the character itself.
std::string_view Reference(char ch) {
    constexpr std::string_view Replacement = "\xEF\xBF\xBD";
    constexpr char Delete = 0x7F;
    switch (ch) {
        case '&':
            return "&amp;";
        case '<':
            return "&lt;";
        case '>':
            return "&gt;";
        case '"':
            return "&quot;";
        case '\'':
            return "&#39;";
        case '\t':
        case '\n':
        case '\r':
            return "";
        default:
            return static_cast<unsigned char>(ch) < ' ' || ch == Delete ? Replacement : "";
    }
}

// Whether a character of this size is one of the control characters U+0080 to U+009F.
bool IsLateControl(std::string_view text, std::size_t at, std::size_t size) {
    return size == 2 && text[at] == '\xC2' && static_cast<unsigned char>(text[at + 1]) < 0xA0U;
}

}  // namespace

std::string EscapeHtml(std::string_view text) {
    std::string escaped;
    escaped.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t size = Utf8Length(text, at);
        if (size == 0 || IsLateControl(text, at, size)) {
            escaped += "\xEF\xBF\xBD";
        } else if (const std::string_view reference = Reference(text[at]);
                   size == 1 && !reference.empty()) {
            escaped += reference;
        } else {
            escaped += text.substr(at, size);
        }
        at += size == 0 ? 1 : size;
    }
    return escaped;
}

struct HtmlTemplate::Parsed {
    kainjow::mustache::mustache text;
};

HtmlTemplate::HtmlTemplate(std::string_view text)
    : parsed(std::make_unique<Parsed>(Parsed{kainjow::mustache::mustache(std::string(text))})) {
    parsed->text.set_custom_escape([](const std::string& value) { return EscapeHtml(value); });
}

HtmlTemplate::HtmlTemplate(HtmlTemplate&&) noexcept = default;

HtmlTemplate& HtmlTemplate::operator=(HtmlTemplate&&) noexcept = default;

HtmlTemplate::~HtmlTemplate() = default;

std::string HtmlTemplate::Fill(const TemplateValues& values) const {
    const Data data = MakeData(values);
    kainjow::mustache::context<std::string> context;
    context.push(&data);
    return parsed->text.render(context);
}

}  // namespace vexil::tool
