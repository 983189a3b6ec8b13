#include <cctype>

#include "apps/lumenkit/check/finding_text.h"
#include "apps/lumenkit/check/reporter.h"
#include "apps/lumenkit/check/review_path.h"
#include "apps/lumenkit/check/rules.h"
#include "forms/hexadecimal.h"

namespace lumenkit::check {

namespace {

using Json = nlohmann::ordered_json;

constexpr const char* schema = "https://json.schemastore.org/sarif-2.1.0.json";

// Names of files are URI references: other bytes than these are escaped.
std::string UriOf(const std::string& file) {
    constexpr std::string_view plain = "-._~/";
    std::string uri;
    for (const char letter : ReviewPath(file)) {
        const auto byte = static_cast<unsigned char>(letter);
        if (std::isalnum(byte) != 0 || plain.find(letter) != std::string_view::npos) {
            uri += letter;
        } else {
            uri += '%' + forms::Hexadecimal(byte, 2);
        }
    }
    const bool isAbsolute = uri.starts_with('/');
    return isAbsolute ? "file://" + uri : uri;
}

Json MessageJson(const std::string& text) {
    return {{"text", text}};
}

Json LocationOf(const std::string& file, forms::Position place) {
    Json physical = {{"artifactLocation", {{"uri", UriOf(file)}}}};
    if (place.line > 0) {
        physical["region"] = {{"startLine", place.line}, {"startColumn", place.column}};
    }
    return {{"physicalLocation", std::move(physical)}};
}

Json RulesJson() {
    Json all = Json::array();
    for (const Rule& rule : allRules) {
        all.push_back({{"id", rule.name},
                       {"shortDescription", MessageJson(std::string(rule.meaning))},
                       {"defaultConfiguration", {{"level", NameOf(rule.severity)}}}});
    }
    return all;
}

}  // namespace

void SarifReporter::Report(const Findings& findings) {
    for (const Finding& finding : findings) {
        results_.push_back({{"ruleId", finding.rule},
                            {"level", NameOf(SeverityOf(finding))},
                            {"message", MessageJson(WholeMessage(finding))},
                            {"locations", {LocationOf(finding.file, finding.place)}}});
    }
}

void SarifReporter::Report(const Note& note) {
    notifications_.push_back({{"level", "note"},
                              {"message", MessageJson(note.text)},
                              {"locations", {LocationOf(note.file, note.place)}}});
}

void SarifReporter::Report(const FileError& error) {
    failed_ = true;
    notifications_.push_back({{"level", "error"},
                              {"message", MessageJson(error.description)},
                              {"locations", {LocationOf(error.file, error.place)}}});
}

void SarifReporter::Finish(std::size_t /*files*/) {
    const Json driver = {{"name", "lumenkit check"}, {"version", version_}, {"rules", RulesJson()}};
    const Json invocation = {{"executionSuccessful", !failed_},
                             {"toolExecutionNotifications", notifications_}};
    const Json run = {{"tool", {{"driver", driver}}},
                      {"columnKind", "utf16CodeUnits"},
                      {"invocations", {invocation}},
                      {"results", results_}};
    const Json log = {{"$schema", schema}, {"version", "2.1.0"}, {"runs", {run}}};
    output_ << log.dump(1, ' ', false, Json::error_handler_t::replace) << '\n';
}

}  // namespace lumenkit::check
