// Comments, value types and value descriptions for few and for many owners.
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <utility>

#include "shape_text.h"
#include "shapes.h"
#include "vexil64.h"

namespace vexil::growth {
namespace {

using NameOf = std::function<std::string(std::size_t index)>;
using StatementFor = std::function<std::string(const std::string& name)>;

// -- Statements for the signal of a name of message 1 --

std::string Comment(const std::string& name) {
    return "CM_ SG_ 1 " + name + " \"t\";\n";
}

std::string EmptyComment(const std::string& name) {
    return "CM_ SG_ 1 " + name + " \"\";\n";
}

std::string ValueType(const std::string& name) {
    return "SIG_VALTYPE_ 1 " + name + " : 1;\n";
}

std::string Description(const std::string& name) {
    return "VAL_ 1 " + name + " 0 \"t\";\n";
}

std::string NoDescription(const std::string& name) {
    return "VAL_ 1 " + name + " ;\n";
}

std::string AllThree(const std::string& name) {
    return Comment(name) + Description(name) + ValueType(name);
}

// -- Names of signals --

std::string PlainName(std::size_t index) {
    return Numbered("S", index);
}

std::string NameWithABlank(std::size_t index) {
    return Numbered("S ", index);
}

// Each the beginning of the next.
std::string NestedName(std::size_t index) {
    std::string name = "A";
    for (std::size_t word = 0; word < index; ++word) {
        name += " A";
    }
    return name;
}

// Two words that differ only at the end of a long beginning.
std::string LateDifference(std::size_t index) {
    return std::string(100, 'a') + " " + std::string(100, 'b') + std::to_string(index);
}

// One word that differs from the others only at its end.
std::string LongBeginning(std::size_t index) {
    return Numbered(std::string(1000, 'a'), index);
}

// As many prefixes that could be names as words.
std::string NameOfManyWords(std::size_t index) {
    return Repeated("a ", 100) + std::to_string(index);
}

// One message of up to MaxSignalsPerMessage signals, then statements that name one after the other.
//   describes  whether the statements add a value description.
Input StatementsForSignals(std::size_t size, const NameOf& nameOf, const StatementFor& statementFor,
                           bool describes) {
    Input input{MessageLine(1), 1};
    std::vector<std::string> names;
    while (input.text.size() < size / 2 && names.size() < MaxSignalsPerMessage) {
        names.push_back(nameOf(names.size()));
        input.text += SignalLine(names.back());
    }
    input.signals = names.size();
    const std::size_t statements = FillUpTo(input.text, size, [&](std::size_t index) {
        return statementFor(names[index % names.size()]);
    });
    input.enums = describes ? std::min(statements, names.size()) : 0;
    return input;
}

Shape Statements(std::string name, NameOf nameOf, StatementFor statementFor,
                 bool describes = false) {
    return {std::move(name), [=](std::size_t size) {
                return StatementsForSignals(size, nameOf, statementFor, describes);
            }};
}

// -- Many messages of one id --

std::string MessageOfOneId(std::size_t index) {
    return MessageLine(1) + SignalLine(PlainName(index));
}

// Many messages of id 1 with one signal each, then the statement over and over.
Shape MessagesThenStatements(std::string name, std::string statement) {
    return {std::move(name), [statement](std::size_t size) {
                Input input;
                input.messages = FillUpTo(input.text, size / 2, MessageOfOneId);
                input.signals = input.messages;
                FillUpTo(input.text, size, [&](std::size_t) { return statement; });
                return input;
            }};
}

// The same, with the statement after each message.
Shape MessagesAndStatements(std::string name, std::string statement) {
    return {std::move(name), [statement](std::size_t size) {
                Input input;
                input.messages = FillUpTo(input.text, size, [&](std::size_t index) {
                    return MessageOfOneId(index) + statement;
                });
                input.signals = input.messages;
                return input;
            }};
}

// Messages of id 1, each followed by statements for the signal that it brings.
Input MessagesWithTheirStatements(std::size_t size) {
    Input input;
    input.messages = FillUpTo(input.text, size, [](std::size_t index) {
        return MessageOfOneId(index) + AllThree(PlainName(index));
    });
    input.signals = input.messages;
    input.enums = input.messages;
    return input;
}

// Messages of id 1 with a signal of one name each, and after each the statement.
Input MessagesOfOneNameAnd(const std::string& statement, std::size_t size) {
    Input input;
    input.messages = FillUpTo(input.text, size, [&](std::size_t) {
        return MessageLine(1) + SignalLine("S") + statement;
    });
    input.signals = input.messages;
    return input;
}

Input MessagesAndFloatsOfOneName(std::size_t size) {
    return MessagesOfOneNameAnd(ValueType("S"), size);
}

Input MessagesAndStatementsOfOneName(std::size_t size) {
    Input input = MessagesOfOneNameAnd(AllThree("S"), size);
    input.enums = input.messages;
    return input;
}

// -- Much text for one owner --

// A message with one signal, then the piece over and over between head and tail.
Shape ForOneSignal(std::string name, std::string head, std::string piece, std::string tail,
                   std::uint64_t enums = 0) {
    return {std::move(name), [=](std::size_t size) {
                return Input{MessageLine(1) + SignalLine("S") + head + Repeated(piece, size) + tail,
                             1, 1, enums};
            }};
}

// The value of a description from its index and the greatest index there may be.
using ValueOf = std::size_t (*)(std::size_t index, std::size_t last);

std::size_t Ascending(std::size_t index, std::size_t) {
    return index;
}

std::size_t Descending(std::size_t index, std::size_t last) {
    return last - index;
}

// All over the place, each value once.
std::size_t Scattered(std::size_t index, std::size_t) {
    return (index * 2654435761U) % 2147483647U;
}

Shape DescriptionsInOneLine(std::string name, ValueOf valueOf) {
    return {std::move(name), [valueOf](std::size_t size) {
                Input input{MessageLine(1) + SignalLine("S") + "VAL_ 1 S", 1, 1};
                input.enums = FillUpTo(input.text, size, [&](std::size_t index) {
                    return Numbered(" ", valueOf(index, size)) + " \"text\"";
                });
                input.text += ";\n";
                return input;
            }};
}

Shape DescriptionsInManyLines(std::string name, ValueOf valueOf) {
    return {std::move(name), [valueOf](std::size_t size) {
                Input input{MessageLine(1) + SignalLine("S"), 1, 1};
                input.enums = FillUpTo(input.text, size, [&](std::size_t index) {
                    return Numbered("VAL_ 1 S ", valueOf(index, size)) + " \"t\";\n";
                });
                return input;
            }};
}

// Signals of one name and one long statement in which nothing is a number.
Input OneNameAndNoNumbers(std::size_t size) {
    Input input{MessageLine(1), 1};
    while (input.text.size() < size / 2 && input.signals < MaxSignalsPerMessage) {
        input.text += SignalLine("S");
        ++input.signals;
    }
    input.text += "VAL_ 1 S " + Repeated("x \"y\" ", size / 2) + ";\n";
    return input;
}

// Messages of different ids, each with a signal of one name and all that a file can say about it.
Input ManyIdsAndTheirStatements(std::size_t size) {
    Input input;
    input.messages = FillUpTo(input.text, size, [](std::size_t index) {
        const std::string id = std::to_string(index);
        return MessageLine(index) + SignalLine("S") + "CM_ BO_ " + id + " \"t\";\nCM_ SG_ " + id +
               " S \"t\";\nVAL_ " + id + " S 0 \"t\";\n";
    });
    input.signals = input.messages;
    input.enums = input.messages;
    return input;
}

// Messages whose names, transmitters and signals differ only at the end of a long beginning.
Input LongBeginningsOfAllNames(std::size_t size) {
    Input input;
    input.messages = FillUpTo(input.text, size, [](std::size_t index) {
        const std::string name = LongBeginning(index);
        return MessageLine(index, name, name) + SignalLine(name) + Numbered("CM_ SG_ ", index) +
               " " + name + " \"t\";\n";
    });
    input.signals = input.messages;
    return input;
}

// One message of signals of one name, and one statement with a long text for all of them.
Shape LongTextForOneName(std::string name, std::string head, bool describes) {
    return {std::move(name),
            [=](std::size_t size) {
                Input input{MessageLine(1), 1};
                while (input.text.size() < size / 2 && input.signals < MaxSignalsPerMessage) {
                    input.text += SignalLine("S");
                    ++input.signals;
                }
                const std::size_t rest = std::max(size, input.text.size()) - input.text.size();
                input.text += head + Quoted(std::string(rest, 'a')) + ";\n";
                input.enums = describes ? input.signals : 0;
                return input;
            },
            {{Phase::Write, Unit::WrittenByte, 10, 0, 128 * KiB}}};
}

// Messages of one id, and one long comment for all of them.
Input LongCommentOfOneId(std::size_t size) {
    Input input;
    input.messages = FillUpTo(input.text, size / 2, [](std::size_t) { return MessageLine(1); });
    input.text += "CM_ BO_ 1 " + Quoted(std::string(size / 2, 'a')) + ";\n";
    return input;
}

Shape Bounded(Shape shape, std::vector<Bound> bounds) {
    shape.bounds = std::move(bounds);
    return shape;
}

}  // namespace

std::vector<Shape> OwnerShapes() {
    // One text for all owners, which a written file repeats for each.
    const std::vector<Bound> repeated = {{Phase::Write, Unit::WrittenByte, 20, 0, 256 * KiB}};
    return {
        ForOneSignal("CommentsOfAMessage", "", "CM_ BO_ 1 \"text\";\n", ""),
        ForOneSignal("CommentsOfASignal", "", "CM_ SG_ 1 S \"text\";\n", ""),
        ForOneSignal("CommentsWithQuotesOfAMessage", "", "CM_ BO_ 1 \"a \"b\" c\";\n", ""),
        ForOneSignal("CommentsWithQuotesOfASignal", "", "CM_ SG_ 1 S \"a \"b\" c\";\n", ""),
        ForOneSignal("CommentsOfQuotes", "", "CM_ SG_ 1 S \"\"\"\"\"\"\"\"\";\n", ""),
        ForOneSignal("CommentsThatEndInABackslash", "", "CM_ SG_ 1 S \"\"\\\";\n", ""),
        ForOneSignal("OneCommentOfQuotes", "CM_ SG_ 1 S ", "\"", ";\n"),
        ForOneSignal("OneCommentWithoutQuotes", "CM_ SG_ 1 ", "S ", ";\n"),
        ForOneSignal("ValueTypesOfASignal", "", ValueType("S"), ""),
        ForOneSignal("OneValueTypeWithoutAnEnd", "SIG_VALTYPE_ 1 S :", " 1", "\n"),
        ForOneSignal("OneValueInOneLine", "VAL_ 1 S", " 5 \"text\"", ";\n", 1),
        ForOneSignal("OneValueInManyLines", "", Description("S"), "", 1),
        ForOneSignal("QuotesForValues", "VAL_ 1 S ", "\"", ";\n"),
        ForOneSignal("WordsForValues", "VAL_ 1 S ", "x \"y\" ", ";\n"),
        ForOneSignal("BlanksForAValue", "VAL_ 1 S ", "  ", "\"a\" 1 \"b\";\n", 1),
        DescriptionsInOneLine("AscendingValuesInOneLine", Ascending),
        DescriptionsInOneLine("DescendingValuesInOneLine", Descending),
        DescriptionsInOneLine("ScatteredValuesInOneLine", Scattered),
        DescriptionsInManyLines("AscendingValuesInManyLines", Ascending),
        DescriptionsInManyLines("DescendingValuesInManyLines", Descending),

        Statements("StatementsForPlainNames", PlainName, AllThree, true),
        Statements("CommentsForNamesWithBlanks", NameWithABlank, Comment),
        Statements("ValueTypesForNamesWithBlanks", NameWithABlank, ValueType),
        Statements("DescriptionsForNamesWithBlanks", NameWithABlank, Description, true),
        Statements("CommentsForNestedNames", NestedName, Comment),
        // A statement means every name that it begins with, and each of them is compared with it.
        Bounded(Statements("ValueTypesForNestedNames", NestedName, ValueType),
                {{Phase::Read, Unit::InputByteToThreeHalves, 0.3, 0, 4 * MiB}}),
        Statements("StatementsForLateDifferences", LateDifference, AllThree, true),
        Statements("StatementsForLongBeginnings", LongBeginning, AllThree, true),
        Statements("StatementsForNamesOfManyWords", NameOfManyWords, AllThree, true),
        Statements(
            "EmptyCommentsForOneName", [](std::size_t) { return "S"; }, EmptyComment),
        Statements(
            "NoDescriptionsForOneName", [](std::size_t) { return "S"; }, NoDescription),
        Statements(
            "ValueTypesForOneName", [](std::size_t) { return "S"; }, ValueType),
        Bounded(Statements(
                    "CommentsForOneName", [](std::size_t) { return "S"; }, Comment),
                repeated),
        Bounded(Statements("DescriptionsForNestedNames", NestedName, Description, true),
                {{Phase::Read, Unit::InputByteToThreeHalves, 0.3, 0, 4 * MiB},
                 {Phase::FirstDescriptions, Unit::InputByteToThreeHalves, 0.4},
                 {Phase::Fetch, Unit::InputByteToThreeHalves, 0.4},
                 {Phase::Write, Unit::InputByteToThreeHalves, 0.4}}),
        Statements(
            "EmptyCommentsForNoName", [](std::size_t) { return ""; }, EmptyComment),
        Statements(
            "ValueTypesForNoName", [](std::size_t) { return ""; }, ValueType),
        Statements(
            "DescriptionsForNoName", [](std::size_t) { return ""; }, Description),
        Statements("StatementsForOtherNames", PlainName,
                   [](const std::string& name) { return AllThree("X" + name); }),
        {"OneNameAndNoNumbers", OneNameAndNoNumbers},

        MessagesThenStatements("OneIdThenCommentsOfOthers", Comment("X")),
        MessagesThenStatements("OneIdThenValueTypesOfOthers", ValueType("X")),
        MessagesThenStatements("OneIdThenDescriptionsOfOthers", Description("X")),
        MessagesThenStatements("OneIdThenEmptyComments", "CM_ BO_ 1 \"\";\n"),
        MessagesThenStatements("OneIdThenHalfComments", "CM_ BO_ 1 \";\n"),
        MessagesThenStatements("OneIdThenCommentsOfNobody", "CM_ BO_ 1 X \"t\";\n"),
        MessagesAndStatements("OneIdAndCommentsOfOthers", Comment("X")),
        MessagesAndStatements("OneIdAndValueTypesOfOthers", ValueType("X")),
        MessagesAndStatements("OneIdAndDescriptionsOfOthers", Description("X")),
        MessagesAndStatements("OneIdAndEmptyComments", "CM_ BO_ 1 \"\";\n"),
        {"OneIdAndTheirStatements", MessagesWithTheirStatements},
        Bounded(MessagesThenStatements("OneIdThenCommentsOfAll", "CM_ BO_ 1 \"t\";\n"), repeated),
        Bounded(MessagesAndStatements("OneIdAndCommentsOfAll", "CM_ BO_ 1 \"t\";\n"), repeated),
        {"LongCommentOfOneId",
         LongCommentOfOneId,
         {{Phase::Write, Unit::WrittenByte, 10, 0, 128 * KiB}}},
        LongTextForOneName("LongCommentForOneName", "CM_ SG_ 1 S ", false),
        LongTextForOneName("LongDescriptionForOneName", "VAL_ 1 S 0 ", true),
        {"OneIdAndFloatsOfOneName", MessagesAndFloatsOfOneName},
        {"OneIdAndStatementsOfOneName",
         MessagesAndStatementsOfOneName,
         {{Phase::FirstDescriptions, Unit::InputByteSquared, 0.015, 0, 64 * KiB},
          {Phase::Fetch, Unit::InputByteSquared, 0.015, 0, 64 * KiB},
          {Phase::Write, Unit::WrittenByte, 20, 0, 64 * KiB}}},
        {"ManyIdsAndTheirStatements", ManyIdsAndTheirStatements},
        {"LongBeginningsOfAllNames", LongBeginningsOfAllNames},
    };
}

}  // namespace vexil::growth
