// Writes findings for a person or a program.
#pragma once

#include <cstddef>
#include <ostream>
#include <string>
#include <utility>

#include <nlohmann/json.hpp>

#include "apps/lumenkit/check/finding.h"

namespace lumenkit::check {

/// A file that could not be checked.
struct FileError {
    std::string file;
    forms::Position place;    ///< line 0 if unknown
    std::string description;  ///< without the place
    std::string text;         ///< complete: "file:line:column: description"
};

/// A remark about how a file was read, which is no finding.
struct Note {
    std::string file;
    forms::Position place;
    std::string text;  ///< without the place
};

/// The findings that were mended in a file.
struct Fixes {
    Findings made;
    std::size_t more = 0;  ///< how many of the others --fix=all would mend
};

class Reporter {
 public:
    virtual ~Reporter() = default;

    virtual void Report(const Note& note) = 0;
    virtual void Report(const Findings& findings) = 0;
    virtual void Report(const FileError& error) = 0;
    /// Does nothing in a format that has no place for them.
    virtual void Report(const Fixes& /*fixes*/) {}
    /// Called at the end. `files` is the number of checked files.
    virtual void Finish(std::size_t files) = 0;
};

/// The streams that a reporter may colour.
struct ColoredStreams {
    bool output = false;
    bool errors = false;
};

/// Writes one line per finding, as it arrives, and a summary.
///
///     order.frm:9:32: warning: VLabel1.Caption: unknown command "bld"; did you mean "b"?
///     [unknown-command]
class TextReporter final : public Reporter {
 public:
    /// Errors go to a separate stream. Both streams must outlive the reporter.
    TextReporter(std::ostream& output, std::ostream& errors, ColoredStreams colors)
        : output_(output), errors_(errors), colors_(colors) {}

    void Report(const Note& note) override;
    void Report(const Findings& findings) override;
    void Report(const FileError& error) override;
    void Report(const Fixes& fixes) override;
    void Finish(std::size_t files) override;

 private:
    void Report(const Finding& finding);

    std::ostream& output_;
    std::ostream& errors_;
    ColoredStreams colors_;
    std::size_t findingCount_ = 0;
    std::size_t fixedCount_ = 0;
    std::size_t moreCount_ = 0;
    std::size_t errorCount_ = 0;
};

/// Writes errors and notes as TextReporter does, and a summary of what would be mended.
class DiffReporter final : public Reporter {
 public:
    /// The stream must outlive the reporter.
    DiffReporter(std::ostream& errors, bool isColored)
        : errors_(errors), text_(errors, errors, {.output = isColored, .errors = isColored}) {}

    void Report(const Note& note) override { text_.Report(note); }
    void Report(const Findings& /*findings*/) override {}
    void Report(const FileError& error) override { text_.Report(error); }
    void Report(const Fixes& fixes) override;
    void Finish(std::size_t files) override;

 private:
    std::ostream& errors_;
    TextReporter text_;
    std::size_t fixedCount_ = 0;
    std::size_t moreCount_ = 0;
};

/// Writes one JSON object in one line at the end:
/// {"files":N,"findings":[...],"errors":[...]}, and "notes" if there are some
class JsonReporter final : public Reporter {
 public:
    /// With `showsFixes`, the object has a key "fixed". The stream must outlive the reporter.
    explicit JsonReporter(std::ostream& output, bool showsFixes = false)
        : output_(output), showsFixes_(showsFixes) {}

    void Report(const Note& note) override;
    void Report(const Findings& findings) override;
    void Report(const FileError& error) override;
    void Report(const Fixes& fixes) override;
    void Finish(std::size_t files) override;

 private:
    std::ostream& output_;
    bool showsFixes_;
    nlohmann::ordered_json fixed_ = nlohmann::ordered_json::array();
    nlohmann::ordered_json notes_ = nlohmann::ordered_json::array();
    nlohmann::ordered_json findings_ = nlohmann::ordered_json::array();
    nlohmann::ordered_json errors_ = nlohmann::ordered_json::array();
};

/// Writes one log of the Static Analysis Results Interchange Format (SARIF) 2.1.0 at the end.
class SarifReporter final : public Reporter {
 public:
    /// `version` is the program's. The stream must outlive the reporter.
    SarifReporter(std::ostream& output, std::string version)
        : output_(output), version_(std::move(version)) {}

    using Reporter::Report;
    void Report(const Note& note) override;
    void Report(const Findings& findings) override;
    void Report(const FileError& error) override;
    void Finish(std::size_t files) override;

 private:
    std::ostream& output_;
    std::string version_;
    nlohmann::ordered_json results_ = nlohmann::ordered_json::array();
    nlohmann::ordered_json notifications_ = nlohmann::ordered_json::array();
    bool failed_ = false;
};

/// Writes workflow commands of GitHub, which become annotations of the files in a review.
class GithubReporter final : public Reporter {
 public:
    /// The stream must outlive the reporter.
    explicit GithubReporter(std::ostream& output) : output_(output) {}

    using Reporter::Report;
    void Report(const Note& note) override;
    void Report(const Findings& findings) override;
    void Report(const FileError& error) override;
    void Finish(std::size_t files) override;

 private:
    std::ostream& output_;
};

}  // namespace lumenkit::check
