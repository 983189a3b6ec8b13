#pragma once

#include <filesystem>
#include <string>

namespace lumenkit::forms {

/// Writes a file that is no form. The new file is first written beside the old one under a unique
/// name, flushed to the disk, and then replaces it. Links are followed. Throws FormError if the
/// file cannot be written, is read-only or is no plain file; then the old file stays.
void ReplaceFile(const std::filesystem::path& path, const std::string& bytes);

struct Replacement {
    const std::string& known;  ///< the contents that the caller has read
    const std::string& next;   ///< the new ones
};

/// The same for a file that the caller has read. Concurrent calls for one file wait for each other.
/// Also throws FormError if the file has other contents than the known ones now.
void ReplaceKnownFile(const std::filesystem::path& path, const Replacement& contents);

}  // namespace lumenkit::forms
