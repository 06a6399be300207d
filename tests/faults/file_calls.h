// The calls to the system through which files are read and written, so that a test can let them
// fail. A program that contains file_calls.cpp makes them through it, its shared libraries
// included.
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>

namespace vexil::faults {

enum class FileCall : std::size_t { Open, Read, Write, Close };

// While it lives, calls are counted and some may fail. There is one at a time.
class WatchedFileCalls {
  public:
    // All calls succeed.
    WatchedFileCalls();
    WatchedFileCalls(const WatchedFileCalls&) = delete;
    WatchedFileCalls& operator=(const WatchedFileCalls&) = delete;
    ~WatchedFileCalls();

    // Lets the calls of a kind fail with error, from the n-th, counted from 1, to the last-th. A
    // file whose closing fails is closed all the same, as the system does it.
    void Fail(FileCall call, std::size_t n, std::size_t last, int error);

    // Lets a call read or write at most so many bytes.
    void LimitSize(std::size_t bytes);

    // How many calls of the kind were made, those that failed among them.
    std::size_t Count(FileCall call) const;

    // How many bytes were read or written.
    std::size_t Bytes(FileCall call) const;
};

}  // namespace vexil::faults
