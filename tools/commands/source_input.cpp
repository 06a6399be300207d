// Reading the input of a command, and the errors that it prints.
// SPDX-License-Identifier: MIT
#include "commands/source_input.h"

#include <algorithm>
#include <iostream>

#include "database/database_file.h"
#include "file/private_file.h"
#include "file/transcode.h"

namespace vexil::tool {
namespace {

std::string HexByte(char byte) {
    constexpr std::string_view Digits = "0123456789ABCDEF";
    const auto value = static_cast<unsigned char>(byte);
    return {'0', 'x', Digits[value / 16U], Digits[value % 16U]};
}

// Returns a description of the first byte that is not valid in the encoding.
std::string InvalidByte(const Transcoded& transcoded, const SourceInput& input) {
    const auto line = 1 + std::count(transcoded.text.begin(), transcoded.text.end(), '\n');
    return "line " + std::to_string(line) + ": the byte " +
           HexByte(input.file.bytes[transcoded.position]) + " at offset " +
           std::to_string(transcoded.position) + " is not valid in " + input.encoding;
}

std::optional<ExitCode> MakeUtf8(SourceInput& input) {
    Transcoded transcoded = Transcode(input.file.bytes, input.encoding);
    switch (transcoded.result) {
        case TranscodeResult::Done:
            input.file.bytes = std::move(transcoded.text);
            return std::nullopt;
        case TranscodeResult::InvalidText:
            PrintFileError("read", input.path, InvalidByte(transcoded, input));
            return ExitCannotRead;
        case TranscodeResult::UnknownEncoding:
            PrintError("--from: the system has no encoding '" + input.encoding + "'");
            return ExitUsage;
        case TranscodeResult::NotAvailable:
            break;
    }
    PrintError("--from: this build of vexil-dbc has no encodings");
    return ExitUsage;
}

}  // namespace

std::optional<ExitCode> LoadSource(SourceInput& input) {
    if (const std::error_code error = ReadInput(input.path, input.file)) {
        PrintFileError("read", input.path, error.message());
        return ExitCannotRead;
    }
    return input.encoding.empty() ? std::nullopt : MakeUtf8(input);
}

std::optional<ExitCode> LoadDatabase(const SourceInput& input, std::string_view text) {
    PrivateFile copy;
    std::string path = input.path;
    if (!input.file.isPlain || !input.encoding.empty() || !IsPathForLibrary(path)) {
        if (const std::error_code error = copy.Make(text)) {
            PrintFileError("copy", input.path, error.message());
            return ExitCannotWrite;
        }
        path = copy.Path();
    }
    const std::string_view reason = ReadDatabase(path);
    if (reason.empty()) {
        return std::nullopt;
    }
    PrintFileError("read", input.path, reason);
    return ExitCannotRead;
}

void PrintError(std::string_view text) {
    std::cerr << "vexil-dbc: " << text << '\n';
}

void PrintFileError(std::string_view action, std::string_view path, std::string_view reason) {
    PrintError("cannot " + std::string(action) + " '" + std::string(path) +
               "': " + std::string(reason));
}

}  // namespace vexil::tool
