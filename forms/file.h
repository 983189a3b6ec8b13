// Loads and saves forms on disk.
#pragma once

#include <filesystem>

#include "forms/document.h"

namespace lumenkit::forms {

/// Reads a form and, if it refers to one, the companion next to it. For a symbolic link to a form,
/// the companion may be next to the target. If no file has the exact name, one whose name differs
/// in case only is read. Throws FormError for a form that cannot be read. A companion that cannot
/// be read leaves a warning in the document.
Document Load(const std::filesystem::path& path, int codePage = defaultCodePage);

/// Writes a form and, if it has one, the companion next to it. Each new file is first written next
/// to the old one and then replaces it, the companion before the form. Each step is flushed to the
/// disk before the next one begins. So a concurrent reader, an interruption or a power failure
/// finds each file complete, either old or new. Throws FormError for a file that cannot be written;
/// the form then keeps its old contents.
void Save(const Document& document, const std::filesystem::path& path);

}  // namespace lumenkit::forms
