// Intruder: stops at the entry and at the exit of each call.
// SPDX-License-Identifier: MIT
#include "tool/intruder.h"

#include <fcntl.h>
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <sys/user.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <filesystem>
#include <stdexcept>
#include <string_view>

namespace vexil::test {

// A call as it is made, in the registers of the processor.
struct Intruder::Call {
    user_regs_struct registers{};

    explicit Call(pid_t process) {
        if (ptrace(PTRACE_GETREGS, process, nullptr, &registers) != 0) {
            throw std::runtime_error("could not look at a call");
        }
    }
    long Number() const { return static_cast<long>(registers.orig_rax); }
    int Descriptor() const { return static_cast<int>(registers.rdi); }
    bool IsOneOf(std::initializer_list<long> numbers) const {
        return std::find(numbers.begin(), numbers.end(), Number()) != numbers.end();
    }
};

namespace {

bool IsWrite(long number) {
    return number == SYS_write || number == SYS_writev || number == SYS_pwrite64;
}

// The text at an address of the process, as far as it fits.
std::string TextAt(pid_t process, unsigned long long address) {
    std::array<char, 512> text{};
    const iovec here{text.data(), text.size() - 1};
    // Up to the end of the page at the least.
    for (std::size_t size = text.size() - 1; size != 0; size /= 2) {
        const iovec there{reinterpret_cast<void*>(address), size};
        if (process_vm_readv(process, &here, 1, &there, 1, 0) > 0) {
            break;
        }
    }
    return text.data();
}

bool IsPipe(pid_t process, int descriptor) {
    std::error_code none;
    const std::filesystem::path target = std::filesystem::read_symlink(
        "/proc/" + std::to_string(process) + "/fd/" + std::to_string(descriptor), none);
    return target.string().starts_with("pipe:");
}

// Lets the process go on to its next stop. Returns false at its end.
bool GoOn(pid_t process, int& pendingSignal) {
    for (;;) {
        if (ptrace(PTRACE_SYSCALL, process, nullptr, pendingSignal) != 0) {
            return false;
        }
        pendingSignal = 0;
        siginfo_t info{};
        // The end of the process is left to whoever waits for it.
        if (waitid(P_PID, static_cast<id_t>(process), &info, WEXITED | WSTOPPED | WNOWAIT) != 0 ||
            info.si_code == CLD_EXITED || info.si_code == CLD_KILLED ||
            info.si_code == CLD_DUMPED) {
            return false;
        }
        int status = 0;
        waitpid(process, &status, 0);
        constexpr int StopOfACall = SIGTRAP | 0x80;
        if (WSTOPSIG(status) == StopOfACall) {
            return true;
        }
        pendingSignal = WSTOPSIG(status);
    }
}

}  // namespace

void Intruder::SendSignal(std::size_t n, int number) {
    target = n;
    signal = number;
}

void Intruder::FailCall(std::size_t n, int error) {
    target = n;
    failure = error;
}

void Intruder::FailWrites(std::size_t n, int error) {
    FailCall(n, error);
    isForWrites = true;
}

void Intruder::AskToBeFollowed() {
    ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
}

bool Intruder::IsFirst(pid_t process, const Call& call) const {
    if (!call.IsOneOf({SYS_openat, SYS_open})) {
        return false;
    }
    const auto path = call.Number() == SYS_open ? call.registers.rdi : call.registers.rsi;
    return std::string_view(TextAt(process, path)).ends_with(first);
}

// Counts the call. Returns whether it is to fail.
bool Intruder::Fails(pid_t process, const Call& call) {
    const bool hasFile = call.Descriptor() == AT_FDCWD ||
                         (call.Descriptor() > STDERR_FILENO && !IsPipe(process, call.Descriptor()));
    const bool isOfAFile =
        call.IsOneOf({SYS_openat, SYS_open}) ||
        (hasFile &&
         call.IsOneOf({SYS_read, SYS_write, SYS_writev, SYS_close, SYS_fsync, SYS_fchmod,
                       SYS_fchown, SYS_renameat, SYS_newfstatat, SYS_readlinkat, SYS_faccessat,
                       SYS_faccessat2, SYS_fcntl, SYS_lseek, SYS_ftruncate}));
    if (isForWrites) {
        if (!hasFile || !IsWrite(call.Number())) {
            return false;
        }
        ++count;
        wasReached = wasReached || count >= target;
        return count >= target;
    }
    ++count;
    wasReached = count == target;
    return wasReached && failure != 0 && isOfAFile;
}

// From the entry of a call to its exit.
void Intruder::FollowCall(pid_t process) {
    const Call entry(process);
    isCounting = isCounting || IsFirst(process, entry);
    const bool fails = isCounting && Fails(process, entry);
    if (fails) {
        Call none = entry;
        none.registers.orig_rax = static_cast<unsigned long long>(-1);
        ptrace(PTRACE_SETREGS, process, nullptr, &none.registers);
    }
    int pendingSignal = 0;
    if (!GoOn(process, pendingSignal)) {
        isDone = true;
        return;
    }
    if (fails) {
        Call exit(process);
        exit.registers.rax = static_cast<unsigned long long>(-failure);
        ptrace(PTRACE_SETREGS, process, nullptr, &exit.registers);
        hasIntruded = true;
    }
    if (wasReached && signal != 0) {
        kill(process, signal);
        hasIntruded = true;
    }
    isDone = wasReached && !isForWrites;
}

void Intruder::Follow(pid_t process) {
    int status = 0;
    if (waitpid(process, &status, 0) != process || !WIFSTOPPED(status)) {
        throw std::runtime_error("could not follow the tool");
    }
    ptrace(PTRACE_SETOPTIONS, process, nullptr, PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL);
    int pendingSignal = 0;
    while (!isDone) {
        if (!GoOn(process, pendingSignal)) {
            return;
        }
        FollowCall(process);
    }
    ptrace(PTRACE_DETACH, process, nullptr, nullptr);
}

}  // namespace vexil::test
