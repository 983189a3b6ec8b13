#include "apps/lumenkit/check_run.h"

#include <exception>
#include <iostream>
#include <new>
#include <stdexcept>
#include <string>
#include <utility>

#include "apps/command_line/exit_status.h"
#include "apps/command_line/spelling/printable.h"
#include "apps/lumenkit/check/file_checks.h"
#include "apps/lumenkit/check/fix/shown_diff.h"
#include "apps/lumenkit/in_order.h"
#include "apps/lumenkit/terminal.h"
#include "apps/lumenkit/text_input.h"
#include "forms/code_page_guess.h"
#include "forms/file.h"
#include "forms/form_error.h"
#include "project/lumenkit_classes.h"

namespace lumenkit::cli {

namespace {

using check::FileError;
using check::Findings;

// With fewer files, a progress bar would vanish before anyone sees it.
constexpr std::size_t manyFiles = 20;

constexpr const char* standardInput = "-";

FileError ErrorOf(const std::string& file, const std::exception& error) {
    if (const auto* inForm = dynamic_cast<const forms::FormError*>(&error)) {
        return {inForm->File(), inForm->Place(), inForm->Description(), inForm->what()};
    }
    if (dynamic_cast<const UnusableInput*>(&error) != nullptr) {
        return {file, {}, error.what(), error.what()};
    }
    const bool isMemory = dynamic_cast<const std::bad_alloc*>(&error) != nullptr;
    const std::string description =
        isMemory ? "there is not enough memory to check it" : error.what();
    return {file, {}, description, file + ": " + description};
}

}  // namespace

int CheckRun::Run() {
    RequireNamedCaptions();
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
        throw std::runtime_error(std::string("cannot write the ") +
                                 (options_.diff ? "diff" : "findings"));
    }
    if (written_) {
        written_->Write();
    }
    if (failed_) {
        return exitUnusable;
    }
    return (options_.diff ? differs_ : found_) ? exitReported : exitDone;
}

// The texts in a folder need not be captions.
void CheckRun::RequireNamedCaptions() const {
    if (!options_.captions || options_.fixing == Fixing::None || options_.diff) {
        return;
    }
    for (const std::string& path : options_.paths) {
        std::error_code unknown;
        if (std::filesystem::is_directory(path, unknown)) {
            throw std::runtime_error("--fix mends only captions whose files are named, and " +
                                     Printable(path) + " is a folder");
        }
    }
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
            CheckCaption(file, result);
        } else {
            CheckForm(file, result);
        }
    } catch (const std::exception& error) {
        result.error = ErrorOf(file, error);
    }
    return result;
}

void CheckRun::CheckCaption(const std::string& file, Result& result) {
    result.input = ReadBytes(file);
    result.findings = check::CheckCaptionFile(file, TextFileOf(file, *result.input).text);
}

void CheckRun::CheckForm(const std::string& file, Result& result) const {
    if (IsInput(file)) {
        result.input = ReadBytes(file);
    }
    const forms::Document form =
        result.input ? forms::Document::Parse(file, *result.input, {}, options_.codePage)
                     : forms::Load(file, options_.codePage, folders_);
    if (const std::optional<forms::CodePageGuess>& guess = form.Guess()) {
        result.note = {form.Name(), guess->place,
                       TextOf(*guess) + "; --code-page names another one"};
    }
    result.findings = check::CheckForm(form, lumenkitClasses);
    check::ApplyComments(form, result.findings);
}

bool CheckRun::IsInput(const std::string& file) const {
    return options_.captions ? IsStandardInput(file) : file == standardInput;
}

void CheckRun::Take(const std::string& file, Result result, check::ProgressBar& bar) {
    const bool isFixed = options_.fixing != Fixing::None;
    const bool isPassedOn = isFixed && !options_.diff && IsInput(file);
    if (result.error) {
        bar.Hide();
        Report(*result.error);
        if (isPassedOn) {
            std::cout << result.input.value_or(std::string());
        }
        return;
    }
    ++checked_;
    if (result.note) {
        bar.Hide();
        reporter_.Report(*result.note);
    }
    Select(file, result.findings);
    if (written_) {
        written_->Add(result.findings);
    }
    SelectNew(result.findings);
    if (isPassedOn || (isFixed && !result.findings.empty())) {
        bar.Hide();
        Fix(file, result);
    }
    if (!result.findings.empty()) {
        found_ = !written_;
        bar.Hide();
        reporter_.Report(result.findings);
    }
}

void CheckRun::Select(const std::string& file, Findings& findings) {
    std::erase_if(findings, [&](const check::Finding& finding) {
        return !options_.selection.Takes(finding);
    });
    exceptions_.Apply(file, findings);
}

void CheckRun::SelectNew(Findings& findings) const {
    if (known_) {
        known_->Apply(findings);
    }
}

// Replaces the findings by those that are left. If the file cannot be mended, all are.
void CheckRun::Fix(const std::string& file, Result& result) {
    try {
        FixedFile fixed = Fixed(file, result);
        Show(fixed.output);
        differs_ = differs_ || !fixed.fixes.made.empty();
        reporter_.Report(fixed.fixes);
        result.findings = std::move(fixed.left);
    } catch (const check::BadException&) {
        throw;
    } catch (const std::exception& error) {
        Report(ErrorOf(file, error));
        if (!options_.diff && IsInput(file)) {
            Show(*result.input);
        }
    }
}

FixedFile CheckRun::Fixed(const std::string& file, const Result& result) {
    const check::FixScope scope =
        options_.fixing == Fixing::All ? check::FixScope::All : check::FixScope::Safe;
    const FileFixer fixer({scope, options_.diff, options_.codePage}, [&](Findings findings) {
        Select(file, findings);
        SelectNew(findings);
        return findings;
    });
    return options_.captions ? fixer.FixCaption(file, *result.input)
                             : fixer.FixForm(file, result.input);
}

void CheckRun::Show(const std::string& output) const {
    // For a program, a diff has the bytes of the files, whatever colours are forced.
    const bool isForPerson = options_.diff && IsTerminal(Stream::Output);
    const bool isColored = TakesColors(Stream::Output, options_.coloring);
    std::cout << (isForPerson ? check::DiffForTerminal(output, isColored) : output);
}

void CheckRun::Report(const FileError& error) {
    failed_ = true;
    reporter_.Report(error);
}

}  // namespace lumenkit::cli
