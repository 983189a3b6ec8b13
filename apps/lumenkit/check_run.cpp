#include "apps/lumenkit/check_run.h"

#include <iostream>
#include <new>
#include <stdexcept>
#include <string>
#include <utility>

#include "apps/command_line/exit_status.h"
#include "apps/lumenkit/check/file_checks.h"
#include "apps/lumenkit/in_order.h"
#include "apps/lumenkit/terminal.h"
#include "apps/lumenkit/text_input.h"
#include "forms/code_page_guess.h"
#include "forms/file.h"
#include "project/lumenkit_classes.h"

namespace lumenkit::cli {

namespace {

using check::FileError;
using check::Findings;

// With fewer files, a progress bar would vanish before anyone sees it.
constexpr std::size_t manyFiles = 20;

constexpr const char* standardInput = "-";

}  // namespace

int CheckRun::Run() {
    if (!options_.baseline.empty()) {
        known_.emplace(options_.baseline).Read();
    }
    if (!options_.writeBaseline.empty()) {
        written_.emplace(options_.writeBaseline);
    }
    const check::InputKind kind =
        options_.captions ? check::InputKind::Captions : check::InputKind::Forms;
    const check::Inputs inputs = check::FindInputs(options_.paths, kind);
    for (const check::UnreadableFolder& folder : inputs.errors) {
        Report({folder.path, {}, folder.reason, folder.path + ": " + folder.reason});
    }
    CheckFiles(inputs.files);
    reporter_.Finish(checked_);
    if (!std::cout.flush()) {
        throw std::runtime_error("cannot write the findings");
    }
    if (written_) {
        written_->Write();
    }
    if (failed_) {
        return exitUnusable;
    }
    return found_ ? exitReported : exitDone;
}

void CheckRun::CheckFiles(const std::vector<std::string>& files) {
    const bool shown = files.size() >= manyFiles && IsTerminal(Stream::Errors);
    check::ProgressBar bar(std::cerr, files.size(), shown);
    InOrder(
        files.size(), options_.jobs, [&](std::size_t index) { return Check(files[index]); },
        [&](std::size_t index, Result result) {
            bar.Show(index);
            Take(files[index], std::move(result), bar);
        });
}

CheckRun::Result CheckRun::Check(const std::string& file) const {
    Result result;
    try {
        if (options_.captions) {
            result.findings = check::CheckCaptionFile(file, ReadText(file));
            return result;
        }
        return CheckForm(file);
    } catch (const forms::FormError& error) {
        result.error = {error.File(), error.Place(), error.Description(), error.what()};
    } catch (const UnusableInput& error) {
        result.error = {file, {}, error.what(), error.what()};
    } catch (const std::bad_alloc&) {
        const std::string description = "there is not enough memory to check it";
        result.error = {file, {}, description, file + ": " + description};
    }
    return result;
}

CheckRun::Result CheckRun::CheckForm(const std::string& file) const {
    const forms::Document form =
        file == standardInput
            ? forms::Document::Parse(standardInput, ReadBytes(file), {}, options_.codePage)
            : forms::Load(file, options_.codePage);
    Result result;
    if (const std::optional<forms::CodePageGuess>& guess = form.Guess()) {
        result.note = {form.Name(), guess->place,
                       TextOf(*guess) + "; --code-page names another one"};
    }
    result.findings = check::CheckForm(form, lumenkitClasses);
    check::ApplyComments(form, result.findings);
    return result;
}

void CheckRun::Take(const std::string& file, Result result, check::ProgressBar& bar) {
    if (result.error) {
        bar.Hide();
        Report(*result.error);
        return;
    }
    ++checked_;
    if (result.note) {
        bar.Hide();
        reporter_.Report(*result.note);
    }
    Findings& findings = result.findings;
    std::erase_if(findings, [&](const check::Finding& finding) {
        return !options_.selection.Takes(finding);
    });
    exceptions_.Apply(file, findings);
    if (written_) {
        written_->Add(findings);
    }
    if (known_) {
        known_->Apply(findings);
    }
    if (!findings.empty()) {
        found_ = !written_;
        bar.Hide();
        reporter_.Report(findings);
    }
}

void CheckRun::Report(const FileError& error) {
    failed_ = true;
    reporter_.Report(error);
}

}  // namespace lumenkit::cli
