#pragma once

#include <filesystem>
#include <string>

namespace lumenkit::forms {

/// Writes a file that is no form. The new file is first written beside the old one under a unique
/// name, flushed to the disk, and then replaces it. Links are followed. Throws FormError if the
/// file cannot be written, is read-only or is no plain file; then the old file stays.
void ReplaceFile(const std::filesystem::path& path, const std::string& bytes);

/// The same for a file that the caller has read with the contents `known`. Concurrent calls for
/// one file wait for each other. Also throws FormError if the file has other contents now.
void ReplaceKnownFile(const std::filesystem::path& path, const std::string& known,
                      const std::string& bytes);

}  // namespace lumenkit::forms
