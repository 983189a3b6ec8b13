#include "apps/lumenkit/check/reporter.h"
#include "apps/lumenkit/check/rules.h"

namespace lumenkit::check {

namespace {

using Json = nlohmann::ordered_json;

constexpr int reportVersion = 1;  // docs/json.md says when it changes

Json ToJson(const Finding& finding) {
    Json json = {{"rule", finding.rule},
                 {"severity", NameOf(SeverityOf(finding))},
                 {"file", finding.file},
                 {"line", finding.place.line},
                 {"column", finding.place.column}};
    if (!finding.control.empty()) {
        json["control"] = finding.control;
    }
    if (!finding.property.empty()) {
        json["property"] = finding.property;
    }
    if (finding.offset) {
        json["offset"] = *finding.offset;
    }
    json["message"] = finding.message;
    if (!finding.suggestion.empty()) {
        json["suggestion"] = finding.suggestion;
    }
    return json;
}

Json ToJson(const FileError& error) {
    Json json = {{"file", error.file}};
    if (error.place.line > 0) {
        json["line"] = error.place.line;
        json["column"] = error.place.column;
    }
    json["message"] = error.description;
    return json;
}

}  // namespace

void JsonReporter::Report(const Note& note) {
    notes_.push_back({{"file", note.file},
                      {"line", note.place.line},
                      {"column", note.place.column},
                      {"message", note.text}});
}

void JsonReporter::Report(const Findings& findings) {
    for (const Finding& finding : findings) {
        findings_.push_back(ToJson(finding));
    }
}

void JsonReporter::Report(const Fixes& fixes) {
    for (const Finding& finding : fixes.made) {
        fixed_.push_back(ToJson(finding));
    }
}

void JsonReporter::Report(const FileError& error) {
    errors_.push_back(ToJson(error));
}

void JsonReporter::Finish(std::size_t files) {
    Json report = {
        {"version", reportVersion}, {"files", files}, {"findings", findings_}, {"errors", errors_}};
    if (showsFixes_) {
        report["fixed"] = fixed_;
    }
    if (!notes_.empty()) {
        report["notes"] = notes_;
    }
    // A file name may contain bytes that are not UTF-8: they are replaced.
    output_ << report.dump(-1, ' ', false, Json::error_handler_t::replace) << '\n';
}

}  // namespace lumenkit::check
