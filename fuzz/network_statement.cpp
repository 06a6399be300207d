// The kinds of statements and the tables of their fields.
// SPDX-License-Identifier: MIT
#include "network_statement.h"

#include <array>
#include <initializer_list>
#include <string_view>

namespace vexil::fuzz {
namespace {

// Common entries come first, then those near a limit, then malformed ones.
constexpr std::array<std::string_view, 12> Ids = {
    "1", "2", "256", "2566834709", "4294967295", "0", "00001", "4294967296", "-1", "1x", "x", ""};

constexpr std::array<std::string_view, 16> Names = {"A",
                                                    "B",
                                                    "A A",
                                                    "A A A",
                                                    "Speed",
                                                    "M",
                                                    "m1",
                                                    "Name_with_0001",
                                                    "A_name_that_is_longer_than_an_identifier_1",
                                                    "A_name_that_is_longer_than_an_identifier_2",
                                                    "K\xC3\xBChler links",
                                                    "9",
                                                    "Vector__XXX",
                                                    "a\tb  c",
                                                    "SG_",
                                                    ""};

constexpr std::array<std::string_view, 16> Texts = {
    "text",
    "",
    "two\nlines",
    "with \"quotes\" inside",
    "\\",
    "\\\"",
    "; BO_ 1 A: 8 B\n",
    "\xC2\xB0\xE2\x82\xAC\xF0\x9F\x99\x82",
    "\xE2\x82",
    "\xFF\xED\xA0\x80",
    " \t ",
    "\r\n",
    "VAL_ in it",
    "\x01\x7F",
    "Marrowby",
    "a text of more than thirty-two characters, with a comma"};

constexpr std::array<std::string_view, 15> Numbers = {
    "1",          "0",     "-1",     "2",   "0.1", "8", "2147483647", "-2147483648", "2147483648",
    "4294967296", "1e999", "1e-310", "nan", "x",   ""};

constexpr std::array<std::string_view, 10> Multiplexing = {
    "", " M", " m1", " m0", " m4294967295", " m4294967296", " m1M", " m-1", " m", " M M"};

constexpr std::array<std::string_view, 11> Layouts = {
    "0|8@1+",  "0|32@1-",    "0|64@1-",         "7|16@0+", "4294967295|4294967295@0-",
    "0|32@1+", " 0 | 8 @1+", "0|4294967296@1+", "0|8@2+",  "0|@1+",
    ""};

constexpr std::array<std::string_view, 10> Scalings = {"(1,0)",
                                                       "(0.1,-40)",
                                                       "(0.333333333333,12345678901)",
                                                       "(1e100,1e-310)",
                                                       "(-0,0)",
                                                       "( 1 , 0 )",
                                                       "(1e999,0)",
                                                       "(nan,inf)",
                                                       "(1)",
                                                       ""};

constexpr std::array<std::string_view, 9> Ranges = {
    "[0|1]", "[1|0]", "[-1.5|6553.5]", "[0|1.7976931348623157e308]", "[nan|0]", "[0|]", "[0]",
    "[",     ""};

constexpr std::array<std::string_view, 10> Units = {"\"\"",
                                                    "\"km/h\"",
                                                    "\"\xC2\xB0"
                                                    "C\"",
                                                    "\" % \"",
                                                    "\"a unit of more than thirty-two characters\"",
                                                    "\"\xE2\x82\"",
                                                    "\"two\" quotes\"",
                                                    "\"",
                                                    "",
                                                    "\"\t\""};

constexpr std::array<std::string_view, 11> Attributes = {"BusType",
                                                         "GenMsgSendType",
                                                         "GenMsgCycleTime",
                                                         "Marrowby_Msg_Name",
                                                         "Marrowby_Sig_Name",
                                                         "GenSigStartValue",
                                                         "GenSigInactiveValue",
                                                         "J1939PGN",
                                                         "IsNMEA",
                                                         "Other",
                                                         ""};

constexpr std::array<std::string_view, 12> AttributeTypes = {
    "STRING ", "INT 0 100", "ENUM \"a\",\"b\"", "FLOAT 0 1", "HEX 0 1", "INT x 1", "INT x x",
    "INT",     "ENUM",      "ENUM \"a\",b",     "STRING 1",  ""};

constexpr std::array<std::string_view, 12> AttributeValues = {
    "1",    "\"text\"",   "\"CAN FD\"", "0", "\"a\"",  "-1",
    "\"\"", "4294967296", "1.5",        "x", "\"open", ""};

constexpr std::array<std::string_view, 5> Owners = {"", "BO_ ", "SG_ ", "BU_ ", "EV_ "};

constexpr std::array<std::string_view, 16> Keywords = {
    "BU_ :",      "VERSION", "NS_ :",   "BS_ :",       "VAL_TABLE_", "EV_",
    "SIG_GROUP_", "CM_",     "CM_ BU_", "BA_DEF_REL_", "BA_REL_",    "BO_TX_BU_",
    "FILTER",     "BO_",     "SG_",     "NO_KEYWORD_"};

constexpr std::size_t LongestText = 6000;

class Statement {
  public:
    Statement(ByteSource& byteSource, std::uint32_t count) : input(byteSource), number(count) {}

