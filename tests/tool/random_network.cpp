// A statement at a time, most of them sound, then a few faults.
// SPDX-License-Identifier: MIT
#include "tool/random_network.h"

#include <array>
#include <cstddef>
#include <initializer_list>
#include <random>
#include <string_view>

namespace vexil::test {
namespace {

class Maker {
  public:
    explicit Maker(std::uint32_t seed) : engine(seed) {}

    std::string Make() {
        std::string text;
        const std::size_t count = 3 + Below(25);
        for (std::size_t index = 0; index < count; ++index) {
            text += Statement();
            text += Below(8) == 0 ? Pick(Separators) : "\n";
        }
        const std::size_t faults = Below(4);
        for (std::size_t index = 0; index < faults; ++index) {
            Damage(text);
        }
        return text;
    }

  private:
    static constexpr std::array<std::string_view, 6> Separators = {" ",  "\n\n", "\r\n",
                                                                   "\t", "",     "\n // note\n"};
    static constexpr std::array<std::string_view, 6> Ids = {"1", "2", "3", "4", "007", "0x5"};
    static constexpr std::array<std::string_view, 8> Names = {
        "A", "B", "Gear", "Two Words", "M", "m1", "ANameOfMoreThanThirtyTwoCharacters_1", "9th"};
    static constexpr std::array<std::string_view, 9> Texts = {
        "plain",   "see BO_ 2 here", "two\nlines", "a \"quoted\" word", "",
        "; and ;", "VAL_ first",     "back\\\"",   "one\nBO_ 9 In: 8 N"};
    static constexpr std::array<std::string_view, 11> Attributes = {"BusType",
                                                                    "J1939PGN",
                                                                    "IsNMEA",
                                                                    "Marrowby_Msg_Name",
                                                                    "GenMsgSendType",
                                                                    "GenMsgCycleTime",
                                                                    "Marrowby_Sig_Name",
                                                                    "GenSigStartValue",
                                                                    "GenSigInactiveValue",
                                                                    "Other",
                                                                    "More"};
    static constexpr std::array<std::string_view, 6> Types = {
        "INT 0 100", "STRING ", "INT 0", "ENUM \"No\",\"Yes\",\"On Event\"",
        "FLOAT 0 1", "HEX 0 9"};
    static constexpr std::array<std::string_view, 11> Values = {
        "0", "1", "2", "100", "1.5", "\"CAN FD\"", "\"text\"", "\"a, b\"", "\"Yes\"", "\"\"", "A"};
    static constexpr std::array<std::string_view, 6> Owners = {"",     "BO_ ", "SG_ ",
                                                               "BU_ ", "EV_ ", ""};
    static constexpr std::array<std::string_view, 10> Ignored = {
        "VERSION \"1 BO_ x\"",
        "BS_:",
        "BS_ : 500",
        "BU_: N Q",
        "BU_ : N",
        "VAL_TABLE_ T 0 \"a\" ;",
        "EV_ E: 0 [0|1] \"\" 0 1 D N;",
        "BO_TX_BU_ 1 : N,Q;",
        "SIG_GROUP_ 1 G 1 : A B;",
        "NS_ :\n NS_DESC_\n CM_\n BA_DEF_\n BA_\n VAL_\n"};
    static constexpr std::array<std::string_view, 9> Damages = {"\"",   ";",      " ",    ":", "\n",
                                                                "BO_ ", "\nSG_ ", "\xB0", "x"};

    std::size_t Below(std::size_t limit) { return engine() % limit; }

    template <std::size_t Size>
    std::string Pick(const std::array<std::string_view, Size>& from) {
        return std::string(from[Below(Size)]);
    }

    // One of the first ones most of the time.
    template <std::size_t Size>
    std::string PickGood(const std::array<std::string_view, Size>& from) {
        return Below(6) == 0 ? Pick(from) : std::string(from[Below(3)]);
    }

    // Draws in the order of the list. That of the operands of + is up to the compiler.
    static std::string Join(std::initializer_list<std::string> parts) {
        std::string text;
        for (const std::string& part : parts) {
            text += part;
        }
        return text;
    }

    std::string Message() {
        std::string text = Join({"BO_ ", PickGood(Ids), " ", PickGood(Names), ": 8 N\n"});
        const std::size_t count = Below(4);
        for (std::size_t index = 0; index < count; ++index) {
            text += Signal();
            text += '\n';
        }
        return text;
    }

