#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "apps/command_line/code_page_option.h"
#include "apps/command_line/exit_status.h"
#include "apps/lumenkit/check/file_checks.h"
#include "apps/lumenkit/check/inputs.h"
#include "apps/lumenkit/check/progress_bar.h"
#include "apps/lumenkit/check/reporter.h"
#include "apps/lumenkit/check/rules.h"
#include "apps/lumenkit/commands.h"
#include "apps/lumenkit/terminal.h"
#include "apps/lumenkit/text_input.h"
#include "forms/file.h"
#include "forms/known_code_pages.h"
#include "project/lumenkit_classes.h"

namespace lumenkit::cli {

namespace {

using check::FileError;
using check::Findings;

// With fewer files, a progress bar would vanish before anyone sees it.
constexpr std::size_t manyFiles = 20;

struct CheckOptions {
    std::vector<std::string> paths;
    bool captions = false;
    bool json = false;
    int codePage = forms::guessedCodePage;
};

class CheckRun {
 public:
    CheckRun(const CheckOptions& options, check::Reporter& reporter)
        : options_(options), reporter_(reporter) {}

    int Run() {
        const check::InputKind kind =
            options_.captions ? check::InputKind::Captions : check::InputKind::Forms;
        const check::Inputs inputs = check::FindInputs(options_.paths, kind);
        for (const check::UnreadableFolder& folder : inputs.errors) {
            Report({folder.path, {}, folder.reason, folder.path + ": " + folder.reason});
        }
        CheckFiles(inputs.files);
        reporter_.Finish(checked_);
        if (!std::cout.flush()) {
            std::cerr << "lumenkit: cannot write the findings\n";
            return exitUnusable;
        }
        if (failed_) {
            return exitUnusable;
        }
        return found_ ? exitReported : exitDone;
    }

 private:
    void CheckFiles(const std::vector<std::string>& files) {
        const bool shown = files.size() >= manyFiles && IsTerminal(Stream::Errors);
        check::ProgressBar bar(std::cerr, files.size(), shown);
        for (std::size_t done = 0; done < files.size(); ++done) {
            bar.Show(done);
            CheckFile(files[done], bar);
        }
    }

    void CheckFile(const std::string& file, check::ProgressBar& bar) {
        try {
            const Findings findings = FindingsIn(file, bar);
            ++checked_;
            if (!findings.empty()) {
                found_ = true;
                bar.Hide();
                reporter_.Report(findings);
            }
        } catch (const forms::FormError& error) {
            bar.Hide();
            Report({error.File(), error.Place(), error.Description(), error.what()});
        } catch (const UnusableInput& error) {
            bar.Hide();
            Report({file, {}, error.what(), error.what()});
        }
    }

    Findings FindingsIn(const std::string& file, check::ProgressBar& bar) const {
        if (options_.captions) {
            return check::CheckCaptionFile(file, ReadText(file));
        }
        const forms::Document form = forms::Load(file, options_.codePage);
        if (const std::optional<forms::CodePageGuess>& guess = form.Guess()) {
            bar.Hide();
            reporter_.Report(check::Note{form.Name(), guess->place,
                                         TextOf(*guess) + "; --code-page names another one"});
        }
        return check::CheckForm(form, lumenkitClasses);
    }

    void Report(const FileError& error) {
        failed_ = true;
        reporter_.Report(error);
    }

    const CheckOptions& options_;
    check::Reporter& reporter_;
    std::size_t checked_ = 0;
    bool found_ = false;
    bool failed_ = false;
};

int Check(const CheckOptions& options) {
    if (options.json) {
        check::JsonReporter reporter(std::cout);
        return CheckRun(options, reporter).Run();
    }
    check::TextReporter reporter(
        std::cout, std::cerr,
        {.output = TakesColors(Stream::Output), .errors = TakesColors(Stream::Errors)});
    return CheckRun(options, reporter).Run();
}

std::string Help() {
    std::string help = "Rules and their names in findings:\n";
    for (const check::Rule& rule : check::allRules) {
        constexpr std::size_t column = 26;
        std::string line = "  " + std::string(rule.name);
        line.append(column - line.size(), ' ');
        help += line + std::string(rule.meaning) + '\n';
    }
    return help +
           "\n"
           "Lines and columns count from 1, offsets in a text from 0. Columns and offsets are in\n"
           "UTF-16 units. A text in a binary companion file is reported at the place of its\n"
           "property. See docs/check.md for details.\n"
           "\n"
           "Exit status: 0 without findings, 1 with findings, 2 if a file could not be read (all\n"
           "other files are checked) or the findings could not be written.\n"
           "\n"
           "Examples:\n"
           "  lumenkit check order.frm\n"
           "  lumenkit check --json src/forms\n"
           "  lumenkit check --code-page 1250 polish.frm\n"
           "  lumenkit check --caption samples/captions/mistakes.txt\n"
           "  echo '|Blod:1|Hello' | lumenkit check --caption -";
}

}  // namespace

void AddCheckCommand(CLI::App& program, int& status) {
    CLI::App* const command = program.add_subcommand(
        "check", "Find mistakes in captions and form files and print their places");
    const auto options = std::make_shared<CheckOptions>();
    command
        ->add_option("PATH", options->paths,
                     "Forms (.frm, .ctl, .pag, .dob), or folders to search for such files, "
                     "including all subfolders")
        ->required();
    command->add_flag("--caption", options->captions,
                      "Each file contains one caption in UTF-8; - is the standard input. Folders "
                      "are searched for .txt files. One line break at the end of a file is not "
                      "part of the caption");
    command->add_flag("--json", options->json,
                      R"(Print {"files":N,"findings":[{"rule":...,"file":...,"line":...,)"
                      R"("column":...,...},...],"errors":[...]})");
    AddCodePageOption(*command, options->codePage);
    command->footer(Help());
    command->callback([options, &status] { status = Check(*options); });
}

}  // namespace lumenkit::cli
