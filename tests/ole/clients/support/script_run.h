// A script run by a program of the platform's, held to what it says of itself.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace lumenkit::clients {

struct ScriptRun {
    unsigned long exitCode = 0;
    std::vector<std::string> lines;    ///< what it wrote
    std::vector<std::wstring> errors;  ///< what the error boxes said, see ErrorIn
};

/// Runs `program` with the arguments and closes each message box that it shows.
ScriptRun RunScript(const std::wstring& program, const std::wstring& arguments,
                    const std::filesystem::path& output);

/// What is wrong with a run; nothing when all is well. A script writes "failed: ..." for each check
/// that fails, "box: VLABEL pLetFont 13" for each error box that it is about to cause, and
/// "all done" in the end: hosts of scripts are silent when one breaks off.
std::vector<std::string> Complaints(const ScriptRun& run);

}  // namespace lumenkit::clients
