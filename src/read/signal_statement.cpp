// SG_ statements: each one makes a signal of the message in front of it. The steps stand in
// signal_steps.cpp; the lines are written by write/message_section.cpp.
// SPDX-License-Identifier: MIT
#include <memory>
#include <string>

#include "frame/can_database.h"
#include "frame/parse_errors.h"
#include "read/handlers.h"
#include "text/keywords.h"
#include "text/utf8_text.h"

namespace vexil {
namespace {

// Where no quotes hold a unit, the receivers may begin inside a character. What is left of it
// counts as invalid bytes of a file do, as one "_" each.
void ParseReceiversAt(CANSignal& signal, std::string_view list) {
    std::string repaired;
    const bool beginsInsideCharacter = (static_cast<unsigned char>(list.front()) & 0xC0) == 0x80;
    if (beginsInsideCharacter) {
        repaired = list;
        ReplaceInvalidUtf8(repaired);
        list = repaired;
    }
    signal.ParseReceivers(list);
}

}  // namespace

bool HandleSignalStatement(std::string_view text, std::uint32_t line) {
    auto signal = std::make_shared<CANSignal>();
    if (!signal->Parse(text)) {
        RecordParseErrors(text, line, signal->stepErrors);
        return false;
    }
    database.messages.back()->AddSignal(std::move(signal));
    return true;
}

bool CANSignal::Parse(std::string_view text) {
    Reset();
    stepErrors.clear();
    Position pos = npos;
    if (!MatchKeyword(text, keyword::SG_, pos, 0)) {
        return false;
    }
    if (!ParseNameAndMultiplex(text, pos, pos)) {
        stepErrors.push_back(StepSignalName);
    } else if (!ParseBitLayout(text, pos, pos)) {
        stepErrors.push_back(StepSignalLayout);
    } else if (!ParseScaling(text, pos, pos)) {
        stepErrors.push_back(StepSignalScaling);
    } else if (!ParseRange(text, pos, pos)) {
        stepErrors.push_back(StepSignalRange);
    }
    if (!stepErrors.empty()) {
        Reset();
        return false;
    }
    ParseUnit(text, pos, pos);
    if (pos < text.size()) {
        ParseReceiversAt(*this, text.substr(pos));
    }
    isEmpty = false;
    return true;
}

}  // namespace vexil
