// Files for tests: a folder that goes away with its owner, and whole files in and out by their
// bytes. SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <stdexcept>
#include <string>
#include <string_view>

namespace vexil::test {

class TempFolder {
  public:
    TempFolder() {
        static std::atomic<unsigned> count{0};
        std::random_device random;
        path = std::filesystem::temp_directory_path() /
               ("vexil64-" + std::to_string(random()) + "-" + std::to_string(count++));
        if (!std::filesystem::create_directory(path)) {
            throw std::runtime_error("could not make " + path.string());
        }
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;
    ~TempFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path, ignored);
    }

    // The path of a file in the folder, whether or not it exists.
    std::string File(std::string_view name) const { return (path / name).string(); }

  private:
    std::filesystem::path path;
};

inline std::string ReadBytes(const std::string& file) {
    std::ifstream in(file, std::ios_base::binary);
    if (!in) {
        throw std::runtime_error("could not open " + file);
    }
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

inline void WriteBytes(const std::string& file, std::string_view bytes) {
    std::ofstream out(file, std::ios_base::binary);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    out.close();
    if (!out) {
        throw std::runtime_error("could not write " + file);
    }
}

}  // namespace vexil::test
