// What a file gives, read by read, for tests that choose it. Not for Windows.
// SPDX-License-Identifier: MIT
#pragma once

#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <stdexcept>
#include <string_view>

namespace vexil::test {

// The descriptor that the next file gets: the lowest that is free.
inline int NextDescriptor() {
    const int lowest = open("/dev/null", O_RDONLY | O_CLOEXEC);
    close(lowest);
    return lowest;
}

// Packets in the place of a file. A read with none to give fails.
class Feed {
  public:
    Feed() {
        if (socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_NONBLOCK | SOCK_CLOEXEC, 0, ends.data()) !=
            0) {
            throw std::runtime_error("could not make a pair of sockets");
        }
    }
    Feed(const Feed&) = delete;
    Feed& operator=(const Feed&) = delete;
    ~Feed() {
        close(ends[0]);
        close(ends[1]);
    }

    // Takes the place of the file that is open at the descriptor.
    void Replace(int descriptor) const { dup2(ends[0], descriptor); }

    // What one read gives.
    void Send(std::string_view bytes) const {
        if (write(ends[1], bytes.data(), bytes.size()) != static_cast<ssize_t>(bytes.size())) {
            throw std::runtime_error("could not write to a socket");
        }
    }

    // Makes every read after the sent bytes return the end of the file.
    void End() const { shutdown(ends[1], SHUT_WR); }

  private:
    std::array<int, 2> ends{};
};

}  // namespace vexil::test
