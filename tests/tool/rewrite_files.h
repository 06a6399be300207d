// Files that the tests of rewrite start from, and what comes of them.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace vexil::test {

// Three messages whose orders by id, by name and in the file all differ.
inline constexpr std::string_view Three =
    "BO_ 5 Beta: 8 ECU1\n"
    "BO_ 100 Gamma: 4 ECU1\n"
    "BO_ 7 Alpha: 2 ECU1\n";
inline constexpr std::string_view ById =
    "BO_ 100 Gamma: 4 ECU1\n\nBO_ 7 Alpha: 2 ECU1\n\nBO_ 5 Beta: 8 ECU1\n\n";
inline constexpr std::string_view ByName =
    "BO_ 7 Alpha: 2 ECU1\n\nBO_ 5 Beta: 8 ECU1\n\nBO_ 100 Gamma: 4 ECU1\n\n";
inline constexpr std::string_view AsInFile =
    "BO_ 5 Beta: 8 ECU1\n\nBO_ 100 Gamma: 4 ECU1\n\nBO_ 7 Alpha: 2 ECU1\n\n";

// A whole written file of messages that ECU1 alone sends and nobody else receives.
inline std::string Written(std::string_view messages) {
    return R"(VERSION ""

NS_ :
    NS_DESC_
    CM_
    BA_DEF_
    BA_
    VAL_
    CAT_DEF_
    CAT_
    FILTER
    BA_DEF_DEF_
    EV_DATA_
    ENVVAR_DATA_
    SGTYPE_
    SGTYPE_VAL_
    BA_DEF_SGTYPE_
    BA_SGTYPE_
    SIG_TYPE_REF_
    VAL_TABLE_
    SIG_GROUP_
    SIG_VALTYPE_
    SIGTYPE_VALTYPE_
    BO_TX_BU_
    BA_DEF_REL_
    BA_REL_
    BA_DEF_DEF_REL_
    BU_SG_REL_
    BU_EV_REL_
    BU_BO_REL_
    SG_MUL_VAL_

BS_ :

BU_ :  ECU1

)" + std::string(messages);
}

// What the tool prints of a rewrite without losses.
inline std::string NothingLost(const std::string& input) {
    return input + ": the written file loses nothing and changes nothing\n";
}

// A version and a table of values are lost, a unit is changed.
inline constexpr std::string_view Lossy =
    "VERSION \"2\"\n"
    "VAL_TABLE_ A 0 \"a\";\n"
    "VAL_TABLE_ B 0 \"b\";\n"
    "BO_ 5 Beta: 8 ECU1\n"
    " SG_ A : 0|8@1+ (1,0) [0|9] \"°C\" ECU1\n";

}  // namespace vexil::test
