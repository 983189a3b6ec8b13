#include <array>

#include "apps/command_line/spelling/printable.h"
#include "apps/command_line/spelling/suggestion.h"
#include "apps/lumenkit/check/finding_text.h"
#include "apps/lumenkit/check/reporter.h"
#include "apps/lumenkit/check/rules.h"

namespace lumenkit::check {

namespace {

constexpr const char* bold = "\x1b[1m";
constexpr const char* green = "\x1b[32m";
constexpr const char* red = "\x1b[31m";
constexpr const char* yellow = "\x1b[33m";
constexpr const char* cyan = "\x1b[36m";
constexpr const char* dim = "\x1b[2m";
constexpr const char* plain = "\x1b[0m";

std::string Count(std::size_t count, const std::string& what) {
    return std::to_string(count) + ' ' + what + (count == 1 ? "" : "s");
}

std::string Colored(bool colored, const char* color, const std::string& text) {
    return colored ? color + text + plain : text;
}

const char* ColorOf(Severity severity) {
    constexpr std::array<const char*, 3> colors = {cyan, yellow, red};
    return colors.at(static_cast<std::size_t>(severity));
}

std::string PlaceOf(const Finding& finding) {
    return Printable(finding.file) + ':' + std::to_string(finding.place.line) + ':' +
           std::to_string(finding.place.column) + ':';
}

// A finding without its severity and without a suggestion.
std::string MessageOf(const Finding& finding) {
    std::string text;
    if (const std::string subject = Printable(SubjectOf(finding)); !subject.empty()) {
        text = subject;
        if (finding.isElsewhere && finding.offset) {
            text += ", offset " + std::to_string(*finding.offset);
        }
        text += ": ";
    }
    return text + finding.message;
}

std::string RuleOf(const Finding& finding) {
    return '[' + std::string(finding.rule) + ']';
}

// "3 fixed (2 more with --fix=all)"
std::string Fixed(const std::string& fixed, std::size_t more) {
    return fixed + (more == 0 ? "" : " (" + std::to_string(more) + " more with --fix=all)");
}

}  // namespace

void TextReporter::Report(const Finding& finding) {
    const Severity severity = SeverityOf(finding);
    output_ << Colored(colors_.output, bold, PlaceOf(finding)) << ' '
            << Colored(colors_.output, ColorOf(severity), std::string(NameOf(severity)) + ':')
            << ' ' << MessageOf(finding) << DidYouMean(Printable(finding.suggestion)) << ' '
            << Colored(colors_.output, dim, RuleOf(finding)) << '\n';
}

void TextReporter::Report(const Findings& findings) {
    for (const Finding& finding : findings) {
        Report(finding);
    }
    findingCount_ += findings.size();
    output_.flush();
}

void TextReporter::Report(const Fixes& fixes) {
    for (const Finding& finding : fixes.made) {
        output_ << Colored(colors_.output, bold, PlaceOf(finding)) << ' '
                << Colored(colors_.output, green, "fixed:") << ' ' << MessageOf(finding) << ' '
                << Colored(colors_.output, dim, RuleOf(finding)) << '\n';
    }
    fixedCount_ += fixes.made.size();
    moreCount_ += fixes.more;
    output_.flush();
}

void TextReporter::Report(const Note& note) {
    errors_ << "lumenkit: note: " << Printable(note.file) << ':' << note.place.line << ':'
            << note.place.column << ": " << note.text << '\n';
}

void TextReporter::Report(const FileError& error) {
    errors_ << Colored(colors_.errors, red, "lumenkit: " + Printable(error.text)) << '\n';
    ++errorCount_;
}

void TextReporter::Finish(std::size_t files) {
    output_ << Count(files, "file") << " checked: " << Count(findingCount_, "finding");
    if (fixedCount_ + moreCount_ > 0) {
        output_ << ", " << Fixed(std::to_string(fixedCount_) + " fixed", moreCount_);
    }
    if (errorCount_ > 0) {
        output_ << ", " << Count(errorCount_, "error");
    }
    output_ << '\n';
}

void DiffReporter::Report(const Fixes& fixes) {
    fixedCount_ += fixes.made.size();
    moreCount_ += fixes.more;
}

void DiffReporter::Finish(std::size_t files) {
    errors_ << Count(files, "file")
            << " checked: " << Fixed(Count(fixedCount_, "finding") + " would be fixed", moreCount_)
            << '\n';
}

}  // namespace lumenkit::check
