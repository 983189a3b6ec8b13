#pragma once

#include <filesystem>

#include "forms/beside_file.h"
#include "forms/disk.h"

namespace lumenkit::forms {

/// Excludes other saves of the same file. Waits up to five seconds for another save. Throws
/// FormError. Disk and place must outlive the lock.
class SaveLock {
 public:
    SaveLock(Disk& disk, const Place& place);
    ~SaveLock();
    SaveLock(const SaveLock&) = delete;
    SaveLock& operator=(const SaveLock&) = delete;

 private:
    Disk& disk_;
    const std::filesystem::path& path_;
    Disk::Handle handle_ = -1;
};

}  // namespace lumenkit::forms
