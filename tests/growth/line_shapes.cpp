// Long lines, hostile bytes and many statements without effect.
// SPDX-License-Identifier: MIT
#include <utility>

#include "shape_text.h"
#include "shapes.h"

namespace vexil::growth {
namespace {

// The piece over and over, in one line.
Shape Line(std::string name, std::string piece, std::size_t largest = 4 * MiB) {
    return {std::move(name),
            [piece](std::size_t size) { return Input{Repeated(piece, size) + "\n"}; }, largest};
}

// The piece over and over, each time a statement that is refused.
Shape RefusedStatements(std::string name, std::string piece, std::size_t largest) {
    return {std::move(name),
            [piece](std::size_t size) {
                Input input;
                input.errors = FillUpTo(input.text, size, [&](std::size_t) { return piece; });
                input.text += "\n";
                return input;
            },
            largest};
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

// Comments in one line, behind as many blanks.
Input BlanksBeforeStatementsInOneLine(std::size_t size) {
    return {std::string(size / 2, ' ') + Repeated("CM_ ; ", size / 2) + "\n"};
}

// Keywords that end nothing, since no semicolon stands in front of them.
Input StrayKeywordsInComments(std::size_t size) {
    return {Repeated("CM_ \"a\nBO_ BO_ BO_ BO_ \nCM_ b\";\n", size)};
}

}  // namespace

std::vector<Shape> LineShapes() {
    return {
        RefusedStatements("MessageKeywordsInOneLine", "BO_ ", 2 * MiB),
        RefusedStatements("RefusedMessages", "BO_ xxx\n", 8 * MiB),
        {"RefusedSignals", RefusedSignals},
        Line("CommentKeywordsInOneLine", "CM_ "),
        Line("CommentKeywordsWithSemicolonsInOneLine", "CM_ ; "),
        Line("ValueKeywordsInOneLine", "VAL_ "),
        Line("AttributeKeywordsInOneLine", "BA_ ; BA_DEF_ ; BA_DEF_DEF_ "),
        Line("MixedKeywordsInOneLine", "CM_ VAL_ BA_ SG_ VERSION SIG_VALTYPE_ SG_MUL_VAL_ "),
        Line("ValuesInOneLine", "VAL_ 1 S 0 \"a\" CM_ BO_ 1 \"a\" "),
        {"StatementsInOneLine", StatementsInOneLine},
        {"BlanksBeforeStatementsInOneLine", BlanksBeforeStatementsInOneLine},
        Line("ControlBytesInOneLine", "\x01", 16 * MiB),
        Line("ControlBytesBehindAKeyword", "VERSION \x01\x7f"),
        Line("InvalidBytesInOneLine", "\xff", 16 * MiB),
        Line("CutCharactersInOneLine", "\xf0\x9f\x98\xe2\x82\xc3"),
        Line("LettersInOneLine", "a", 16 * MiB),
        Line("TokensInOneLine", "B "),
        Line("BlanksInOneLine", " "),
        Line("EmptyLines", "\n"),
        Line("LinesWithoutAKeyword", "a\n"),
        {"LongLineInAStatement", LongLineInAStatement, 16 * MiB},
        {"StrayKeywordsInComments", StrayKeywordsInComments},
    };
}

}  // namespace vexil::growth