    std::string Text() {
        constexpr std::string_view Kinds = "bscCvtdDaukf";
        const char ch = input.Byte();
        switch (Kinds.find(ch) != std::string_view::npos
                    ? ch
                    : Kinds[static_cast<unsigned char>(ch) % Kinds.size()]) {
            case 'b':
                return Joined({"BO_ ", Field(Ids), " ", Field(Names), ": ", Field(Numbers), " ",
                               Field(Names), "\n"});
            case 's':
                return Joined({" SG_ ", Field(Names), Field(Multiplexing), " : ", Field(Layouts),
                               " ", Field(Scalings), " ", Field(Ranges), " ", Field(Units), " ",
                               NameList(), "\n"});
            case 'c':
                return Joined({"CM_ BO_ ", Field(Ids), " \"", Field(Texts), "\";\n"});
            case 'C':
                return Joined(
                    {"CM_ SG_ ", Field(Ids), " ", Field(Names), " \"", Field(Texts), "\";\n"});
            case 'v':
                return Joined({"VAL_ ", Field(Ids), " ", Field(Names), Pairs(), " ;\n"});
            case 't':
                return Joined(
                    {"SIG_VALTYPE_ ", Field(Ids), " ", Field(Names), " : ", Field(Numbers), ";\n"});
            case 'd':
                return Joined({"BA_DEF_ ", Field(Owners), "\"", Field(Attributes), "\" ",
                               Field(AttributeTypes), ";\n"});
            case 'D':
                return Joined(
                    {"BA_DEF_DEF_ \"", Field(Attributes), "\" ", Field(AttributeValues), ";\n"});
            case 'a':
                return Joined(
                    {"BA_ \"", Field(Attributes), "\" ", Owner(), Field(AttributeValues), ";\n"});
            case 'u':
                return Joined({"BU_ : ", NameList(), "\n"});
            case 'k':
                return Joined({Field(Keywords), " ", Field(Texts), "\n"});
            default:
                return std::string(input.TextUpTo('|'));
        }
    }

  private:
    // A braced list is evaluated from left to right. The order in a sum is not specified.
    static std::string Joined(std::initializer_list<std::string> pieces) {
        std::string text;
        for (const std::string& piece : pieces) {
            text += piece;
        }
        return text;
    }

    template <std::size_t Size>
    std::string Field(const std::array<std::string_view, Size>& entries) {
        const char ch = input.Byte();
        switch (ch) {
            case '"':
                return std::string(input.TextUpTo('|'));
            case '*': {
                const std::string_view once = input.TextUpTo('|');
                return Repeated(once, input.Word() % LongestText);
            }
            case '#':
                return std::string(entries[0]) + std::to_string(number);
            case '^':
                return Repeated(std::string(entries[0]) + ' ',
                                (entries[0].size() + 1) * (number % 100));
            default:
                return std::string(entries[At(ch) % Size]);
        }
    }

    static std::string Repeated(std::string_view once, std::size_t size) {
        std::string text;
        while (text.size() < size && !once.empty()) {
            text += once;
        }
        return text;
    }

    static std::size_t At(char ch) {
        return static_cast<unsigned char>(ch >= '0' && ch <= '9' ? ch - '0' : ch);
    }

    // Several names, separated by commas.
    std::string NameList() {
        std::string list = Field(Names);
        for (std::size_t more = At(input.Byte()) % 10; more > 1; --more) {
            list += ',';
            list += Field(Names);
        }
        return list;
    }

    // Several value descriptions. If there are more than nine, they repeat the same fields, in
    // which "#" is a different number for each.
    std::string Pairs() {
        std::string pairs;
        const std::uint32_t count = input.Word() % 300;
        const std::uint32_t statement = number;
        const ByteSource first = input;
        for (std::uint32_t at = 0; at < count && pairs.size() < LongestText; ++at) {
            input = count > 9 ? first : input;
            number = statement * count + at;
            pairs += Joined({" ", Field(Numbers), " \"", Field(Texts), "\""});
        }
        number = statement;
        return pairs;
    }

    std::string Owner() {
        const std::string kind = Field(Owners);
        if (kind == "BO_ ") {
            return Joined({kind, Field(Ids), " "});
        }
        return kind == "SG_ " ? Joined({kind, Field(Ids), " ", Field(Names), " "}) : kind;
    }

    ByteSource& input;
    std::uint32_t number;
};

}  // namespace

std::string StatementOf(ByteSource& input, std::uint32_t number) {
    return Statement(input, number).Text();
}

}  // namespace vexil::fuzz
