#include "tests/apps/drive/drive_check.h"

#include <exception>

#include <nlohmann/json.hpp>

#include "apps/lumenkit/drive/session.h"
#include "project/lumenkit_classes.h"
#include "tests/apps/drive/forms_in_memory.h"

namespace lumenkit::testing {

namespace {

using Json = nlohmann::json;

bool IsError(const Json& error) {
    return error.is_object() && error.value("text", Json()).is_string() &&
           (!error.contains("number") || error["number"].is_number_integer());
}

std::string AnswerFault(const std::string& line) {
    if (line.find('\n') != std::string::npos) {
        return "an answer of several lines: " + line;
    }
    const Json answer = Json::parse(line, nullptr, false);
    if (!answer.is_object() || !answer.value("ok", Json()).is_boolean() ||
        !answer.value("log", Json()).is_array()) {
        return "not an answer: " + line;
    }
    if (!answer["ok"].get<bool>() && !IsError(answer.value("error", Json()))) {
        return "an error that says nothing: " + line;
    }
    return {};
}

class Session {
 public:
    /// Serves one request. Returns the fault of the answer; empty if there is none.
    std::string Fault(std::string_view request) {
        try {
            answer_ = session_.Serve(request);
            return AnswerFault(answer_);
        } catch (const std::exception& error) {
            return std::string("the session ends: ") + error.what();
        }
    }
    bool HasQuit() const { return session_.HasQuit(); }
    bool Succeeded() const { return Json::parse(answer_)["ok"].get<bool>(); }

 private:
    cli::DriveSession session_{lumenkitClasses};
    std::string answer_;
};

std::string LastFault(Session& session) {
    constexpr const char* last = R"({"do":"new","class":"VMemo","id":"the last one"})";
    const std::string fault = session.Fault(last);
    return fault.empty() && !session.Succeeded() ? "the session does not serve on" : fault;
}

}  // namespace

std::string DriveFault(std::string_view requests) {
    RestoreForms();
    Session session;
    while (!requests.empty() && !session.HasQuit()) {
        const std::size_t end = requests.find('\n');
        const std::string_view request = requests.substr(0, end);
        requests.remove_prefix(end == std::string_view::npos ? requests.size() : end + 1);
        const std::string fault = session.Fault(request);
        if (!fault.empty()) {
            return fault + "\nto " + std::string(request);
        }
    }
    return LastFault(session);
}

}  // namespace lumenkit::testing
