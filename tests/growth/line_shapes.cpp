// Long lines, hostile bytes and many statements without effect.
// SPDX-License-Identifier: MIT
#include <utility>

#include "shape_text.h"
#include "shapes.h"

namespace vexil::growth {
namespace {

// The piece over and over, in one line.
Shape Line(std::string name, std::string piece) {
    return {std::move(name),
            [piece](std::size_t size) { return Input{Repeated(piece, size) + "\n"}; }};
}

// The piece over and over, each time a statement that is refused.
Shape RefusedStatements(std::string name, std::string piece) {
    return {std::move(name), [piece](std::size_t size) {
                Input input;
                input.errors = FillUpTo(input.text, size, [&](std::size_t) { return piece; });
                input.text += "\n";
                return input;
            }};
}

// A signal that is refused for each message.
Input RefusedSignals(std::size_t size) {
    Input input;
    const std::string piece = MessageLine(1) + " SG_ S : 0\n";
    input.messages = FillUpTo(input.text, size, [&](std::size_t) { return piece; });
    input.errors = input.messages;
    return input;
}

// A line inside the quotes of a comment.
Input LongLineInAStatement(std::size_t size) {
    return {MessageLine(1) + "CM_ BO_ 1 " + Quoted(std::string(size, 'a')) + ";\n", 1};
}

// Statements without a line end between them. Comments and attributes of messages are not among
// them, since a keyword in such a text hides the rest of the line.
Input StatementsInOneLine(std::size_t size) {
    Input input;
    input.messages = FillUpTo(input.text, size, [](std::size_t index) {
        const std::string id = std::to_string(index);
        return "BO_ " + id + " M: 8 A SG_ S : 0|8@1+ (1,0) [0|0] \"\" B VAL_ " + id +
               " S 0 \"t\" ; SIG_VALTYPE_ " + id + " S : 1; BA_ \"BusType\" \"a\" ; ";
    });
    input.text += "\n";
    input.signals = input.messages;
    input.enums = input.messages;
    return input;
}

// Comments in one line, after as many blanks.
Input BlanksBeforeStatementsInOneLine(std::size_t size) {
    return {std::string(size / 2, ' ') + Repeated("CM_ ; ", size / 2) + "\n"};
}

// Keywords that end nothing, since no semicolon comes before them.
Input StrayKeywordsInComments(std::size_t size) {
    return {Repeated("CM_ \"a\nBO_ BO_ BO_ BO_ \nCM_ b\";\n", size)};
}

// The piece over and over, each time a message.
Shape Messages(std::string name, std::string piece) {
    return {std::move(name), [piece](std::size_t size) {
                Input input;
                input.messages = FillUpTo(input.text, size, [&](std::size_t) { return piece; });
                input.text += "\n";
                return input;
            }};
}

// Refused signals of four bytes, each after a message, since only the first one is parsed.
Input ShortestRefusedSignals(std::size_t size) {
    Input input;
    input.messages = FillUpTo(input.text, size, [](std::size_t) { return "BO_ 0 M:8\nSG_\n"; });
    input.errors = input.messages;
    return input;
}

// A line of half the size, then short ones.
Input ShortLinesAfterALongOne(std::size_t size) {
    Input input{std::string(size / 2, 'a') + "\n"};
    input.messages = FillUpTo(input.text, size, [](std::size_t) { return "BO_ 0 M:8\n"; });
    return input;
}

// A file that does not end with a line feed.
Input LineWithoutAnEnd(std::size_t size) {
    return {std::string(size, 'a')};
}

// Statements just below the length at which the rest of one is dropped.
Input CommentsOfManyLines(std::size_t size) {
    const std::string comment = "CM_ BO_ 1 \"" + Repeated("a\n", 4000) + "\";\n";
    Input input{MessageLine(1), 1};
    FillUpTo(input.text, size, [&](std::size_t) { return comment; });
    return input;
}

}  // namespace

std::vector<Shape> LineShapes() {
    return {
        RefusedStatements("MessageKeywordsInOneLine", "BO_ "),
        RefusedStatements("RefusedMessages", "BO_ xxx\n"),
        RefusedStatements("ShortestRefusedMessages", "BO_\n"),
        {"RefusedSignals", RefusedSignals},
        {"ShortestRefusedSignals", ShortestRefusedSignals},
        Messages("ShortestMessages", "BO_ 0 M:8\n"),
        Messages("ShortestMessagesInOneLine", "BO_ 0 M:8 "),
        Line("CommentKeywordsInOneLine", "CM_ "),
        Line("CommentKeywordsWithSemicolonsInOneLine", "CM_ ; "),
        Line("ValueKeywordsInOneLine", "VAL_ "),
        Line("AttributeKeywordsInOneLine", "BA_ ; BA_DEF_ ; BA_DEF_DEF_ "),
        Line("MixedKeywordsInOneLine", "CM_ VAL_ BA_ SG_ VERSION SIG_VALTYPE_ SG_MUL_VAL_ "),
        Line("ValuesInOneLine", "VAL_ 1 S 0 \"a\" CM_ BO_ 1 \"a\" "),
        {"StatementsInOneLine", StatementsInOneLine},
        {"BlanksBeforeStatementsInOneLine", BlanksBeforeStatementsInOneLine},
        Line("ControlBytesInOneLine", "\x01"),
        Line("ControlBytesBehindAKeyword", "VERSION \x01\x7f"),
        Line("InvalidBytesInOneLine", "\xff"),
        Line("CutCharactersInOneLine", "\xf0\x9f\x98\xe2\x82\xc3"),
        Line("LettersInOneLine", "a"),
        Line("TokensInOneLine", "B "),
        Line("BlanksInOneLine", " "),
        Line("EmptyLines", "\n"),
        Line("LinesWithoutAKeyword", "a\n"),
        // These become keywords only when the control bytes are removed.
        Messages("ControlBytesInEveryLine",
                 "\x01"
                 "BO_\x02 1 \x7fM: 8 \x01"
                 "A\x1f\n"),
        Messages("InvalidBytesInEveryLine", "BO_ 1 M\xff: 8 \xc3 A\xf0\x9f\x98\n"),
        Line("ShortLinesOfControlBytes", "\x01\n"),
        Line("ShortLinesOfInvalidBytes", "\xff\n"),
        {"LongLineInAStatement", LongLineInAStatement},
        {"ShortLinesAfterALongOne", ShortLinesAfterALongOne},
        {"LineWithoutAnEnd", LineWithoutAnEnd},
        {"CommentsOfManyLines", CommentsOfManyLines},
        {"StrayKeywordsInComments", StrayKeywordsInComments},
    };
}

}  // namespace vexil::growth
