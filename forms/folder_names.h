#pragma once

#include <filesystem>
#include <map>
#include <mutex>
#include <string>
#include <unordered_map>

namespace lumenkit::forms {

/// The names of the files in folders, compared without regard to case. Reads each folder once, when
/// it is first asked about it: for one search, or for a run over many forms during which companions
/// neither come nor go. Several threads can use it.
class FolderNames {
 public:
    /// Returns the path of the file in `folder` whose name is `name` (in UTF-8, or in the bytes of
    /// the disk) without regard to case. Of several, the first one in the order of the disk; empty
    /// if there is none. Names that are not in UTF-8 differ only in letters of ASCII.
    std::filesystem::path Find(const std::filesystem::path& folder, const std::string& name);

 private:
    // The names of one folder, by their form in lower case.
    using Names = std::unordered_map<std::string, std::filesystem::path>;

    const Names& NamesIn(const std::filesystem::path& folder);
    static Names Read(const std::filesystem::path& folder);

    std::mutex mutex_;
    std::map<std::filesystem::path, Names> folders_;
};

}  // namespace lumenkit::forms
