// What shells offer where an argument is written.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "apps/command_line/notes.h"

namespace lumenkit::cli {

inline Offered FilesNamed(std::vector<std::string> extensions) {
    return {.extensions = std::move(extensions)};
}

inline Offered FormFiles() {
    return FilesNamed({"frm", "ctl", "pag", "dob"});
}

}  // namespace lumenkit::cli
