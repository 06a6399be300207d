// Templates of HTML: what is escaped, and which sections are filled in.
// SPDX-License-Identifier: MIT
#include "view/html_template.h"

#include <gtest/gtest.h>

#include <string>

namespace vexil::test {
namespace {

constexpr std::string_view Replaced = "\xEF\xBF\xBD";

TEST(EscapeHtml, EscapesEachCharacterThatMarkupConsistsOf) {
    EXPECT_EQ(tool::EscapeHtml("<b a=\"1\" b='2'>&amp;</b>"),
              "&lt;b a=&quot;1&quot; b=&#39;2&#39;&gt;&amp;amp;&lt;/b&gt;");
}

TEST(EscapeHtml, LeavesOtherTextAsItIs) {
    EXPECT_EQ(tool::EscapeHtml("a{{b}}\t\r\n 1\xC2\xB0 \xE2\x82\xAC \xF0\x9F\x9A\x97"),
              "a{{b}}\t\r\n 1\xC2\xB0 \xE2\x82\xAC \xF0\x9F\x9A\x97");
}

TEST(EscapeHtml, ReplacesCharactersThatHtmlDoesNotAllow) {
    for (const std::string_view text :
         {std::string_view("\0", 1), std::string_view("\x01"), std::string_view("\x0B"),
          std::string_view("\x1B"), std::string_view("\x1F"), std::string_view("\x7F"),
          std::string_view("\xC2\x80"), std::string_view("\xC2\x9F")}) {
        EXPECT_EQ(tool::EscapeHtml(text), Replaced);
    }
    EXPECT_EQ(tool::EscapeHtml("\xC2\xA0"), "\xC2\xA0");
}

TEST(EscapeHtml, ReplacesEachByteThatIsNotValidUtf8) {
    EXPECT_EQ(tool::EscapeHtml("a\xFF\xC3(\xE2\x82"),
              "a" + std::string(Replaced) + std::string(Replaced) + "(" + std::string(Replaced) +
                  std::string(Replaced));
}

tool::TemplateValues Values(std::string_view name, tool::TemplateValues::Value value) {
    tool::TemplateValues values;
    values.Set(name, std::move(value));
    return values;
}

TEST(HtmlTemplate, EscapesValuesByDefault) {
    const tool::TemplateValues values = Values("a", "<i>");
    EXPECT_EQ(tool::HtmlTemplate("[{{a}}]").Fill(values), "[&lt;i&gt;]");
    EXPECT_EQ(tool::HtmlTemplate("[{{&a}}]").Fill(values), "[<i>]");
}

TEST(HtmlTemplate, TakesNoValueForATemplate) {
    tool::TemplateValues values = Values("a", "{{b}} {{&b}} {{#b}}x{{/b}} {{=<% %>=}}");
    values.Set("b", "found");
    EXPECT_EQ(tool::HtmlTemplate("{{a}} {{b}}").Fill(values),
              "{{b}} {{&amp;b}} {{#b}}x{{/b}} {{=&lt;% %&gt;=}} found");
}

TEST(HtmlTemplate, LeavesOutSectionsOfEmptyValues) {
    tool::TemplateValues values = Values("text", "");
    values.Set("list", tool::TemplateValues::List{});
    EXPECT_EQ(tool::HtmlTemplate("{{#text}}a{{/text}}{{^text}}b{{/text}}"
                                 "{{#list}}c{{/list}}{{^list}}d{{/list}}[{{text}}]")
                  .Fill(values),
              "bd[]");
}

TEST(HtmlTemplate, RepeatsASectionForEachElementOfAList) {
    tool::TemplateValues values = Values("name", "outer");
    tool::TemplateValues::List list;
    list.push_back(Values("name", "one"));
    list.push_back(Values("name", ""));
    list.push_back({});
    values.Set("list", std::move(list));
    // An element without a value of its own takes that of the enclosing list, an empty one does
    // not.
    EXPECT_EQ(tool::HtmlTemplate("{{#list}}[{{name}}]{{/list}}").Fill(values), "[one][][outer]");
}

}  // namespace
}  // namespace vexil::test
