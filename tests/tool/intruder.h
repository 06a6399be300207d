// Disturbs the tool at one of its calls to the system: a signal comes after the call, or the call
// fails. It traces the process as a debugger does, so it misses no call and changes no code.
// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>

#include <cstddef>
#include <string>

namespace vexil::test {

class Intruder {
  public:
    // Calls are counted from 1 and from the one on that opens a file of this name.
    explicit Intruder(std::string firstFile) : first(std::move(firstFile)) {}

    // Sends a signal after the n-th call.
    void SendSignal(std::size_t n, int number);

    // Lets the n-th call fail with the error, without being made, if it is one of a file that is
    // open or that it opens, renames or changes. Standard output and error work on.
    void FailCall(std::size_t n, int error);

    // The same for the n-th of those calls that write to a file, and for all that follow.
    void FailWrites(std::size_t n, int error);

    // Makes the calling process ask to be followed. The next program that it becomes is.
    static void AskToBeFollowed();

    // Follows a process that has asked for it, and leaves it alone after the intrusion.
    void Follow(pid_t process);

    // Whether the process made so many calls, and whether the call was disturbed: a call of another
    // kind is left alone, and after the last one of a process comes nothing.
    bool WasReached() const { return wasReached; }
    bool HasIntruded() const { return hasIntruded; }

  private:
    struct Call;

    bool IsFirst(pid_t process, const Call& call) const;
    bool Fails(pid_t process, const Call& call);
    void FollowCall(pid_t process);

    std::string first;
    std::size_t target = 0;
    int signal = 0;
    int failure = 0;
    bool isForWrites = false;

    std::size_t count = 0;
    bool isCounting = false;
    bool wasReached = false;
    bool hasIntruded = false;
    bool isDone = false;
};

}  // namespace vexil::test
