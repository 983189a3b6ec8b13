// Flushes files and folders to the disk, so that a power failure loses nothing.
#pragma once

#include <filesystem>

namespace lumenkit::forms {

/// Returns when the contents of the file are on the disk; false on failure.
bool FlushFile(const std::filesystem::path& file);

/// Returns when the names in the folder are on the disk. Does nothing on Windows, which flushes
/// folders itself. Ignores failures, because some file systems do not support it.
void FlushFolder(const std::filesystem::path& folder);

}  // namespace lumenkit::forms
