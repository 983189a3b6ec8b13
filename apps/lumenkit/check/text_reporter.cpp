#include "apps/lumenkit/check/quote.h"
#include "apps/lumenkit/check/reporter.h"

namespace lumenkit::check {

namespace {

constexpr const char* bold = "\x1b[1m";
constexpr const char* red = "\x1b[31m";
constexpr const char* yellow = "\x1b[33m";
constexpr const char* dim = "\x1b[2m";
constexpr const char* plain = "\x1b[0m";

std::string Count(std::size_t count, const std::string& what) {
    return std::to_string(count) + ' ' + what + (count == 1 ? "" : "s");
}

std::string Colored(bool colored, const char* color, const std::string& text) {
    return colored ? color + text + plain : text;
}

std::string PlaceOf(const Finding& finding) {
    return Printable(finding.file) + ':' + std::to_string(finding.place.line) + ':' +
           std::to_string(finding.place.column) + ':';
}

std::string SubjectOf(const Finding& finding) {
    const bool hasBoth = !finding.control.empty() && !finding.property.empty();
    return Printable(finding.control + (hasBoth ? "." : "") + finding.property);
}

}  // namespace

void TextReporter::Report(const Finding& finding) {
    output_ << Colored(colors_.output, bold, PlaceOf(finding)) << ' ';
    if (const std::string subject = SubjectOf(finding); !subject.empty()) {
        output_ << subject;
        if (finding.isElsewhere && finding.offset) {
            output_ << ", offset " << *finding.offset;
        }
        output_ << ": ";
    }
    output_ << Colored(colors_.output, yellow, finding.message);
    if (!finding.suggestion.empty()) {
        output_ << "; did you mean \"" << Printable(finding.suggestion) << "\"?";
    }
    output_ << ' ' << Colored(colors_.output, dim, '[' + std::string(finding.rule) + ']') << '\n';
}

void TextReporter::Report(const Findings& findings) {
    for (const Finding& finding : findings) {
        Report(finding);
    }
    findingCount_ += findings.size();
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
    if (errorCount_ > 0) {
        output_ << ", " << Count(errorCount_, "error");
    }
    output_ << '\n';
}

}  // namespace lumenkit::check
