// The steps of a save.
// SPDX-License-Identifier: MIT
#include "file/saved_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "file/file_place.h"
#include "file/temporary_file.h"

namespace vexil::tool {
namespace {

// The status of the file at a place, after following all links.
class Entry {
  public:
    std::error_code Look(const FilePlace& place) {
        exists = fstatat(place.folder.Value(), place.name.c_str(), &status, 0) == 0;
        return exists || errno == ENOENT ? std::error_code() : LastError();
    }
    bool Exists() const { return exists; }
    bool IsFile() const { return S_ISREG(status.st_mode); }
    bool IsFolder() const { return S_ISDIR(status.st_mode); }
    const struct stat& Status() const { return status; }

  private:
    struct stat status {};
    bool exists = false;
};

// Returns the permissions of a new file. The system returns its mask only to a call that sets it.
mode_t NewFileMode() {
    constexpr mode_t Permissions = 0666;
    const mode_t mask = umask(0);
    umask(mask);
    return Permissions & ~mask;
}

// Sets the permissions last, because a change of the owner removes some of them.
std::error_code SetOwnerAndMode(int descriptor, const Entry& replaced) {
    mode_t mode = NewFileMode();
    if (replaced.Exists()) {
        constexpr mode_t AllPermissions = 07777;
        mode = replaced.Status().st_mode & AllPermissions;
        // Only an administrator may change the owner; others may only set one of their own groups.
        constexpr auto Same = static_cast<uid_t>(-1);
        const bool hasGroup = fchown(descriptor, Same, replaced.Status().st_gid) == 0;
        const bool hasOwner = fchown(descriptor, replaced.Status().st_uid, Same) == 0;
        if (!hasGroup || !hasOwner) {
            mode &= ~mode_t{S_ISUID | S_ISGID};
        }
    }
    return fchmod(descriptor, mode) == 0 ? std::error_code() : LastError();
}

std::error_code Sync(int descriptor) {
    return fsync(descriptor) == 0 ? std::error_code() : LastError();
}

// Writes the new name to the disk. An error is not an error of the save: in any case the name has
// one of the two files, and both are complete.
void SyncFolder(const Descriptor& folder) {
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): the system has it so
    const Descriptor readable(openat(folder.Value(), ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (readable.IsOpen()) {
        fsync(readable.Value());
    }
}

// Devices and pipes cannot be replaced.
std::error_code WriteThrough(const FilePlace& place, std::string_view bytes) {
    constexpr int Access = O_WRONLY | O_NOCTTY | O_CLOEXEC;
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): the system has it so
    Descriptor device(openat(place.folder.Value(), place.name.c_str(), Access));
    if (!device.IsOpen()) {
        return LastError();
    }
    if (const std::error_code error = WriteAll(device.Value(), bytes)) {
        return error;
    }
    return device.Close();
}

std::error_code Replace(const FilePlace& place, const Entry& replaced, std::string_view bytes) {
    if (replaced.Exists() &&
        faccessat(place.folder.Value(), place.name.c_str(), W_OK, AT_EACCESS) != 0) {
        return LastError();
    }
    TemporaryFile file;
    std::error_code error = file.MakeBeside(place);
    if (!error) {
        error = WriteAll(file.File().Value(), bytes);
    }
    if (!error) {
        error = SetOwnerAndMode(file.File().Value(), replaced);
    }
    if (!error) {
        error = Sync(file.File().Value());
    }
    if (!error) {
        error = file.File().Close();
    }
    if (!error) {
        error = file.MoveTo(place);
    }
    if (!error) {
        SyncFolder(place.folder);
    }
    return error;
}

}  // namespace

std::error_code SaveFile(const std::string& path, std::string_view bytes) {
    FilePlace place;
    Entry entry;
    if (const std::error_code error = FindFile(path, place)) {
        return error;
    }
    if (const std::error_code error = entry.Look(place)) {
        return error;
    }
    if (entry.Exists() && entry.IsFolder()) {
        return std::make_error_code(std::errc::is_a_directory);
    }
    if (entry.Exists() && !entry.IsFile()) {
        return WriteThrough(place, bytes);
    }
    if (const std::error_code error = FindFileBehindLinks(path, place)) {
        return error;
    }
    return Replace(place, entry, bytes);
}

bool IsSameFile(const std::string& path, int descriptor) {
    FilePlace place;
    Entry entry;
    struct stat other {};
    return !FindFile(path, place) && !entry.Look(place) && entry.Exists() &&
           fstat(descriptor, &other) == 0 && entry.Status().st_dev == other.st_dev &&
           entry.Status().st_ino == other.st_ino;
}

}  // namespace vexil::tool
