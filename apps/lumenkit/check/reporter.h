// How findings reach the person or the program that asked for them.
#pragma once

#include <cstddef>
#include <ostream>
#include <string>

#include <nlohmann/json.hpp>

#include "apps/lumenkit/check/finding.h"

namespace lumenkit::check {

/// A file that could not be checked.
struct FileError {
    std::string file;
    forms::Position place;    ///< line 0 where no place is known
    std::string description;  ///< without the place
    std::string text;         ///< all in one: "file:line:column: description"
};

class Reporter {
 public:
    virtual ~Reporter() = default;

    virtual void Report(const Findings& findings) = 0;
    virtual void Report(const FileError& error) = 0;
    /// At the end; `files` is how many could be checked.
    virtual void Finish(std::size_t files) = 0;
};

/// Which of its streams a reporter may colour.
struct Colors {
    bool output = false;
    bool errors = false;
};

/// One line a finding, as it is found, and a summary.
///
///     order.frm:9:32: VLabel1.Caption: unknown command "bld"; did you mean "b"? [unknown-command]
class TextReporter final : public Reporter {
 public:
    /// Errors have a stream of their own. Both must outlive the reporter.
    TextReporter(std::ostream& output, std::ostream& errors, Colors colors)
        : output_(output), errors_(errors), colors_(colors) {}

    void Report(const Findings& findings) override;
    void Report(const FileError& error) override;
    void Finish(std::size_t files) override;

 private:
    void Report(const Finding& finding);

    std::ostream& output_;
    std::ostream& errors_;
    Colors colors_;
    std::size_t findingCount_ = 0;
    std::size_t errorCount_ = 0;
};

/// One JSON object, in one line, at the end:
/// {"files":N,"findings":[...],"errors":[...]}
class JsonReporter final : public Reporter {
 public:
    /// The stream must outlive the reporter.
    explicit JsonReporter(std::ostream& output) : output_(output) {}

    void Report(const Findings& findings) override;
    void Report(const FileError& error) override;
    void Finish(std::size_t files) override;

 private:
    std::ostream& output_;
    nlohmann::ordered_json findings_ = nlohmann::ordered_json::array();
    nlohmann::ordered_json errors_ = nlohmann::ordered_json::array();
};

}  // namespace lumenkit::check
