// Loads and saves forms on disk.
#pragma once

#include <filesystem>

#include "forms/document.h"
#include "forms/folder_names.h"
#include "forms/save.h"

namespace lumenkit::forms {

/// Reads a form and, if it refers to one, the companion next to it. For a symbolic link to a form,
/// the companion may be next to the target. If no file has the exact name, one whose name differs
/// in case only is read. Throws FormError for a form that cannot be read, is larger than
/// largestFile (forms/plain_file.h) or is no plain file, such as a folder or a pipe. Such a
/// companion leaves a warning in the document.
Document Load(const std::filesystem::path& path, int codePage = guessedCodePage);
/// The same for one of many forms: a companion that is not there under its exact name is sought in
/// `folders`.
Document Load(const std::filesystem::path& path, int codePage, FolderNames& folders);

/// Writes a form and, if it has one, the companion next to it. Each new file is first written next
/// to the old one under a unique name and then replaces it, the companion before the form. Each
/// step is flushed to the disk before the next one begins. So a concurrent reader, an interruption
/// or a power failure finds each file complete, either old or new. Concurrent saves of one form
/// wait for each other. Throws FormError for a file that cannot be written, is read-only, belongs
/// to others or was changed by others (see Replacing); then both files keep their old contents.
void Save(const Document& document, const std::filesystem::path& path,
          Replacing replacing = Replacing::Named);

/// Whether the form or its companion is on the disk with other contents than the document read or
/// wrote last. False for a file that does not exist or was neither read nor written.
bool IsChangedOnDisk(const Document& document, const std::filesystem::path& path);

/// Returns the first of both files that is; an empty path if none is.
std::filesystem::path ChangedOnDisk(const Document& document, const std::filesystem::path& path);

/// Takes the present contents of the form and its companion as known, so that Save replaces them
/// even with Replacing::Known. For a user who has seen that another program has changed them. Save
/// keeps the records that are in the companion now: another form may share it. Files that the
/// document neither read nor wrote stay unknown.
void AcceptChangesOnDisk(const Document& document, const std::filesystem::path& path);

}  // namespace lumenkit::forms
