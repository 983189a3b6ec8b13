// Findings that somebody has accepted: in files named .lumenkit, and in comments of a form's code.
#pragma once

#include <filesystem>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "apps/lumenkit/check/finding.h"
#include "forms/document.h"

namespace lumenkit::check {

/// An accepted kind of finding. Patterns have the wildcards of file names; letters are compared
/// without regard to case.
struct Exception {
    std::string rule;           ///< the name of a rule, or "*"
    std::string path = "*";     ///< of the file; a pattern without a slash applies to its last part
    std::string subject = "*";  ///< "lblTitle" for all of a control, "lblTitle.Caption"

    friend bool operator==(const Exception&, const Exception&) = default;
};

/// A line that is no exception.
class BadException : public std::runtime_error {
 public:
    using std::runtime_error::runtime_error;
};

/// Reads "RULE [PATH [SUBJECT]]". Throws BadException for anything else and for an unknown rule.
Exception ReadException(std::string_view line);

/// `path` is relative to the folder for which the exception was made, with slashes.
bool Covers(const Exception& exception, const Finding& finding, const std::string& path);

/// The exceptions in files named ".lumenkit". A file applies to its folder and the folders below.
/// Above a folder that contains ".git", no file is looked for.
class ExceptionFiles {
 public:
    /// Removes the findings that the files beside and above `file` cover. Throws BadException, with
    /// the place in its text, for a malformed file and for one that cannot be read.
    void Apply(const std::filesystem::path& file, Findings& findings);

 private:
    struct Folder {
        std::vector<Exception> exceptions;
        bool isLast = false;  // whether no file is looked for above it
    };

    const Folder& In(const std::filesystem::path& folder);

    std::map<std::filesystem::path, Folder> known_;
};

/// Removes the findings that comments in the code of the form cover:
///
///     ' lumenkit: allow unread-property lblTitle.Alignment
///
/// Adds a finding for a comment that names no rule.
void ApplyComments(const forms::Document& document, Findings& findings);

}  // namespace lumenkit::check
