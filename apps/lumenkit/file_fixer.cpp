#include "apps/lumenkit/file_fixer.h"

#include "apps/difference/unified_diff.h"
#include "apps/lumenkit/check/exceptions.h"
#include "apps/lumenkit/check/file_checks.h"
#include "apps/lumenkit/check/fix/companion_diff.h"
#include "apps/lumenkit/text_input.h"
#include "forms/file.h"
#include "forms/replace_file.h"
#include "frame/utf8.h"
#include "project/lumenkit_classes.h"

namespace lumenkit::cli {

namespace {

using check::FixScope;

std::string DiffOf(const std::string& file, const std::string& before, const forms::Document& form,
                   check::FormFixer& fixer) {
    std::string diff;
    for (const check::CompanionChange& change : fixer.TakeBackCompanionTexts()) {
        diff += check::CompanionDiff(change, form.CompanionName());
    }
    return diff + difference::UnifiedDiff(file, before, form.Write().form);
}

}  // namespace

FixedFile FileFixer::FixForm(const std::string& file,
                             const std::optional<std::string>& input) const {
    const forms::Document form = input ? forms::Document::Parse(file, *input, {}, options_.codePage)
                                       : forms::Load(file, options_.codePage);
    const std::string before = form.Write().form;
    check::FormFixer fixer(form, lumenkitClasses, InScope(options_.scope));
    FixedFile fixed;
    fixed.fixes.made = fixer.Fix();
    const forms::FormBytes bytes = form.Write();
    LookAtRest(form.WithBytes(bytes), fixed);
    if (options_.diff) {
        fixed.output = DiffOf(file, before, form, fixer);
    } else if (input) {
        fixed.output = bytes.form;
    } else if (!fixed.fixes.made.empty()) {
        forms::Save(form, file, forms::Replacing::Known);
    }
    return fixed;
}

// Finds what is left in a mended form, and tries how much of it the other scope would mend.
void FileFixer::LookAtRest(const forms::Document& mended, FixedFile& fixed) const {
    fixed.left = check::CheckForm(mended, lumenkitClasses);
    check::ApplyComments(mended, fixed.left);
    fixed.left = select_(std::move(fixed.left));
    if (options_.scope == FixScope::Safe && !fixed.left.empty()) {
        check::FormFixer more(mended, lumenkitClasses, InScope(FixScope::All));
        fixed.fixes.more = more.Fix().size();
    }
}

FixedFile FileFixer::FixCaption(const std::string& file, const std::string& bytes) const {
    const TextFile read = TextFileOf(file, bytes);
    check::FixedCaption caption =
        check::FixCaptionFile(file, read.text, lumenkitClasses, InScope(options_.scope));
    FixedFile fixed;
    fixed.fixes.made = std::move(caption.fixed);
    fixed.left = select_(check::CheckCaptionFile(file, caption.caption));
    if (options_.scope == FixScope::Safe && !fixed.left.empty()) {
        fixed.fixes.more =
            check::FixCaptionFile(file, caption.caption, lumenkitClasses, InScope(FixScope::All))
                .fixed.size();
    }
    const std::string mended = ToUtf8(caption.caption) + read.lineBreak;
    if (options_.diff) {
        fixed.output = difference::UnifiedDiff(file, bytes, mended);
    } else if (IsStandardInput(file)) {
        fixed.output = mended;
    } else if (!fixed.fixes.made.empty()) {
        forms::ReplaceKnownFile(file, {.known = bytes, .next = mended});
    }
    return fixed;
}

}  // namespace lumenkit::cli
