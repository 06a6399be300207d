// The keywords of the format, and how a statement of each kind ends.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace vexil::tool {

enum class Keyword : std::uint8_t {
    None,  // stray text
    Bo,
    Sg,
    Cm,
    Val,
    Ba,
    BaDef,
    BaDefDef,
    SigValtype,
    Version,
    Ns,
    Bs,
    Bu,
    Ev,
    NsDesc,
    CatDef,
    Cat,
    Filter,
    EvData,
    EnvvarData,
    Sgtype,
    SgtypeVal,
    BaDefSgtype,
    BaSgtype,
    SigTypeRef,
    ValTable,
    SigGroup,
    SigtypeValtype,
    BoTxBu,
    BaDefRel,
    BaRel,
    BaDefDefRel,
    BuSgRel,
    BuEvRel,
    BuBoRel,
    SgMulVal
};

struct KeywordRow {
    Keyword keyword;
    std::string_view text;
    bool endsWithSemicolon;      // in the format
    bool libraryNeedsSemicolon;  // in the library, which cuts other kinds at the next keyword
    bool isSymbol;               // listed under NS_
};

// Returns the row of a word, or null if the word is not a keyword.
const KeywordRow* FindKeyword(std::string_view word);

const KeywordRow& RowOf(Keyword keyword);

// White space of the format.
constexpr bool IsSpace(char ch) {
    return ch == ' ' || (ch >= '\t' && ch <= '\r');
}

}  // namespace vexil::tool
