// The calls of the system that loading and saving need.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace lumenkit::forms {

/// Describes what a path leads to, through links.
struct FileState {
    bool exists = false;
    bool isRegular = false;
    /// No user has the permission to write the file, or this program has none.
    bool isReadOnly = false;
    std::uint64_t size = 0;  ///< of a regular file, in bytes
    /// Zero on Windows.
    std::uint32_t mode = 0;
    std::uint32_t owner = 0;
    std::uint32_t group = 0;
};

/// The file system. Each function is one call of the system, or a few, and returns whether it
/// succeeded. After a failure, errno has the reason, or 0. Those from Write to FlushFolder and
/// Unlock allocate no memory. Tests override functions to make them fail.
class Disk {
 public:
    using Handle = std::intptr_t;
    enum class Outcome {
        Done,
        Taken,  ///< the file exists already; for a lock: another program holds it
        Failed
    };
    struct Opened {
        Outcome outcome = Outcome::Failed;
        Handle handle = -1;
    };

    Disk() = default;
    Disk(const Disk&) = delete;
    Disk& operator=(const Disk&) = delete;
    virtual ~Disk() = default;
    static Disk& System();

    /// A path that leads to nothing is no failure.
    virtual bool Look(const std::filesystem::path& path, FileState& state);
    /// Reads a whole regular file. Never waits for a pipe or a device.
    virtual bool Read(const std::filesystem::path& path, std::string& bytes);

    /// Appends the names of the files in a folder.
    virtual bool List(const std::filesystem::path& folder,
                      std::vector<std::filesystem::path>& names);

    /// Creates a file for writing. Never opens an existing file and never follows a link. With
    /// `isPrivate`, no other user can read it.
    virtual Opened Create(const std::filesystem::path& path, bool isPrivate);
    virtual bool Write(Handle file, std::string_view bytes);
    /// Gives a new file the owner, group and permissions of an old one. If the system does not
    /// permit the owner or group, the file keeps its own; then the permissions of the old group
    /// apply to nobody else.
    virtual bool KeepAttributes(Handle file, const FileState& old);
    /// Returns when the contents are on the disk.
    virtual bool Flush(Handle file);
    virtual bool Close(Handle file);

    /// Gives a file a second name.
    virtual Outcome Link(const std::filesystem::path& file, const std::filesystem::path& name);
    /// Replaces an existing file.
    virtual bool Rename(const std::filesystem::path& from, const std::filesystem::path& to);
    virtual bool Remove(const std::filesystem::path& path);
    /// Returns when the names in the folder are on the disk. Does nothing on Windows, which flushes
    /// folders itself. Ignores failures, because some file systems do not support it.
    virtual void FlushFolder(const std::filesystem::path& folder);

    /// Locks a file that has no other purpose. The system ends the lock if the program is killed.
    virtual Opened Lock(const std::filesystem::path& path);
    /// Also removes the file.
    virtual void Unlock(Handle lock, const std::filesystem::path& path);
    /// Waits a millisecond.
    virtual void Pause();
};

}  // namespace lumenkit::forms
