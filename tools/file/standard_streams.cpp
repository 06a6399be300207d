// The standard streams.
// SPDX-License-Identifier: MIT
#include "file/standard_streams.h"

#include <fcntl.h>
#include <unistd.h>

#include <csignal>

#include "file/descriptor.h"

namespace vexil::tool {
namespace {

// Opens a file in the place of a closed stream. Its access is the opposite of that of the stream,
// so using the stream still fails.
void Reserve(int stream, int access) {
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): the system has it so
    if (fcntl(stream, F_GETFD) >= 0) {
        return;
    }
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): the system has it so
    const int opened = open("/dev/null", access | O_CLOEXEC);
    if (opened >= 0 && opened != stream) {
        dup2(opened, stream);
        close(opened);
    }
}

}  // namespace

void PrepareStandardStreams() {
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    Reserve(STDIN_FILENO, O_WRONLY);
    Reserve(STDOUT_FILENO, O_RDONLY);
    Reserve(STDERR_FILENO, O_RDONLY);
}

std::error_code WriteStandardOutput(std::string_view bytes) {
    return WriteAll(STDOUT_FILENO, bytes);
}

}  // namespace vexil::tool
