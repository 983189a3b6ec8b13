// A new file beside an old one, which it replaces when it is complete.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "forms/disk.h"
#include "forms/system_call.h"

namespace lumenkit::forms {

/// The ends of the names of a new file and of an old one that is kept until the save is complete.
inline constexpr std::string_view newEnd = ".new";
inline constexpr std::string_view keptEnd = ".kept";

/// A file to write, and the names of the files that a save creates in its folder. Their names begin
/// with a hash of the file's name without regard to case, because its own name may already have the
/// greatest length. `contents` must outlive the place.
struct Place {
    Place(const std::filesystem::path& named, const std::string& contents);

    /// Returns a name that no other file has.
    std::filesystem::path NewName(std::string_view end) const;

    const std::string name;  ///< for error messages
    const std::filesystem::path path;
    const std::filesystem::path folder;
    const std::string& bytes;
    const std::string prefix;
    const std::filesystem::path lock;
};

/// Throws FormError. For `reason` see SystemCall.
[[noreturn]] void RefuseToWrite(const Place& place, const std::string& reason);

/// Returns the state of the present file. Throws FormError if it is read-only or is no plain file.
FileState LookAt(Disk& disk, const Place& place);

/// Tries twice, because a virus scanner may hold a new file for a moment.
void Remove(Disk& disk, const std::filesystem::path& path);

/// A file with a unique name in the folder of another file. The destructor removes it unless it was
/// renamed. Disk and place must outlive it.
class BesideFile {
 public:
    BesideFile(Disk& disk, const Place& place) : disk_(disk), place_(place) {}
    BesideFile(const BesideFile&) = delete;
    BesideFile& operator=(const BesideFile&) = delete;
    ~BesideFile();

    /// Writes the file and flushes it to the disk. `old` is the state of the file that it replaces.
    /// Throws FormError.
    void Write(std::string_view bytes, const FileState& old);
    /// Gives the old file a second name. Copies it if the file system has no second names.
    void Keep(std::string_view oldBytes, const FileState& old);

    // The following functions allocate no memory.
    /// Replaces the old file. Returns false if that fails.
    bool TakePlace();
    void Leave() { isThere_ = false; }
    const std::filesystem::path& Path() const { return path_; }

    /// Why the last call failed: see SystemCall.
    std::string Reason() const { return last_.Reason(); }

 private:
    template <typename Creation>
    Disk::Opened Make(std::string_view end, const Creation& create);

    Disk& disk_;
    const Place& place_;
    std::filesystem::path path_;
    SystemCall last_;
    bool isThere_ = false;
};

}  // namespace lumenkit::forms
