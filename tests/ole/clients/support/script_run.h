// Runs a script in a program of the platform and checks its output.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace lumenkit::clients {

struct ScriptRun {
    unsigned long exitCode = 0;
    std::vector<std::string> lines;    ///< lines of output
    std::vector<std::wstring> errors;  ///< errors in the error boxes, see ErrorIn
};

/// Runs `program` with the arguments and closes each message box that it shows.
ScriptRun RunScript(const std::wstring& program, const std::wstring& arguments,
                    const std::filesystem::path& output);

/// Returns the faults of a run; empty if there are none. A script writes "failed: ..." for each
/// check that fails, "box: VLABEL pLetFont 13" before each error box that it causes, and "all done"
/// at the end. Without the last line, a script that breaks off would go unnoticed.
std::vector<std::string> Complaints(const ScriptRun& run);

}  // namespace lumenkit::clients
