// vexil-dbc from-json: the document becomes the database, and the database the text of the file.
// SPDX-License-Identifier: MIT
#include "commands/from_json.h"

#include <iostream>
#include <limits>

#include "commands/database_output.h"
#include "commands/saved_output.h"
#include "commands/source_input.h"
#include "document/read_network.h"
#include "file/saved_file.h"
#include "view/document_report.h"

namespace vexil::tool {
namespace {

// The number of places of one field that are shown without --all.
constexpr std::size_t MostPlaces = 10;

void PrintRefused(const Remarks& refused) {
    for (const Remark& each : refused.Held()) {
        PrintError(RemarkLine(each));
    }
    const std::size_t others = refused.Count() - refused.Held().size();
    if (others != 0) {
        PrintError("and " + std::to_string(others) + " more values are refused");
    }
}

std::string HowToGoOn(std::size_t refused) {
    return std::to_string(refused) + (refused == 1 ? " value is" : " values are") +
           " refused; --skip-refused leaves out the objects with them";
}

}  // namespace

ExitCode FromJson(const FromJsonOptions& options) {
    SourceInput input{options.input, {}, {}};
    if (const auto failure = LoadSource(input)) {
        return *failure;
    }
    const bool isStream = options.output == StandardStream;
    if (!isStream && IsSameFile(options.output, input.file.file.Value())) {
        PrintFileError("write", options.output, "it is the document itself");
        return ExitUsage;
    }
    static_cast<void>(input.file.file.Close());
    const std::size_t mostPlaces =
        options.all ? std::numeric_limits<std::size_t>::max() : MostPlaces;
    const DocumentResult result = ReadNetwork(input.file.bytes, mostPlaces);
    PrintRefused(result.refused);
    if (!result.fault.empty()) {
        PrintFileError("read", options.input, result.fault);
        return ExitCannotRead;
    }
    const std::size_t refused = result.refused.Count();
    if (refused != 0 && !options.skipRefused) {
        PrintFileError("write", options.output, HowToGoOn(refused));
        return ExitCannotRead;
    }
    std::string text;
    if (const auto failure = WriteText({options.input, options.output, options.order}, text)) {
        return *failure;
    }
    if (const auto failure = SaveOutput(options.output, text)) {
        return *failure;
    }
    (isStream ? std::cerr : std::cout) << DocumentReport(options.input, result);
    return refused == 0 ? ExitSuccess : ExitFindings;
}

}  // namespace vexil::tool
