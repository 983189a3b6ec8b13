// The requests, one function each; docs/drive.md describes them.
#pragma once

#include <optional>

#include "apps/lumenkit/drive/json.h"
#include "apps/lumenkit/drive/request.h"
#include "apps/lumenkit/drive/scripted_container.h"

namespace lumenkit::cli::requests {

/// What a request comes to; nothing where there is no result.
using Result = std::optional<Json>;

// The controls' life and looks (life_requests.cpp).
Result New(ScriptedContainer& container, const Fields& request);
Result Save(ScriptedContainer& container, const Fields& request);
Result Resize(ScriptedContainer& container, const Fields& request);
Result Apply(ScriptedContainer& container, const Fields& request);
Result Draw(ScriptedContainer& container, const Fields& request);
Result State(ScriptedContainer& container, const Fields& request);

// Their members (member_requests.cpp).
Result Get(ScriptedContainer& container, const Fields& request);
Result Let(ScriptedContainer& container, const Fields& request);
Result Call(ScriptedContainer& container, const Fields& request);

// The user (user_requests.cpp); the result says whether what is meant could be used.
Result Type(ScriptedContainer& container, const Fields& request);
Result Select(ScriptedContainer& container, const Fields& request);
Result Paste(ScriptedContainer& container, const Fields& request);
Result Click(ScriptedContainer& container, const Fields& request);
Result DblClick(ScriptedContainer& container, const Fields& request);
Result Mouse(ScriptedContainer& container, const Fields& request);
Result Scroll(ScriptedContainer& container, const Fields& request);
Result Focus(ScriptedContainer& container, const Fields& request);

// Form files (form_requests.cpp).
Result LoadForm(ScriptedContainer& container, const Fields& request);
Result WriteForm(ScriptedContainer& container, const Fields& request);

// The container (container_requests.cpp).
Result SetAmbient(ScriptedContainer& container, const Fields& request);
Result Allow(ScriptedContainer& container, const Fields& request);
Result Quit(ScriptedContainer& container, const Fields& request);

}  // namespace lumenkit::cli::requests
