// Which files a check is asked to look at.
#pragma once

#include <string>
#include <vector>

namespace lumenkit::check {

enum class InputKind {
    Forms,     ///< in a folder, *.frm, *.ctl, *.pag and *.dob
    Captions,  ///< in a folder, *.txt
};

struct UnreadableFolder {
    std::string path;
    std::string reason;
};

struct Inputs {
    std::vector<std::string> files;
    std::vector<UnreadableFolder> errors;
};

/// The files among `paths` as they are, and those of the kind in the folders among them, at
/// whatever depth and in the order of their names. Links to folders are not followed, and what is
/// no file (pipes, devices) is left out there.
Inputs FindInputs(const std::vector<std::string>& paths, InputKind kind);

}  // namespace lumenkit::check
