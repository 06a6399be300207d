// A plain search of the text of a DBC file.
// SPDX-License-Identifier: MIT
#include "corpus/plain_scan.h"

#include <algorithm>
#include <cstdlib>
#include <sstream>
#include <vector>

namespace vexil::test {
namespace {

// The line from its first to its last character that is no white space.
std::string Stripped(const std::string& line) {
    const std::size_t first = line.find_first_not_of(" \t\r");
    return first == std::string::npos
               ? ""
               : line.substr(first, line.find_last_not_of(" \t\r") - first + 1);
}

// The words before the first quote.
std::vector<std::string> WordsBeforeQuote(const std::string& line) {
    std::istringstream stream(line.substr(0, line.find('"')));
    std::vector<std::string> words;
    for (std::string word; stream >> word;) {
        words.push_back(word);
    }
    return words;
}

// All words of the line.
std::vector<std::string> Words(const std::string& line) {
    std::istringstream stream(line);
    std::vector<std::string> words;
    for (std::string word; stream >> word;) {
        words.push_back(word);
    }
    return words;
}

// BO_ id name: size
std::string MessageHead(const std::string& line) {
    std::string head;
    const std::vector<std::string> words = Words(line);
    for (std::size_t at = 1; at < std::min<std::size_t>(4, words.size()); ++at) {
        head += (at == 1 ? "" : " ") + words[at];
    }
    return head;
}

// SG_ name [indicator] :
std::string SignalHead(const std::string& line) {
    const std::vector<std::string> words = Words(line.substr(0, line.find(':')));
    std::string head = "  ";
    for (std::size_t at = 1; at < words.size(); ++at) {
        head += at == 1 ? words[at] : " <" + words[at] + ">";
    }
    return head;
}

std::uint32_t Id(const std::string& word) {
    return static_cast<std::uint32_t>(std::strtoull(word.c_str(), nullptr, 10));
}

// Whether the line leaves a quoted text open, where inside is whether it starts in one.
bool EndsInsideQuotes(const std::string& line, bool inside) {
    for (std::size_t at = 0; at < line.size(); ++at) {
        if (line[at] == '"' && (at == 0 || line[at - 1] != '\\')) {
            inside = !inside;
        }
    }
    return inside;
}

// CM_ BO_ id "text";  and  CM_ SG_ id name "text";
void ScanComment(const std::string& line, PlainScan& scan) {
    const std::vector<std::string> words = WordsBeforeQuote(line);
    const bool isMessage = words.size() == 3 && words[1] == "BO_";
    const bool isSignal = words.size() == 4 && words[1] == "SG_";
    if (!isMessage && !isSignal) {
        return;
    }
    PlainComment& comment = scan.comments[{Id(words[2]), isSignal ? words[3] : ""}];
    ++comment.statements;
    if (line.ends_with("\";") && !EndsInsideQuotes(line, false)) {
        ++comment.onOneLine;
        const std::size_t first = line.find('"');
        comment.text = line.substr(first + 1, line.size() - first - 3);
    }
}

// VAL_ id name number "text" number "text" ;
void ScanValues(const std::string& line, PlainScan& scan) {
    const std::vector<std::string> words = Words(line);
    if (words.size() < 4) {
        return;
    }
    PlainValues& values = scan.values[{Id(words[1]), words[2]}];
    ++values.statements;
    if (!line.ends_with(";") || EndsInsideQuotes(line, false)) {
        return;
    }
    ++values.onOneLine;
    std::size_t at = line.find(words[2], 4 + words[1].size()) + words[2].size();
    for (std::size_t quote = line.find('"', at); quote != std::string::npos;
         quote = line.find('"', at)) {
        values.values.insert(std::strtoll(line.substr(at, quote - at).c_str(), nullptr, 10));
        at = line.find('"', quote + 1) + 1;
    }
}

void ScanCycleTime(const std::string& line, PlainScan& scan) {
    const std::vector<std::string> words = Words(line);
    const auto is = [&words](std::size_t at, std::string_view word) {
        return words.size() > at && words[at] == word;
    };
    constexpr std::string_view Name = "\"GenMsgCycleTime\"";
    if (is(0, "BA_DEF_") && is(1, "BO_") && is(2, Name) && is(3, "INT")) {
        scan.hasCycleTimes = true;
    } else if (is(0, "BA_DEF_DEF_") && is(1, Name) && words.size() > 2) {
        scan.defaultCycleTime = std::atoi(words[2].c_str());
    } else if (is(0, "BA_") && is(1, Name) && is(2, "BO_") && words.size() > 4) {
        scan.cycleTimes.emplace(Id(words[3]), std::atoi(words[4].c_str()));
    }
}

}  // namespace

PlainScan ScanPlainly(std::string_view text) {
    PlainScan scan;
    std::istringstream stream{std::string(text)};
    bool inside = false;
    for (std::string raw; std::getline(stream, raw);) {
        const std::string line = Stripped(raw);
        const std::string word = line.substr(0, line.find_first_of(" \t"));
        if (!inside && word == "BO_") {
            ++scan.messageStatements;
            scan.outline.push_back(MessageHead(line));
        } else if (!inside && word == "SG_") {
            scan.outline.push_back(SignalHead(line));
        } else if (!inside && word == "CM_") {
            ScanComment(line, scan);
        } else if (!inside && word == "VAL_") {
            ScanValues(line, scan);
        } else if (!inside && word.starts_with("BA_")) {
            ScanCycleTime(line, scan);
        }
        inside = EndsInsideQuotes(raw, inside);
    }
    return scan;
}

}  // namespace vexil::test
