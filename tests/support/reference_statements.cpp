// Slow twin of the cut into statements: one string, every keyword tried at every token.
// SPDX-License-Identifier: MIT
#include <sstream>

#include "support/reference_text.h"

namespace vexil::test::reference {
namespace {

constexpr std::string_view whitespace = " \f\n\r\t\v";

class Cutter {
  public:
    explicit Cutter(const std::string& file) : stream(file) {}

    std::string statement;
    std::uint32_t lineNumber = 0;
    std::uint32_t parseState = 0;  // 0 while reading, 9 behind the end of the file

    bool NextStatement();

  private:
    bool ReadLine();
    bool FindKeyword(std::uint64_t from, std::uint64_t& index, std::uint64_t& offset,
                     std::uint64_t& end);

    std::istringstream stream;
    std::string buffer;
    bool keywordPending = false;
    std::uint64_t keywordOffset = 0;
    std::uint64_t keywordIndex = 0;
    std::uint64_t nextKeywordOffset = 0;
    std::uint64_t nextKeywordIndex = 0;
    std::uint64_t scanPosition = 0;
};

bool Cutter::ReadLine() {
    std::string line;
    std::getline(stream, line);
    if (stream.fail()) {
        parseState = 9;  // a stream over a string fails at its end alone
        return false;
    }
    ++lineNumber;
    buffer += CleanLine(line) + "\n";
    return true;
}

bool Cutter::FindKeyword(std::uint64_t from, std::uint64_t& index, std::uint64_t& offset,
                         std::uint64_t& end) {
    std::uint64_t position = from;
    while (position < buffer.size()) {
        const std::size_t token = buffer.find_first_not_of(whitespace, position);
        if (token == std::string::npos) {
            return false;
        }
        for (std::uint64_t row = 0; row < Keywords.size(); ++row) {
            if (MatchKeyword(buffer, Keywords[row].text, end, token)) {
                index = row;
                offset = end - Keywords[row].text.size();
                return true;
            }
        }
        position = buffer.find_first_of(whitespace, token);
    }
    return false;
}

bool Cutter::NextStatement() {
    if (parseState != 0) {
        buffer.clear();
        return false;
    }
    if (keywordPending) {
        keywordOffset = nextKeywordOffset;
        keywordIndex = nextKeywordIndex;
    } else {
        while (parseState == 0 && !keywordPending) {
            buffer.clear();
            ReadLine();
            if (!buffer.empty()) {
                keywordPending = FindKeyword(0, keywordIndex, keywordOffset, scanPosition);
            }
        }
        if (!keywordPending) {
            buffer.clear();
            return false;
        }
    }
    if (keywordOffset != 0) {
        buffer.erase(0, keywordOffset);
        scanPosition -= keywordOffset;
        nextKeywordOffset -= keywordOffset;
        keywordOffset = 0;
    }
    int needed = 1;
    int found = 0;
    for (;;) {
        if (FindKeyword(scanPosition, nextKeywordIndex, nextKeywordOffset, scanPosition)) {
            ++found;
        }
        bool isStray = false;
        if (Keywords[keywordIndex].needsSemicolon && found == 1) {
            const std::size_t last = buffer.find_last_not_of(whitespace, nextKeywordOffset - 1);
            isStray = last == std::string::npos || buffer[last] != ';';
        }
        if (isStray) {
            needed = 2;
        } else if (found >= needed) {
            break;
        }
        scanPosition = buffer.size();
        if (parseState != 0 || buffer.size() > 4096) {
            break;
        }
        ReadLine();
    }
    if (found == needed) {
        statement = buffer.substr(0, nextKeywordOffset);
        return true;
    }
    statement = buffer;
    buffer.clear();
    keywordPending = false;
    return true;
}

}  // namespace

std::string CleanLine(std::string line) {
    ReplaceInvalidUtf8(line);
    std::string clean;
    for (const char ch : line) {
        const auto byte = static_cast<unsigned char>(ch);
        const bool isControl = byte < 32 || byte == 127;
        if (!isControl || whitespace.find(ch) != std::string_view::npos) {
            clean += ch;
        }
    }
    return clean;
}

std::vector<Statement> CutIntoStatements(const std::string& file) {
    std::vector<Statement> statements;
    Cutter cutter(file);
    while (cutter.NextStatement()) {
        statements.push_back({cutter.statement, cutter.lineNumber, cutter.parseState});
    }
    return statements;
}

}  // namespace vexil::test::reference
