// Having the system write down what it still holds in memory, so that a power cut loses nothing.
#pragma once

#include <filesystem>

namespace lumenkit::forms {

/// Returns once the file's contents are on the disk; false where that fails.
bool FlushFile(const std::filesystem::path& file);

/// Returns once the names in the folder are on the disk. What a system cannot do is left undone:
/// Windows keeps folders itself, and some file systems of others refuse.
void FlushFolder(const std::filesystem::path& folder);

}  // namespace lumenkit::forms
