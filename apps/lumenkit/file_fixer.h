// Mends one file, or shows what would be mended.
#pragma once

#include <optional>
#include <string>
#include <utility>

#include "apps/lumenkit/check/finding.h"
#include "apps/lumenkit/check/fix/file_fixes.h"
#include "apps/lumenkit/check/reporter.h"
#include "forms/document.h"

namespace lumenkit::cli {

/// What came of it.
struct FixedFile {
    check::Fixes fixes;
    check::Findings left;  ///< the findings in the mended file
    std::string output;    ///< the diff; the mended text of the standard input; else empty
};

/// No function changes a file that was changed since it was read. If one throws, all files have
/// their old contents.
class FileFixer {
 public:
    struct Options {
        check::FixScope scope = check::FixScope::Safe;
        bool diff = false;  ///< writes no file
        int codePage = 0;   ///< see forms::Load
    };

    /// `select` chooses the findings that are to be mended.
    FileFixer(const Options& options, check::FindingFilter select)
        : options_(options), select_(std::move(select)) {}

    /// Mends a form on the disk, or the one with the bytes `input`. Throws forms::FormError.
    FixedFile FixForm(const std::string& file, const std::optional<std::string>& input) const;
    /// Mends a caption in a file that contains `bytes`. Throws forms::FormError and UnusableInput.
    FixedFile FixCaption(const std::string& file, const std::string& bytes) const;

 private:
    check::FixOptions InScope(check::FixScope scope) const { return {scope, select_}; }
    void LookAtRest(const forms::Document& mended, FixedFile& fixed) const;

    Options options_;
    check::FindingFilter select_;
};

}  // namespace lumenkit::cli
