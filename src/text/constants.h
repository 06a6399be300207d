// Texts that readers and writers share, each defined once.
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace vexil {

// A byte index into a text. npos means that there is no position.
using Position = std::uint64_t;
inline constexpr Position npos = ~Position{0};

// The white space of the format.
inline constexpr std::string_view Whitespace = " \f\n\r\t\v";

namespace keyword {
inline constexpr std::string_view SG_ = "SG_";
inline constexpr std::string_view CM_ = "CM_";
inline constexpr std::string_view BO_ = "BO_";
inline constexpr std::string_view VAL_ = "VAL_";
inline constexpr std::string_view BA_ = "BA_";
inline constexpr std::string_view BA_DEF_ = "BA_DEF_";
inline constexpr std::string_view BA_DEF_DEF_ = "BA_DEF_DEF_";
inline constexpr std::string_view SIG_VALTYPE_ = "SIG_VALTYPE_";
inline constexpr std::string_view BU_ = "BU_";
inline constexpr std::string_view BS_ = "BS_";
inline constexpr std::string_view VERSION = "VERSION";
inline constexpr std::string_view NS_ = "NS_";
inline constexpr std::string_view EV_ = "EV_";
}  // namespace keyword

// The symbols of the NS_ block, in the order in which they are written. Each is a keyword as well.
inline constexpr std::array<std::string_view, 28> SymbolList = {"NS_DESC_",     "CM_",
                                                                "BA_DEF_",      "BA_",
                                                                "VAL_",         "CAT_DEF_",
                                                                "CAT_",         "FILTER",
                                                                "BA_DEF_DEF_",  "EV_DATA_",
                                                                "ENVVAR_DATA_", "SGTYPE_",
                                                                "SGTYPE_VAL_",  "BA_DEF_SGTYPE_",
                                                                "BA_SGTYPE_",   "SIG_TYPE_REF_",
                                                                "VAL_TABLE_",   "SIG_GROUP_",
                                                                "SIG_VALTYPE_", "SIGTYPE_VALTYPE_",
                                                                "BO_TX_BU_",    "BA_DEF_REL_",
                                                                "BA_REL_",      "BA_DEF_DEF_REL_",
                                                                "BU_SG_REL_",   "BU_EV_REL_",
                                                                "BU_BO_REL_",   "SG_MUL_VAL_"};

// Written where a message has no transmitter or a signal no receiver; never stored.
inline constexpr std::string_view DefaultNode = "Marrowby";

// The suffix that makes a signal name unique; its digits are overwritten.
inline constexpr std::string_view SuffixPattern = "_0000";

// The greatest length of an identifier in bytes.
inline constexpr std::size_t MaxIdentifierLength = 32;

}  // namespace vexil
