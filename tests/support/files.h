// Files for tests: a temporary folder, and functions that read and write whole files. Paths are
// UTF-8 on every platform.
// SPDX-License-Identifier: MIT
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

inline std::filesystem::path Utf8Path(std::string_view path) {
    return std::u8string(path.begin(), path.end());
}

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
        // The destructor compares error codes, so their categories must outlive a static folder.
        [[maybe_unused]] const std::error_category* const categories[] = {&std::generic_category(),
                                                                          &std::system_category()};
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;
    ~TempFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path, ignored);
    }

    // The path of a file in the folder, whether or not it exists.
    std::string File(std::string_view name) const {
        const std::u8string file = (path / Utf8Path(name)).u8string();
        return {file.begin(), file.end()};
    }

  private:
    std::filesystem::path path;
};

inline std::string ReadWholeFile(const std::string& file, std::ios_base::openmode mode) {
    std::ifstream in(Utf8Path(file), mode);
    if (!in) {
        throw std::runtime_error("could not open " + file);
    }
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

inline std::string ReadBytes(const std::string& file) {
    return ReadWholeFile(file, std::ios_base::binary);
}

// The text of a file that the library wrote, with line feeds for the line ends of the platform.
inline std::string ReadTextFile(const std::string& file) {
    return ReadWholeFile(file, std::ios_base::in);
}

inline void WriteBytes(const std::string& file, std::string_view bytes) {
    std::ofstream out(Utf8Path(file), std::ios_base::binary);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    out.close();
    if (!out) {
        throw std::runtime_error("could not write " + file);
    }
}

}  // namespace vexil::test
