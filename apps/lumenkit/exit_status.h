#pragma once

namespace lumenkit::cli {

/// What the program tells the shell.
enum ExitStatus {
    exitDone = 0,
    exitReported = 1,  ///< done, but the controls reported an error
    exitUnusable = 2,  ///< wrong arguments, or input that cannot be read
};

}  // namespace lumenkit::cli
