// The letters of the calls of a host, and the calls without a record or file.
// SPDX-License-Identifier: MIT
#include "host.h"

#include <algorithm>
#include <cstring>
#include <filesystem>

#include "budget.h"
#include "expect.h"
#include "held_model.h"
#include "pattern.h"
#include "scratch_file.h"
#include "vexil64.h"

namespace vexil::fuzz {

Host::Host(ByteSource& byteSource) : input(byteSource) {
    VexilClearData();
    VexilSetDatabaseInfo(&model.info, sizeof model.info);
    std::filesystem::remove(ScratchFile("again.dbc"));
}

test::ModelMessage* Host::MessageAt(std::uint32_t index) {
    return index < model.messages.size() ? &model.messages[index] : nullptr;
}

test::ModelSignal* Host::SignalAt(std::uint32_t messageIndex, std::uint32_t index) {
    test::ModelMessage* const message = MessageAt(messageIndex);
    return message != nullptr && index < message->signals.size() ? &message->signals[index]
                                                                 : nullptr;
}

void Host::Call(char function) {
    switch (function) {
        case 'v':
            return ExpectSame(Within(0, VexilGetLibraryVersion), 1.33F, "the version");
        case 'n':
            return ExpectSame(Within(0, VexilGetNumCanMessages), model.messages.size(),
                              "message count");
        case 'x':
            return ExpectSame(Within(0, VexilGetNumCanErrors), model.errorCodes.size(),
                              "error count");
        case 'c':
            return Clear();
        case 'i':
            return GetInfo();
        case 'I':
            return SetInfo();
        case 'm':
            return GetMessage();
        case 's':
            return CountSignals();
        case 'g':
            return GetSignal();
        case 'e':
            return CountEnums();
        case 'd':
            return GetEnum();
        case 'X':
            return GetError();
        case 'M':
            return AppendMessage();
        case 'S':
            return AppendSignal();
        case 'E':
            return AppendEnum();
        case 'r':
            return Read();
        case 'R':
            return ReadWritten();
        case 'w':
            return Write();
        default:
            return;
    }
}

void Host::Clear() {
    Within(HeldBytes(), VexilClearData);
    model = {{ProtocolPlainCan, model.info.busType}, {}, {}};
    ExpectHeld(model, "a clear");
}

// The size, then "!" for null.
void Host::GetInfo() {
    const std::uint64_t size = input.Word();
    const bool isNull = input.Next('!');
    unsigned char bytes[16];
    std::memset(bytes, Pattern, sizeof bytes);
    Within(0, [&] { VexilGetDatabaseInfo(isNull ? nullptr : bytes, size); });
    unsigned char expected[16];
    std::memset(expected, Pattern, sizeof expected);
    std::memcpy(expected, &model.info,
                isNull ? 0 : std::min<std::uint64_t>(size, sizeof model.info));
    Expect(std::memcmp(bytes, expected, sizeof bytes) == 0, "the info that is fetched");
}

// The size, both members, then "!" for null.
void Host::SetInfo() {
    const std::uint64_t size = input.Word();
    const DatabaseInfo info = {input.Word(), input.Word()};
    const bool isNull = input.Next('!');
    Within(0, [&] { VexilSetDatabaseInfo(isNull ? nullptr : &info, size); });
    std::memcpy(&model.info, &info, isNull ? 0 : std::min<std::uint64_t>(size, sizeof info));
    ExpectHeld(model, "an info that is set");
}

}  // namespace vexil::fuzz