    std::string Signal() {
        static constexpr std::array<std::string_view, 5> Indicators = {" M", " m1", " m", " m0M",
                                                                       " m1a"};
        static constexpr std::array<std::string_view, 6> Layouts = {"0|8@1+", "8|32@1-", "16|64@1+",
                                                                    "0|8@2+", "0|8",     "7|8@0"};
        static constexpr std::array<std::string_view, 6> Rests = {
            " (1,0) [0|1] \"km\" N",    " (0.5,-4) [1|0] \"\" N,Q", " (1,0) [0|255] \"%\" N",
            " (1x,0) [0|1] \" s\" N Q", " (1,0) [0] \"\" N",        " (1,0) [0|1] N"};
        return Join({" SG_ ", PickGood(Names), Below(4) == 0 ? Pick(Indicators) : "", " : ",
                     PickGood(Layouts), PickGood(Rests)});
    }

    std::string Comment() {
        static constexpr std::array<std::string_view, 6> Kinds = {"BO_", "SG_", "BO_",
                                                                  "BU_", "EV_", ""};
        const std::string kind = Pick(Kinds);
        std::string text = "CM_ " + kind;
        if (kind == "BO_" || kind == "SG_") {
            text += " " + PickGood(Ids);
        }
        if (kind == "SG_" || kind == "BU_" || kind == "EV_") {
            text += " " + PickGood(Names);
        }
        return Join({text, " \"", Pick(Texts), "\"", Below(10) == 0 ? "" : ";"});
    }

    std::string Descriptions() {
        static constexpr std::array<std::string_view, 5> Pairs = {
            " 0 \"off\" 1 \"on\"", " 2 \"two\"", "", " x \"1\" 3 \"c\"", " 4294967295 \"SNA\""};
        return Join({"VAL_ ", PickGood(Ids), " ", PickGood(Names), Pick(Pairs), " ;"});
    }

    std::string ValueType() {
        static constexpr std::array<std::string_view, 4> Ends = {" : 1;", " : 2;", ": 1;", " : 0;"};
        return Join({"SIG_VALTYPE_ ", PickGood(Ids), " ", PickGood(Names), Pick(Ends)});
    }

    std::string Attribute() {
        const std::string name = "\"" + Pick(Attributes) + "\" ";
        switch (Below(3)) {
            case 0:
                return Join({"BA_DEF_ ", Pick(Owners), name, Pick(Types), ";"});
            case 1:
                return "BA_DEF_DEF_ " + name + Pick(Values) + ";";
            default:
                break;
        }
        std::string owner = Pick(Owners);
        if (!owner.empty()) {
            owner += PickGood(Ids) + " ";
        }
        if (owner.starts_with("SG_")) {
            owner += PickGood(Names) + " ";
        }
        return "BA_ " + name + owner + Pick(Values) + ";";
    }

    // An attribute that is defined as it is kept, with a default and values.
    std::string SoundAttribute() {
        static constexpr std::array<std::string_view, 5> Sound = {
            "BA_DEF_ BO_ \"GenMsgCycleTime\" INT 0 100;\nBA_DEF_DEF_ \"GenMsgCycleTime\" 10;\n"
            "BA_ \"GenMsgCycleTime\" BO_ 1 20;",
            "BA_DEF_ \"BusType\" STRING ;\nBA_DEF_DEF_ \"BusType\" \"CAN FD\";",
            "BA_DEF_ BO_ \"GenMsgSendType\" ENUM \"No\",\"Yes\";\nBA_ \"GenMsgSendType\" BO_ 2 1;",
            "BA_DEF_ SG_ \"GenSigStartValue\" INT 0 9;\nBA_ \"GenSigStartValue\" SG_ 1 A 3;",
            "BA_DEF_ BO_ \"Marrowby_Msg_Name\" STRING ;\n"
            "BA_ \"Marrowby_Msg_Name\" BO_ 1 \"A long name\";"};
        return Pick(Sound);
    }

    std::string Statement() {
        switch (Below(12)) {
            case 0:
            case 1:
            case 2:
            case 3:
                return Message();
            case 4:
                return Signal();
            case 5:
            case 6:
                return Comment();
            case 7:
                return Descriptions();
            case 8:
                return ValueType();
            case 9:
                return Attribute();
            case 10:
                return SoundAttribute();
            default:
                return Pick(Ignored);
        }
    }

    void Damage(std::string& text) {
        const std::size_t at = Below(text.size() + 1);
        if (Below(2) == 0) {
            text.insert(at, Pick(Damages));
        } else {
            text.erase(at, 1 + Below(3));
        }
    }

    std::mt19937 engine;  // the one engine whose numbers the standard fixes
};

}  // namespace

std::string RandomNetwork(std::uint32_t seed) {
    return Maker(seed).Make();
}

}  // namespace vexil::test
