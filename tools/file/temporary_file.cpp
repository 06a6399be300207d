// Temporary files, and the list of them that the signal handler uses.
// SPDX-License-Identifier: MIT
#include "file/temporary_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>

#include "file/temporary_name.h"

namespace vexil::tool {
namespace {

constexpr std::array EndingSignals{SIGHUP, SIGINT, SIGQUIT, SIGTERM};
constexpr int MostTries = 100;

// The data of the signal handler: plain values that are never freed.
struct Entry {
    int folder = -1;  // below 0: not in use
    std::array<char, TemporaryFile::NameSize + 1> name{};
};
constexpr std::size_t MostFiles = 4;  // at one time: one of a save, at most two more of a command
constinit std::array<Entry, MostFiles> entries;

extern "C" void RemoveAndEnd(int signal) {
    for (const Entry& entry : entries) {
        if (entry.folder >= 0) {
            unlinkat(entry.folder, entry.name.data(), 0);
        }
    }
    // The signal is blocked until this function returns, and then ends the program.
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

// Blocks the signals that end the program, so that a file exists exactly if it is in the list.
class HeldSignals {
  public:
    HeldSignals() {
        sigset_t held;
        sigemptyset(&held);
        for (const int signal : EndingSignals) {
            sigaddset(&held, signal);
        }
        sigprocmask(SIG_BLOCK, &held, &before);
    }
    HeldSignals(const HeldSignals&) = delete;
    HeldSignals& operator=(const HeldSignals&) = delete;
    ~HeldSignals() {
        const int error = errno;
        sigprocmask(SIG_SETMASK, &before, nullptr);
        errno = error;
    }

  private:
    sigset_t before{};
};

// Precondition: signals are blocked, and not all entries are in use.
void List(int folder, const std::string& name) {
    auto* const free = std::find_if(entries.begin(), entries.end(),
                                    [](const Entry& entry) { return entry.folder < 0; });
    name.copy(free->name.data(), TemporaryFile::NameSize);
    free->folder = folder;
}

void Unlist(const std::string& name) {
    for (Entry& entry : entries) {
        if (entry.folder >= 0 && name == entry.name.data()) {
            entry.folder = -1;
        }
    }
}

}  // namespace

void RemoveTemporaryFilesOnSignals() {
    for (const int signal : EndingSignals) {
        struct sigaction action {};
        if (sigaction(signal, nullptr, &action) == 0 && action.sa_handler != SIG_IGN) {
            action = {};
            action.sa_handler = RemoveAndEnd;
            // Blocks the others, so that the first signal determines how the program ends.
            sigfillset(&action.sa_mask);
            sigaction(signal, &action, nullptr);
        }
    }
}

TemporaryFile::~TemporaryFile() {
    const HeldSignals held;
    if (exists) {
        unlinkat(place.folder.Value(), name.c_str(), 0);
        Unlist(name);
    }
}

std::error_code TemporaryFile::MakeBeside(const FilePlace& other) {
    const HeldSignals held;
    place.folder = Descriptor(fcntl(other.folder.Value(), F_DUPFD_CLOEXEC, 0));
    if (!place.folder.IsOpen()) {
        return LastError();
    }
    for (int tries = 0; tries < MostTries; ++tries) {
        name = TemporaryName(NameSize);
        constexpr mode_t Permissions = 0600;
        // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): the system has it so
        file = Descriptor(openat(place.folder.Value(), name.c_str(),
                                 O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, Permissions));
        if (file.IsOpen()) {
            List(place.folder.Value(), name);
            exists = true;
            return {};
        }
        if (errno != EEXIST) {
            return LastError();
        }
    }
    return std::make_error_code(std::errc::file_exists);
}

std::error_code TemporaryFile::MoveTo(const FilePlace& other) {
    const HeldSignals held;
    const int folder = place.folder.Value();
    if (renameat(folder, name.c_str(), folder, other.name.c_str()) != 0) {
        return LastError();
    }
    Unlist(name);
    exists = false;
    return {};
}

}  // namespace vexil::tool
