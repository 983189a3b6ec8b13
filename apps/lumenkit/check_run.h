// One run of "lumenkit check".
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "apps/lumenkit/check/baseline.h"
#include "apps/lumenkit/check/exceptions.h"
#include "apps/lumenkit/check/finding.h"
#include "apps/lumenkit/check/inputs.h"
#include "apps/lumenkit/check/progress_bar.h"
#include "apps/lumenkit/check/reporter.h"
#include "apps/lumenkit/check/selection.h"
#include "apps/lumenkit/file_fixer.h"
#include "apps/lumenkit/terminal.h"
#include "forms/encoding.h"
#include "forms/folder_names.h"

namespace lumenkit::cli {

enum class Fixing { None, Safe, All };

struct CheckOptions {
    std::vector<std::string> paths;
    bool captions = false;
    int codePage = forms::guessedCodePage;
    check::Selection selection;
    std::string baseline;       ///< a file with known findings; empty for none
    std::string writeBaseline;  ///< where to write the findings as known ones; empty for nowhere
    Fixing fixing = Fixing::None;
    bool diff = false;  ///< print what `fixing` would change, and write no file
    Coloring coloring = Coloring::Auto;
    int jobs = 0;  ///< the number of files that are checked at once; 0: one a processor
};

class CheckRun {
 public:
    /// Both arguments must outlive the run.
    CheckRun(const CheckOptions& options, check::Reporter& reporter)
        : options_(options), reporter_(reporter) {}

    /// Checks all files and returns the exit status. Throws check::BadException and
    /// check::BadBaseline, and std::runtime_error if the findings cannot be written.
    int Run();

 private:
    struct Result {
        check::Findings findings;
        std::optional<check::Note> note;
        std::optional<check::FileError> error;
        std::optional<std::string> input;  // the bytes of a caption or of the standard input
    };

    Result Check(const std::string& file) const;
    void CheckForm(const std::string& file, Result& result) const;
    static void CheckCaption(const std::string& file, Result& result);
    void Select(const std::string& file, check::Findings& findings);
    void SelectNew(check::Findings& findings) const;
    bool IsInput(const std::string& file) const;
    void Fix(const std::string& file, Result& result);
    FixedFile Fixed(const std::string& file, const Result& result);
    void Show(const std::string& output) const;
    void RequireNamedCaptions() const;
    void CheckFiles(const std::vector<std::string>& files);
    void Take(const std::string& file, Result result, check::ProgressBar& bar);
    void Report(const check::FileError& error);

    const CheckOptions& options_;
    check::Reporter& reporter_;
    check::ExceptionFiles exceptions_;
    mutable forms::FolderNames folders_;  // of the forms
    std::optional<check::Baseline> known_;
    std::optional<check::Baseline> written_;
    std::size_t checked_ = 0;
    bool found_ = false;
    bool differs_ = false;
    bool failed_ = false;
};

}  // namespace lumenkit::cli
