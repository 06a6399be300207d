// vexil-dbc json: the records go from the library to the document one at a time.
// SPDX-License-Identifier: MIT
#include "commands/json.h"

#include <iostream>
#include <vector>

#include "account/account.h"
#include "commands/source_input.h"
#include "view/json_report.h"
#include "view/network_json.h"

namespace vexil::tool {
namespace {

void PrintSignals(NetworkJson& json, std::uint32_t message) {
    CanSignalRecord signal{};
    CanEnumRecord description{};
    for (std::uint32_t at = 0; VexilGetCanSignalData(message, at, &signal) != 0; ++at) {
        json.Add(signal);
        for (std::uint32_t index = 0; index < signal.enumCount; ++index) {
            VexilGetCanSignalEnumData(message, at, index, &description);
            json.Add(description);
        }
    }
}

void PrintRecords(NetworkJson& json) {
    CanMessageRecord message{};
    for (std::uint32_t index = 0; VexilGetCanMessageData(index, &message) != 0; ++index) {
        json.Add(message);
        PrintSignals(json, index);
    }
    ParseError error{};
    for (std::uint32_t index = 0; VexilGetErrorData(index, &error) != 0; ++index) {
        json.Add(error);
    }
}

}  // namespace

ExitCode PrintAsJson(const JsonOptions& options) {
    SourceInput input{options.file, options.from, {}};
    if (const auto failure = LoadSource(input)) {
        return *failure;
    }
    const SourceText source(std::move(input.file.bytes));
    if (const auto failure = LoadDatabase(input, source.Bytes())) {
        return *failure;
    }
    const bool isEmpty = VexilGetNumCanMessages() == 0 && VexilGetNumCanErrors() == 0;
    Account account;
    if (options.account || isEmpty) {
        account = MakeAccount(source, TakeSnapshot());
    }
    if (isEmpty && HasNoStatement(account)) {
        PrintFileError("read", options.file, NoDbcFile);
        return ExitCannotRead;
    }
    DatabaseInfo info{};
    VexilGetDatabaseInfo(&info, sizeof info);
    NetworkJson json(std::cout, info);
    PrintRecords(json);
    if (options.account) {
        json.BeginAccount();
        const std::vector<Finding> layout;
        JsonReport report(std::cout, {});
        report.Add({options.file, account, layout});
        report.Finish();
    }
    json.Finish();
    return VexilGetNumCanErrors() == 0 ? ExitSuccess : ExitFindings;
}

}  // namespace vexil::tool
