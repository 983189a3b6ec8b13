#include "apps/lumenkit/drive/session.h"

#include <map>
#include <utility>

#include "apps/lumenkit/drive/json.h"
#include "apps/lumenkit/drive/request.h"
#include "apps/lumenkit/drive/requests.h"
#include "frame/runtime_error.h"
#include "frame/utf8.h"

namespace lumenkit::cli {

namespace {

using Handler = requests::Result (*)(ScriptedContainer& container, const Fields& request);

Handler HandlerFor(const std::string& name) {
    static const std::map<std::string, Handler, std::less<>> handlers = {
        {"allow", requests::Allow},     {"ambient", requests::SetAmbient},
        {"apply", requests::Apply},     {"call", requests::Call},
        {"click", requests::Click},     {"dblclick", requests::DblClick},
        {"draw", requests::Draw},       {"drop", requests::Drop},
        {"focus", requests::Focus},     {"form", requests::LoadForm},
        {"get", requests::Get},         {"let", requests::Let},
        {"mouse", requests::Mouse},     {"new", requests::New},
        {"paste", requests::Paste},     {"quit", requests::Quit},
        {"resize", requests::Resize},   {"save", requests::Save},
        {"scroll", requests::Scroll},   {"select", requests::Select},
        {"state", requests::State},     {"type", requests::Type},
        {"version", requests::Version}, {"write", requests::WriteForm},
    };
    const auto handler = handlers.find(name);
    if (handler == handlers.end()) {
        throw BadRequest("there is no request \"" + name + '"');
    }
    return handler->second;
}

Json Success(ScriptedContainer& container, std::string_view line) {
    const RequestJson json = ParseRequest(line);
    const Fields request(json, "the request");
    Json answer = {{"ok", true}};
    requests::Result result = HandlerFor(request.String("do"))(container, request);
    if (result.value) {
        answer["value"] = std::move(*result.value);
    }
    if (!result.warnings.empty()) {
        answer["warnings"] = std::move(result.warnings);
    }
    return answer;
}

Json Failure(Json error) {
    return {{"ok", false}, {"error", std::move(error)}};
}

Json AnswerTo(ScriptedContainer& container, std::string_view line) {
    try {
        return Success(container, line);
    } catch (const BadRequest& error) {
        return Failure({{"text", error.what()}});
    } catch (...) {
        const RuntimeError error = CurrentError();
        return Failure({{"number", error.Number()}, {"text", ToUtf8(error.Description())}});
    }
}

}  // namespace

std::string DriveSession::Serve(std::string_view line) {
    const memory::Log& log = container_.GetForm().GetLog();
    container_.GetForm().GetLog().Clear();
    Json answer = AnswerTo(container_, line);
    answer["log"] = ToJson(log);
    return answer.dump(-1, ' ', false, Json::error_handler_t::replace);
}

}  // namespace lumenkit::cli
