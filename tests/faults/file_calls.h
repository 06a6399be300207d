// The calls to the system through which the library reads and writes files, so that a test can let
// them fail. A program that contains file_calls.cpp makes them through it, its shared libraries
// included.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace vexil::faults {

enum class FileCall : std::size_t { Open, Read, Write, Close };

// While it lives, the calls for files that are opened with open(2) are counted and some may fail.
// The file streams of the tests open their files in another way, so they are not affected. There is
// one at a time, and one file open at a time.
class WatchedFileCalls {
  public:
    // All calls succeed.
    WatchedFileCalls();
    WatchedFileCalls(const WatchedFileCalls&) = delete;
    WatchedFileCalls& operator=(const WatchedFileCalls&) = delete;
    ~WatchedFileCalls();

    // Lets the calls of a kind fail with error, from the n-th, counted from 1, to the last-th. A
    // file that cannot be closed is closed all the same, as the system does it.
    void Fail(FileCall call, std::size_t n, std::size_t last, int error);

    // Lets a call read or write at most so many bytes.
    void LimitSize(std::size_t bytes);

    // How many calls of the kind were made, those that failed among them.
    std::size_t Count(FileCall call) const;

    // How many bytes were read or written.
    std::size_t Bytes(FileCall call) const;

    // How many calls of Read came to the end of the file.
    std::size_t EndsOfFile() const;

    // What each call of Write was given.
    const std::vector<std::string>& Writes() const;
};

}  // namespace vexil::faults
