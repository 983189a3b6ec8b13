// Where the companion of a form is.
#pragma once

#include <filesystem>
#include <functional>
#include <string>

#include "forms/folder_names.h"

namespace lumenkit::forms {

/// The name of a companion in the references of its form.
struct CompanionName {
    std::string utf8;
    std::string bytes;  ///< as the form has it, in the code page of the form
};

/// Returns the file of the companion: beside the form, or beside the file to which the form is a
/// link. Of the files there, it is the first of these:
/// - the one with the exact name, in UTF-8 or, except on Windows, in the bytes of the form
/// - one whose name differs in case only and that `isMeant` accepts
/// - if the name contains characters beyond ASCII, the one with the name of the form and the
///   extension of the companion, in any case, that `isMeant` accepts: the form may be read in
///   another code page than the one in which its companion is named
/// For a companion that does not exist, returns the place for a new one: its name is in UTF-8 if
/// that of the form is.
std::filesystem::path CompanionPath(
    const std::filesystem::path& form, const CompanionName& name,
    const std::function<bool(const std::filesystem::path&)>& isMeant);
/// The same with the names of the files as `folders` knows them.
std::filesystem::path CompanionPath(
    const std::filesystem::path& form, const CompanionName& name,
    const std::function<bool(const std::filesystem::path&)>& isMeant, FolderNames& folders);

}  // namespace lumenkit::forms
