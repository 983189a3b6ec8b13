#include "apps/lumenkit/check/baseline.h"

#include <string>
#include <utility>

#include "forms/form_error.h"
#include "forms/plain_file.h"
#include "forms/replace_file.h"

namespace lumenkit::check {

namespace {

namespace fs = std::filesystem;
using Json = nlohmann::ordered_json;

constexpr int version = 1;

}  // namespace

Baseline::Baseline(const fs::path& file) : file_(fs::absolute(file).lexically_normal()) {}

Baseline::Key Baseline::KeyOf(const Finding& finding) const {
    const fs::path form = fs::absolute(finding.file).lexically_normal();
    return {form.lexically_relative(file_.parent_path()).generic_string(),
            std::string(finding.rule), finding.control, finding.property, finding.message};
}

void Baseline::Add(const Findings& findings) {
    for (const Finding& finding : findings) {
        ++counts_[KeyOf(finding)];
    }
}

void Baseline::Apply(Findings& findings) const {
    std::map<Key, std::size_t> met;
    std::erase_if(findings, [&](const Finding& finding) {
        Key key = KeyOf(finding);
        const auto known = counts_.find(key);
        return known != counts_.end() && ++met[std::move(key)] <= known->second;
    });
}

Json Baseline::ToJson() const {
    Json findings = Json::array();
    for (const auto& [key, count] : counts_) {
        const auto& [file, rule, control, property, message] = key;
        findings.push_back({{"file", file},
                            {"rule", rule},
                            {"control", control},
                            {"property", property},
                            {"message", message},
                            {"count", count}});
    }
    return {{"version", version}, {"findings", std::move(findings)}};
}

void Baseline::Take(const Json& json) {
    if (json.at("version") != version) {
        throw BadBaseline(file_.string() + ": is a baseline of another version");
    }
    for (const Json& known : json.at("findings")) {
        const auto text = [&](const char* key) { return known.at(key).get<std::string>(); };
        counts_[{text("file"), text("rule"), text("control"), text("property"), text("message")}] =
            known.at("count").get<std::size_t>();
    }
}

// A forgotten name makes the next argument, such as a form, the name of the baseline.
void Baseline::RefuseOtherFile() const {
    std::error_code unknown;
    if (fs::is_regular_file(file_, unknown)) {
        Baseline(file_).Read();
    }
}

void Baseline::Read() {
    std::string bytes;
    try {
        bytes = forms::ReadPlainFile(file_);
    } catch (const forms::FormError& error) {
        throw BadBaseline(file_.string() + ": " + error.Description());
    }
    try {
        Take(Json::parse(bytes));
    } catch (const Json::exception&) {
        throw BadBaseline(file_.string() + ": is no baseline of lumenkit check");
    }
}

void Baseline::Write() const {
    RefuseOtherFile();
    try {
        forms::ReplaceFile(file_,
                           ToJson().dump(1, ' ', false, Json::error_handler_t::replace) + '\n');
    } catch (const forms::FormError& error) {
        throw BadBaseline(file_.string() + ": " + error.Description());
    }
}

}  // namespace lumenkit::check
