// Known findings of a project, so that only new ones are reported.
#pragma once

#include <filesystem>
#include <map>
#include <stdexcept>
#include <string>
#include <tuple>

#include <nlohmann/json.hpp>

#include "apps/lumenkit/check/finding.h"

namespace lumenkit::check {

class BadBaseline : public std::runtime_error {
 public:
    using std::runtime_error::runtime_error;
};

/// Counts findings by file, rule, control, property and message. Lines and columns do not count, so
/// that other edits of a form leave its findings known.
class Baseline {
 public:
    /// `file` is where the baseline is kept; names of forms are stored relative to its folder.
    explicit Baseline(const std::filesystem::path& file);

    /// Throws BadBaseline if the file cannot be read or is no baseline.
    void Read();
    /// Throws BadBaseline if the file cannot be written, is read-only or is another file than a
    /// baseline; then the old file stays.
    void Write() const;

    void Add(const Findings& findings);
    /// Removes the known findings of a file, each as often as it was counted.
    void Apply(Findings& findings) const;

 private:
    using Key = std::tuple<std::string, std::string, std::string, std::string, std::string>;

    void RefuseOtherFile() const;
    Key KeyOf(const Finding& finding) const;
    nlohmann::ordered_json ToJson() const;
    void Take(const nlohmann::ordered_json& json);

    std::filesystem::path file_;
    std::map<Key, std::size_t> counts_;
};

}  // namespace lumenkit::check
