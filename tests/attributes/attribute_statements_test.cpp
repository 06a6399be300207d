// Tests of attributes/attribute_statements.cpp: which statement is one, and who gets it.
// SPDX-License-Identifier: MIT
#include "attributes/attribute_statements.h"

#include <gtest/gtest.h>

#include "attributes/attribute_lines.h"

namespace vexil {
namespace {

using test::Lines;
using test::LinesOf;
using test::ReservedTable;

TEST(IsAttributeStatement, AcceptsTheThreeKeywordsWithWhiteSpaceBehindThem) {
    for (const std::string_view text :
         {"BA_ ", "BA_DEF_ ", "BA_DEF_DEF_ ", "BA_\n", "BA_\t", "BA_\v", "BA_\f", "BA_\r",
          "BA_DEF_\n\"A\" STRING ;", " \f\n\r\t\vBA_ x", "\n BA_DEF_ x", "\tBA_DEF_DEF_ x",
          "BA_ BA_DEF_", "BA_ ;"}) {
        EXPECT_TRUE(IsAttributeStatement(text)) << text;
    }
}

TEST(IsAttributeStatement, RefusesEveryOtherText) {
    for (const std::string_view text : {"",
                                        " ",
                                        "\n\t",
                                        "BA_",
                                        " BA_DEF_",
                                        "BA_DEF_DEF_",
                                        "BA_;",
                                        "BA_DEF_;",
                                        "BA_DEF_DEF_;",
                                        "BA_\"A\" 1;",
                                        "BA_DEF_REL_ x",
                                        "BA_DEF_SGTYPE_ x",
                                        "BA_REL_ x",
                                        "BA_SGTYPE_ x",
                                        "BA_DEF_DEF_REL_ x",
                                        "ba_ x",
                                        "BO_ 1 BA_ x",
                                        "; BA_ x",
                                        "xBA_ y",
                                        "CM_ BA_ x"}) {
        EXPECT_FALSE(IsAttributeStatement(text)) << text;
    }
}

TEST(ParseAttributeStatement, HandsEachStatementToItsHandler) {
    const ReservedTable table({
        "BA_DEF_ BO_ \"GenMsgCycleTime\" INT 0 65535;\n",
        "BA_DEF_DEF_ \"GenMsgCycleTime\" 100;\n",
        "BA_ \"GenMsgCycleTime\" BO_ 256 20;\n",
    });
    EXPECT_EQ(LinesOf(table.definitions), (Lines{"Msg GenMsgCycleTime Int [0,65535] = 100"}));
    EXPECT_EQ(LinesOf(table.values), (Lines{"Msg GenMsgCycleTime message 256 Int [0,65535] = 20"}));
}

TEST(ParseAttributeStatement, TakesAnyRunOfDelimitersBetweenTokens) {
    const ReservedTable table({
        " ;,BA_DEF_,;BO_\t\f\v\"GenMsgCycleTime\"\r\nINT,0;65535 ; \n",
        "BA_DEF_DEF_\n\"GenMsgCycleTime\",\n100",
        "BA_,\"GenMsgCycleTime\";BO_,256;20",
    });
    EXPECT_EQ(LinesOf(table.definitions), (Lines{"Msg GenMsgCycleTime Int [0,65535] = 100"}));
    EXPECT_EQ(LinesOf(table.values), (Lines{"Msg GenMsgCycleTime message 256 Int [0,65535] = 20"}));
}

TEST(ParseAttributeStatement, DoesNothingWithAnyOtherStatement) {
    const ReservedTable table({
        "",
        " ;,\n",
        "BA_DEF_REL_ \"BusType\" STRING ;",
        "BA_DEF_SGTYPE_ \"BusType\" STRING ;",
        "ba_def_ \"BusType\" STRING ;",
        "\"BA_DEF_\" \"BusType\" STRING ;",
        "x BA_DEF_ \"BusType\" STRING ;",
        "BA_DEF_\"BusType\" STRING ;",
    });
    EXPECT_EQ(LinesOf(table.definitions), Lines{});
    EXPECT_EQ(LinesOf(table.values), Lines{});
}

TEST(ParseAttributeStatement, SurvivesAKeywordAlone) {
    const ReservedTable table({"BA_", "BA_DEF_", "BA_DEF_DEF_", "BA_ ;", "BA_DEF_ ;",
                               "BA_DEF_DEF_ ;", "BA_ \"", "BA_DEF_ \"", "BA_DEF_DEF_ \""});
    EXPECT_EQ(LinesOf(table.definitions), Lines{});
    EXPECT_EQ(LinesOf(table.values), Lines{});
}

}  // namespace
}  // namespace vexil
