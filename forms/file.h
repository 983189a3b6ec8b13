// Forms on disk.
#pragma once

#include <filesystem>

#include "forms/document.h"

namespace lumenkit::forms {

/// Reads a form and, if it refers to one, its companion beside it. Throws FormError for what cannot
/// be read.
Document Load(const std::filesystem::path& path, int codePage = defaultCodePage);

/// Writes a form and, if it has one, its companion beside it. Each file is written beside the old
/// one first and then takes its place, the companion before the form, so that whoever reads or
/// interrupts finds the old or the new file, whole; so does who comes back after the power went, as
/// each step is on the disk before the next one begins. Throws FormError for what cannot be
/// written; then the files are as they were.
void Save(const Document& document, const std::filesystem::path& path);

}  // namespace lumenkit::forms
