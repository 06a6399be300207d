// Attribute definitions, defaults and values.
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>
#include <utility>

#include "shape_text.h"
#include "shapes.h"
#include "vexil64.h"

namespace vexil::growth {
namespace {

constexpr std::string_view CycleTime = "BA_DEF_ BO_ \"GenMsgCycleTime\" INT 0 1;\n";
constexpr std::string_view StartValue = "BA_DEF_ SG_ \"GenSigStartValue\" INT 0 1;\n";
constexpr std::string_view MessageNames = "BA_DEF_ BO_ \"Marrowby_Msg_Name\" STRING ;\n";

// The head, then the piece over and over, each with its index in place of "%".
Shape Statements(std::string name, std::string head, std::string piece) {
    return {std::move(name), [=](std::size_t size) {
                const std::size_t mark = piece.find('%');
                Input input{head};
                FillUpTo(input.text, size, [&](std::size_t index) {
                    std::string statement = piece;
                    return mark == std::string::npos
                               ? statement
                               : statement.replace(mark, 1, std::to_string(index));
                });
                return input;
            }};
}

// One statement of a line.
Shape OneStatement(std::string name, std::string head, std::string piece, std::string tail) {
    return {std::move(name),
            [=](std::size_t size) { return Input{head + Repeated(piece, size) + tail + ";\n"}; }};
}

// The definition of an enumeration with as many texts as fit. Returns their number.
std::size_t DefineEnum(std::string& text, std::size_t size) {
    text += "BA_DEF_ BO_ \"GenMsgSendType\" ENUM \"first\"";
    const std::size_t count =
        FillUpTo(text, size, [](std::size_t index) { return Numbered(",\"t", index) + "\""; });
    text += ";\n";
    return count + 1;
}

Input EnumAndValues(std::size_t size) {
    Input input;
    const std::size_t texts = DefineEnum(input.text, size / 2);
    FillUpTo(input.text, size, [texts](std::size_t index) {
        return Numbered("BA_ \"GenMsgSendType\" BO_ ", index) + Numbered(" ", index % texts) +
               ";\n";
    });
    return input;
}

Input EnumAndDefaultsByText(std::size_t size) {
    Input input;
    const std::size_t texts = DefineEnum(input.text, size / 2);
    const std::string statement =
        Numbered("BA_DEF_DEF_ \"GenMsgSendType\" \"t", texts - 2) + "\";\n";
    FillUpTo(input.text, size, [&](std::size_t) { return statement; });
    return input;
}

Input EnumAndUnknownDefaults(std::size_t size) {
    Input input;
    DefineEnum(input.text, size / 2);
    FillUpTo(input.text, size,
             [](std::size_t) { return "BA_DEF_DEF_ \"GenMsgSendType\" \"unknown\";\n"; });
    return input;
}

// Each message takes its send type from one long text.
Input LongSendType(std::size_t size) {
    Input input{"BA_DEF_ BO_ \"GenMsgSendType\" ENUM " + Quoted(std::string(size / 2, 'a')) +
                ";\n"};
    input.messages =
        FillUpTo(input.text, size, [](std::size_t index) { return MessageLine(index); });
    return input;
}

// The default of a definition is the first thing that each of its values is.
Input LongDefaultAndValues(std::size_t size) {
    Input input{std::string(MessageNames) + "BA_DEF_DEF_ \"Marrowby_Msg_Name\" " +
                Quoted(std::string(size / 2, 'a')) + ";\n"};
    FillUpTo(input.text, size, [](std::size_t index) {
        return Numbered("BA_ \"Marrowby_Msg_Name\" BO_ ", index) + " \"n\";\n";
    });
    return input;
}

// All names that count, of all kinds and types, and then defaults for them.
Input DefinitionsAndDefaults(std::size_t size) {
    Input input;
    constexpr std::array<std::string_view, 9> Names = {
        "BusType",           "J1939PGN",         "IsNMEA",
        "Marrowby_Msg_Name", "GenMsgSendType",   "GenMsgCycleTime",
        "Marrowby_Sig_Name", "GenSigStartValue", "GenSigInactiveValue"};
    for (const std::string_view name : Names) {
        for (const char* owner : {"", "BO_ ", "SG_ "}) {
            for (const char* type : {"INT 0 1", "STRING", "ENUM \"a\""}) {
                input.text += "BA_DEF_ " + std::string(owner) + Quoted(name) + " " + type + " ;\n";
            }
        }
    }
    FillUpTo(input.text, size, [&](std::size_t index) {
        return "BA_DEF_DEF_ " + Quoted(Names[index % Names.size()]) + " 5;\n";
    });
    return input;
}

// Signals with one value each.
Input SignalsAndValues(std::size_t size) {
    Input input{std::string(StartValue)};
    constexpr std::size_t SignalsPerMessage = 100;
    while (input.text.size() < size) {
        const std::string head =
            std::string("BA_ \"GenSigStartValue\" SG_ ").append(std::to_string(input.messages));
        input.text += MessageLine(input.messages++);
        std::string values;
        for (std::size_t index = 0; index < SignalsPerMessage; ++index) {
            const std::string name = std::string("S").append(std::to_string(index));
            input.text += SignalLine(name);
            values.append(head).append(" ").append(name).append(" 5;\n");
        }
        input.text += values;
        input.signals += SignalsPerMessage;
    }
    return input;
}

// Messages of id 1 with a signal of one name each, and a long name for all messages and one for all
// signals.
Input LongNamesOfManyOwners(std::size_t size) {
    Input input;
    input.messages = FillUpTo(input.text, size / 2,
                              [](std::size_t) { return MessageLine(1) + SignalLine("S"); });
    input.signals = input.messages;
    const std::string name = Quoted(std::string(size / 4, 'a'));
    input.text += std::string(MessageNames) + "BA_ \"Marrowby_Msg_Name\" BO_ 1 " + name + ";\n";
    input.text += "BA_DEF_ SG_ \"Marrowby_Sig_Name\" STRING ;\n";
    input.text += "BA_ \"Marrowby_Sig_Name\" SG_ 1 S " + name + ";\n";
    return input;
}

// One message whose signals share a name and a long name. A write makes the names unique, so that
// each signal has its own value for the long name.
Input LongNameOfSignalsOfOneName(std::size_t size) {
    Input input{MessageLine(1), 1};
    while (input.text.size() < size / 2 && input.signals < MaxSignalsPerMessage) {
        input.text += SignalLine("S");
        ++input.signals;
    }
    input.text += "BA_DEF_ SG_ \"Marrowby_Sig_Name\" STRING ;\nBA_ \"Marrowby_Sig_Name\" SG_ 1 S ";
    const std::size_t rest = std::max(size, input.text.size()) - input.text.size();
    input.text += Quoted(std::string(rest, 'a')) + ";\n";
    return input;
}

}  // namespace

std::vector<Shape> AttributeShapes() {
    return {
        {"EnumAndValues", EnumAndValues},
        {"EnumAndDefaultsByText", EnumAndDefaultsByText},
        {"EnumAndUnknownDefaults", EnumAndUnknownDefaults},
        {"LongSendType", LongSendType},
        {"LongDefaultAndValues", LongDefaultAndValues},
        {"DefinitionsAndDefaults", DefinitionsAndDefaults},
        {"SignalsAndValues", SignalsAndValues},
        {"LongNamesOfManyOwners", LongNamesOfManyOwners},
        {"LongNameOfSignalsOfOneName",
         LongNameOfSignalsOfOneName,
         {{Phase::Write, Unit::WrittenByte, 10, 4, 64 * KiB}}},
        Statements("DefinitionsOfOneName", "", std::string(CycleTime)),
        Statements("EnumsOfOneName", "",
                   "BA_DEF_ BO_ \"GenMsgSendType\" ENUM \"a%\",\"b\",\"c\",\"d\",\"e\";\n"),
        Statements("DefaultsOfOneName", std::string(CycleTime),
                   "BA_DEF_DEF_ \"GenMsgCycleTime\" %;\n"),
        Statements("ValuesOfOneOwner", std::string(CycleTime),
                   "BA_ \"GenMsgCycleTime\" BO_ 1 %;\n"),
        Statements("ValuesOfManyOwners", std::string(CycleTime),
                   "BA_ \"GenMsgCycleTime\" BO_ % 1;\n"),
        Statements("ValuesOfUnknownNames", std::string(CycleTime), "BA_ \"Other%\" BO_ 1 1;\n"),
        OneStatement("QuotesInAValue", std::string(CycleTime) + "BA_ \"GenMsgCycleTime\" BO_ 1 ",
                     "\" ", ""),
        OneStatement("QuotedWordsInAValue",
                     std::string(CycleTime) + "BA_ \"GenMsgCycleTime\" BO_ 1 ", "\"a\" ", ""),
        OneStatement("OpenQuoteInAValue",
                     std::string(MessageNames) + "BA_ \"Marrowby_Msg_Name\" BO_ 1 \"a", " a", ""),
        OneStatement("BackslashesInAValue",
                     std::string(MessageNames) + "BA_ \"Marrowby_Msg_Name\" BO_ 1 \"a", " \\\"a",
                     "\""),
        OneStatement("QuotesInADefinition", "BA_DEF_ BO_ \"GenMsgSendType\" ENUM ", "\"\"\"", ""),
        OneStatement("DelimitersInADefinition", "BA_DEF_ BO_ \"GenMsgSendType\" ENUM \"a", " ,;",
                     "b\""),
        OneStatement("LongNameInAValue", "BA_ \"", "a", "\" 1 "),
        OneStatement("LongSignalInAValue",
                     std::string(StartValue) + "BA_ \"GenSigStartValue\" SG_ 1 ", "a", " 1"),
        OneStatement("DigitsInAValue", std::string(CycleTime) + "BA_ \"GenMsgCycleTime\" BO_ 1 ",
                     "1", ""),
    };
}

}  // namespace vexil::growth
