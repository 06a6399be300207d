// The table of keywords.
// SPDX-License-Identifier: MIT
#include "source/keywords.h"

#include <algorithm>
#include <array>

namespace vexil::tool {
namespace {

// In the order of the enumeration.
constexpr std::array Rows = {
    KeywordRow{Keyword::None, "", false, false, false},
    KeywordRow{Keyword::Bo, "BO_", false, false, false},
    KeywordRow{Keyword::Sg, "SG_", false, false, false},
    KeywordRow{Keyword::Cm, "CM_", true, true, true},
    KeywordRow{Keyword::Val, "VAL_", true, false, true},
    KeywordRow{Keyword::Ba, "BA_", true, true, true},
    KeywordRow{Keyword::BaDef, "BA_DEF_", true, true, true},
    KeywordRow{Keyword::BaDefDef, "BA_DEF_DEF_", true, false, true},
    KeywordRow{Keyword::SigValtype, "SIG_VALTYPE_", true, false, true},
    KeywordRow{Keyword::Version, "VERSION", false, false, false},
    KeywordRow{Keyword::Ns, "NS_", false, false, false},
    KeywordRow{Keyword::Bs, "BS_", false, false, false},
    KeywordRow{Keyword::Bu, "BU_", false, false, false},
    KeywordRow{Keyword::Ev, "EV_", true, false, false},
    KeywordRow{Keyword::NsDesc, "NS_DESC_", true, false, true},
    KeywordRow{Keyword::CatDef, "CAT_DEF_", true, false, true},
    KeywordRow{Keyword::Cat, "CAT_", true, false, true},
    KeywordRow{Keyword::Filter, "FILTER", true, false, true},
    KeywordRow{Keyword::EvData, "EV_DATA_", true, false, true},
    KeywordRow{Keyword::EnvvarData, "ENVVAR_DATA_", true, false, true},
    KeywordRow{Keyword::Sgtype, "SGTYPE_", true, false, true},
    KeywordRow{Keyword::SgtypeVal, "SGTYPE_VAL_", true, false, true},
    KeywordRow{Keyword::BaDefSgtype, "BA_DEF_SGTYPE_", true, false, true},
    KeywordRow{Keyword::BaSgtype, "BA_SGTYPE_", true, false, true},
    KeywordRow{Keyword::SigTypeRef, "SIG_TYPE_REF_", true, false, true},
    KeywordRow{Keyword::ValTable, "VAL_TABLE_", true, false, true},
    KeywordRow{Keyword::SigGroup, "SIG_GROUP_", true, false, true},
    KeywordRow{Keyword::SigtypeValtype, "SIGTYPE_VALTYPE_", true, false, true},
    KeywordRow{Keyword::BoTxBu, "BO_TX_BU_", true, false, true},
    KeywordRow{Keyword::BaDefRel, "BA_DEF_REL_", true, false, true},
    KeywordRow{Keyword::BaRel, "BA_REL_", true, false, true},
    KeywordRow{Keyword::BaDefDefRel, "BA_DEF_DEF_REL_", true, false, true},
    KeywordRow{Keyword::BuSgRel, "BU_SG_REL_", true, false, true},
    KeywordRow{Keyword::BuEvRel, "BU_EV_REL_", true, false, true},
    KeywordRow{Keyword::BuBoRel, "BU_BO_REL_", true, false, true},
    KeywordRow{Keyword::SgMulVal, "SG_MUL_VAL_", true, false, true}};

constexpr std::size_t LongestKeyword = 16;

}  // namespace

const KeywordRow* FindKeyword(std::string_view word) {
    if (word.size() < 3 || word.size() > LongestKeyword) {
        return nullptr;
    }
    const char last = word.back();
    if (last != '_' && last != 'N' && last != 'R') {
        return nullptr;
    }
    // The first two letters exclude most words.
    const auto* const row =
        std::find_if(Rows.begin() + 1, Rows.end(), [word](const KeywordRow& each) {
            return each.text.size() == word.size() && each.text[0] == word[0] &&
                   each.text[1] == word[1] && each.text == word;
        });
    return row == Rows.end() ? nullptr : row;
}

const KeywordRow& RowOf(Keyword keyword) {
    return Rows[static_cast<std::size_t>(keyword)];
}

}  // namespace vexil::tool
