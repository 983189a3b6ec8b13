// The request handlers, one function per request. docs/drive.md describes the requests.
#pragma once

#include <optional>
#include <utility>

#include "apps/lumenkit/drive/json.h"
#include "apps/lumenkit/drive/request.h"
#include "apps/lumenkit/drive/scripted_container.h"

namespace lumenkit::cli::requests {

/// What an answer contains besides the log.
struct Result {
    Result(std::nullopt_t /*none*/) {}  // NOLINT(google-explicit-constructor): no value
    Result(bool done) : value(done) {}  // NOLINT(google-explicit-constructor)
    Result(Json result, Json placed = Json::array())  // NOLINT(google-explicit-constructor)
        : value(std::move(result)), warnings(std::move(placed)) {}

    std::optional<Json> value;      ///< empty if the request has no result
    Json warnings = Json::array();  ///< about the form that was loaded
};

// Creation, end, saving, size and drawing of controls (life_requests.cpp).
Result New(ScriptedContainer& container, const Fields& request);
Result Drop(ScriptedContainer& container, const Fields& request);
Result Save(ScriptedContainer& container, const Fields& request);
Result Resize(ScriptedContainer& container, const Fields& request);
Result Apply(ScriptedContainer& container, const Fields& request);
Result Draw(ScriptedContainer& container, const Fields& request);
Result State(ScriptedContainer& container, const Fields& request);

// Members of controls (member_requests.cpp).
Result Get(ScriptedContainer& container, const Fields& request);
Result Let(ScriptedContainer& container, const Fields& request);
Result Call(ScriptedContainer& container, const Fields& request);

// Actions of the user (user_requests.cpp). The result says whether the target could be used.
Result Type(ScriptedContainer& container, const Fields& request);
Result Select(ScriptedContainer& container, const Fields& request);
Result Paste(ScriptedContainer& container, const Fields& request);
Result Click(ScriptedContainer& container, const Fields& request);
Result DblClick(ScriptedContainer& container, const Fields& request);
Result Mouse(ScriptedContainer& container, const Fields& request);
Result Scroll(ScriptedContainer& container, const Fields& request);
Result Focus(ScriptedContainer& container, const Fields& request);

// Form files and the container (container_requests.cpp).
Result LoadForm(ScriptedContainer& container, const Fields& request);
Result WriteForm(ScriptedContainer& container, const Fields& request);
Result SetAmbient(ScriptedContainer& container, const Fields& request);
Result Allow(ScriptedContainer& container, const Fields& request);
Result Version(ScriptedContainer& container, const Fields& request);
Result Quit(ScriptedContainer& container, const Fields& request);

}  // namespace lumenkit::cli::requests
