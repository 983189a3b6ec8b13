// Writes a form and its companion so that nobody's work is lost.
#pragma once

#include <filesystem>

#include "forms/disk.h"
#include "forms/document.h"

namespace lumenkit::forms {

/// What a save may replace.
enum class Replacing {
    /// The files that the document read or wrote, unless other programs have changed them since.
    Known,
    /// Also a form that the document does not know, because the caller names it. No companion that
    /// the document does not know.
    Named,
    /// Also a changed form, and the companion that the form on the disk refers to. For a user who
    /// has confirmed that this form is to be replaced.
    Confirmed
};

/// Does the work of Save with the system calls of `disk`.
void SaveOn(Disk& disk, const Document& document, const std::filesystem::path& path,
            Replacing replacing);

/// Returns the file that takes the companion of the document. A file whose name differs in case
/// only is taken if the document knows it: another form may own it.
std::filesystem::path CompanionToSave(const Document& document, const std::filesystem::path& path);

}  // namespace lumenkit::forms
