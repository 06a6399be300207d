// The texts for result codes and for the steps of a statement.
// SPDX-License-Identifier: MIT
#include "database/result_words.h"

#include <vexil64.h>

#include <algorithm>

namespace vexil::tool {
namespace {

// Returns the reason why a file was not opened.
std::string_view OpenFailure(std::uint32_t resultCode) {
    switch (resultCode) {
        case StatePathTooLong:
            return "path too long";
        case StatePathInvalid:
            return "path not valid UTF-8";
        case StatePathEmpty:
            return "empty path";
        case StateOpenFailed:
            return "could not be opened";
        default:
            return "unknown result code";
    }
}

}  // namespace

std::string_view ReadFailure(std::uint32_t resultCode) {
    return resultCode == StateStreamError ? "reading failed" : OpenFailure(resultCode);
}

std::string_view WriteFailure(std::uint32_t resultCode) {
    switch (resultCode) {
        case StateClosed:
            return "no message to write";
        case StateStreamError:
            return "writing failed";
        default:
            return OpenFailure(resultCode);
    }
}

std::string_view FailedStep(std::uint32_t code) {
    switch (code) {
        case StepMessageId:
            return "cannot read the id of the message";
        case StepMessageName:
            return "cannot read the name of the message";
        case StepMessageSize:
            return "cannot read the size of the message";
        case StepSignalName:
            return "cannot read the name of the signal";
        case StepSignalLayout:
            return "cannot read the bit layout of the signal";
        case StepSignalScaling:
            return "cannot read factor and offset of the signal";
        case StepSignalRange:
            return "cannot read minimum and maximum of the signal";
        default:
            return "unknown step";
    }
}

std::string OneLine(std::string_view text) {
    constexpr std::string_view Whitespace = " \f\n\r\t\v";
    std::string line;
    std::size_t start = text.find_first_not_of(Whitespace);
    while (start != std::string_view::npos) {
        const std::size_t end = std::min(text.find_first_of(Whitespace, start), text.size());
        if (!line.empty()) {
            line += ' ';
        }
        line += text.substr(start, end - start);
        start = text.find_first_not_of(Whitespace, end);
    }
    return line;
}

}  // namespace vexil::tool
