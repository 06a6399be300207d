// The library as a host loads it: by its path, as often as it likes.
// SPDX-License-Identifier: MIT
#pragma once

#include <dlfcn.h>

#include <stdexcept>
#include <string>

#include "vexil64.h"

namespace vexil::faults {

// A loaded copy, unloaded with its owner. The pointers are those of the functions of their names.
class LoadedLibrary {
  public:
    LoadedLibrary() : LoadedLibrary(dlopen(VEXIL64_LIBRARY, RTLD_NOW | RTLD_LOCAL)) {}

    // Takes what dlopen or dlmopen gave.
    explicit LoadedLibrary(void* loaded) : handle(loaded) {
        if (handle == nullptr) {
            throw std::runtime_error(dlerror());
        }
        Find("VexilClearData", ClearData);
        Find("VexilReadDbcFile", ReadDbcFile);
        Find("VexilWriteDbcFile", WriteDbcFile);
        Find("VexilGetNumCanMessages", GetNumCanMessages);
        Find("VexilGetCanMessageData", GetCanMessageData);
        Find("VexilGetCanSignalEnumData", GetCanSignalEnumData);
        Find("VexilGetNumCanErrors", GetNumCanErrors);
        Find("VexilAppendCanMessage", AppendCanMessage);
        Find("VexilSetDatabaseInfo", SetDatabaseInfo);
        Find("VexilGetDatabaseInfo", GetDatabaseInfo);
    }
    LoadedLibrary(const LoadedLibrary&) = delete;
    LoadedLibrary& operator=(const LoadedLibrary&) = delete;
    ~LoadedLibrary() { dlclose(handle); }

    // Reads the file at path. Returns the result code, or 100 and more when the result is 0.
    std::uint32_t Read(const std::string& path) const {
        std::uint32_t code = 99;
        const bool isGood =
            ReadDbcFile(path.c_str(), static_cast<std::uint32_t>(path.size() + 1), &code) == 1;
        return code + (isGood ? 0 : 100);
    }

    // Writes to the file at path, with the same result.
    std::uint32_t Write(const std::string& path) const {
        std::uint32_t code = 99;
        const bool isGood = WriteDbcFile(path.c_str(), static_cast<std::uint32_t>(path.size() + 1),
                                         OrderAsStored, &code) == 1;
        return code + (isGood ? 0 : 100);
    }

    decltype(&VexilClearData) ClearData = nullptr;
    decltype(&VexilReadDbcFile) ReadDbcFile = nullptr;
    decltype(&VexilWriteDbcFile) WriteDbcFile = nullptr;
    decltype(&VexilGetNumCanMessages) GetNumCanMessages = nullptr;
    decltype(&VexilGetCanMessageData) GetCanMessageData = nullptr;
    decltype(&VexilGetCanSignalEnumData) GetCanSignalEnumData = nullptr;
    decltype(&VexilGetNumCanErrors) GetNumCanErrors = nullptr;
    decltype(&VexilAppendCanMessage) AppendCanMessage = nullptr;
    decltype(&VexilSetDatabaseInfo) SetDatabaseInfo = nullptr;
    decltype(&VexilGetDatabaseInfo) GetDatabaseInfo = nullptr;

  private:
    template <typename Function>
    void Find(const char* name, Function& function) {
        function = reinterpret_cast<Function>(dlsym(handle, name));
        if (function == nullptr) {
            throw std::runtime_error(name);
        }
    }

    void* handle;
};

// Whether no copy is loaded in the namespace of the program.
inline bool IsUnloaded() {
    void* const handle = dlopen(VEXIL64_LIBRARY, RTLD_NOW | RTLD_NOLOAD);
    if (handle != nullptr) {
        dlclose(handle);
    }
    return handle == nullptr;
}

}  // namespace vexil::faults
