// An open file; reading and writing its whole content.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <system_error>
#include <utility>

namespace vexil::tool {

// Owns a file descriptor of the system.
class Descriptor {
  public:
    Descriptor() = default;
    explicit Descriptor(int opened) : value(opened) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    Descriptor(Descriptor&& other) noexcept : value(std::exchange(other.value, None)) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(value, other.value);
        return *this;
    }
    ~Descriptor();

    bool IsOpen() const { return value != None; }
    int Value() const { return value; }

    // Closes the file. Some file systems report a failed write only here.
    std::error_code Close();

  private:
    static constexpr int None = -1;

    int value = None;
};

// Returns the error of the last system call.
std::error_code LastError();

// Reads from the current position to the end of the file and appends the bytes. A caller that knows
// the size should reserve one byte more, so that detecting the end does not reallocate.
std::error_code ReadAll(int descriptor, std::string& bytes);

// Writes all bytes at the current position. On an error some of them may have been written.
std::error_code WriteAll(int descriptor, std::string_view bytes);

}  // namespace vexil::tool
