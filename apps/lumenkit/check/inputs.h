// Finds the files to check.
#pragma once

#include <string>
#include <vector>

namespace lumenkit::check {

enum class InputKind {
    Forms,     ///< *.frm, *.ctl, *.pag and *.dob of a folder
    Captions,  ///< *.txt of a folder
};

struct UnreadableFolder {
    std::string path;
    std::string reason;
};

struct Inputs {
    std::vector<std::string> files;
    std::vector<UnreadableFolder> errors;
};

/// Returns the paths in `paths` that are not folders, and the files of `kind` in the folders and
/// their subfolders, sorted by name within a folder, each file once. Does not follow links to
/// folders inside a folder, and skips pipes and devices there.
Inputs FindInputs(const std::vector<std::string>& paths, InputKind kind);

}  // namespace lumenkit::check
