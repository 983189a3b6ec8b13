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

/// Returns the absolute path of a file, with links followed. For a file that does not exist,
/// follows the links of its folder.
std::filesystem::path Resolved(const std::filesystem::path& path);
/// Returns a file in the folder of another file. `name` is in UTF-8.
std::filesystem::path Beside(const std::filesystem::path& path, const std::string& name);
/// Returns the path as error messages name it, in UTF-8.
std::string NameOf(const std::filesystem::path& path);

}  // namespace lumenkit::forms
