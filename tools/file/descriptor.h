// An open file, and whole files in and out of one.
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

// The error of the last call to the system.
std::error_code LastError();

// Reads from the current position to the end of the file and appends the bytes. A caller that knows
// the size reserves one byte more, so that the end is found without a copy.
std::error_code ReadAll(int descriptor, std::string& bytes);

// Writes all bytes at the current position. On an error some of them may have been written.
std::error_code WriteAll(int descriptor, std::string_view bytes);

}  // namespace vexil::tool
