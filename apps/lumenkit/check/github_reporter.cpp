#include <string_view>

#include "apps/lumenkit/check/finding_text.h"
#include "apps/lumenkit/check/reporter.h"
#include "apps/lumenkit/check/review_path.h"
#include "apps/lumenkit/check/rules.h"
#include "forms/hexadecimal.h"

namespace lumenkit::check {

namespace {

// A command is one line. Its parameters are separated by commas and end at two colons.
std::string Escaped(std::string_view text, std::string_view special) {
    std::string escaped;
    for (const char letter : text) {
        const bool isControl = (letter >= 0 && letter < ' ') || letter == '\x7f';
        if (!isControl && special.find(letter) == std::string_view::npos) {
            escaped += letter;
        } else {
            const auto byte = static_cast<unsigned char>(letter);
            escaped += '%' + forms::Hexadecimal(byte, 2);
        }
    }
    return escaped;
}

std::string EscapedMessage(std::string_view text) {
    return Escaped(text, "%");
}

std::string EscapedParameter(std::string_view text) {
    return Escaped(text, "%:,");
}

std::string Place(const std::string& file, forms::Position place) {
    std::string parameters = " file=" + EscapedParameter(ReviewPath(file));
    if (place.line > 0) {
        parameters +=
            ",line=" + std::to_string(place.line) + ",col=" + std::to_string(place.column);
    }
    return parameters;
}

// The names of GitHub's commands.
std::string_view CommandFor(Severity severity) {
    return severity == Severity::Note ? "notice" : NameOf(severity);
}

}  // namespace

void GithubReporter::Report(const Findings& findings) {
    for (const Finding& finding : findings) {
        output_ << "::" << CommandFor(SeverityOf(finding)) << Place(finding.file, finding.place)
                << ",title=" << EscapedParameter(finding.rule)
                << "::" << EscapedMessage(WholeMessage(finding)) << '\n';
    }
}

void GithubReporter::Report(const Note& note) {
    output_ << "::notice" << Place(note.file, note.place) << "::" << EscapedMessage(note.text)
            << '\n';
}

void GithubReporter::Report(const FileError& error) {
    output_ << "::error" << Place(error.file, error.place)
            << "::" << EscapedMessage(error.description) << '\n';
}

void GithubReporter::Finish(std::size_t /*files*/) {}

}  // namespace lumenkit::check
