// A limit on the size of files, for tests of writes that fail on their way. Only Linux has one.
// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <csignal>
#include <cstddef>

namespace vexil::test {

// While it lives, no file of the process grows beyond a size: a write over it goes as far as it can
// and then fails.
class FileSizeLimit {
  public:
    explicit FileSizeLimit(std::size_t size) {
        handler = std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &before);
        rlimit limit = before;
        limit.rlim_cur = size;
        EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;
    ~FileSizeLimit() {
        setrlimit(RLIMIT_FSIZE, &before);
        std::signal(SIGXFSZ, handler);
    }

  private:
    rlimit before{};
    void (*handler)(int) = SIG_DFL;
};

}  // namespace vexil::test
