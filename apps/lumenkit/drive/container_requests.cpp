#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "apps/lumenkit/drive/loaded_form.h"
#include "apps/lumenkit/drive/requests.h"
#include "forms/file.h"
#include "forms/form_error.h"
#include "forms/known_code_pages.h"
#include "forms/path_names.h"
#include "frame/host/font.h"
#include "frame/utf8.h"

namespace lumenkit::cli::requests {

namespace {

constexpr int protocolVersion = 1;  // docs/json.md says when it changes

std::filesystem::path FileOf(const Fields& request) {
    return forms::PathOf(request.String("file"));
}

template <typename Act>
auto WithForms(Act act) {
    try {
        return act();
    } catch (const forms::FormError& error) {
        throw BadRequest(error.what());
    }
}

int CodePageOf(const Fields& request) {
    if (!request.Has("codePage")) {
        return forms::guessedCodePage;
    }
    if (!request.At("codePage").is_string()) {
        return request.Whole<std::int32_t>("codePage");
    }
    const std::string name = request.String("codePage");
    if (const std::optional<int> page = forms::CodePageNamed(name)) {
        return *page;
    }
    throw BadRequest("there is no code page \"" + name + '"');
}

// The guessed code page and the warnings of a form.
Json WarningsOf(const forms::Document& document) {
    const auto placed = [](forms::Position place, const std::string& text) {
        return Json{{"line", place.line}, {"column", place.column}, {"text", text}};
    };
    Json warnings = Json::array();
    if (const std::optional<forms::CodePageGuess>& guess = document.Guess()) {
        warnings.push_back(
            placed(guess->place, TextOf(*guess) + "; \"codePage\" names another one"));
    }
    for (const forms::Warning& warning : document.Warnings()) {
        warnings.push_back(placed(warning.place, warning.text));
    }
    return warnings;
}

}  // namespace

Result LoadForm(ScriptedContainer& container, const Fields& request) {
    if (container.Loaded() != nullptr) {
        throw BadRequest("there is a form already");
    }
    const bool userMode = IsUserMode(request);
    const int codePage = CodePageOf(request);
    memory::Form& form = container.GetForm();
    auto loaded = std::make_unique<LoadedForm>(
        WithForms([&] { return forms::Load(FileOf(request), codePage); }), form.Classes());
    for (const std::string& id : loaded->Ids()) {
        container.RequireFree(id);
    }
    std::vector<LoadedForm::Living> living = loaded->Start(form, userMode);
    Json ids = Json::array();
    for (LoadedForm::Living& one : living) {
        container.Add(one.id, std::move(one.control));
        ids.push_back(one.id);
    }
    Json warnings = WarningsOf(loaded->Document());
    container.SetLoaded(std::move(loaded));
    return {std::move(ids), std::move(warnings)};
}

Result WriteForm(ScriptedContainer& container, const Fields& request) {
    LoadedForm* loaded = container.Loaded();
    if (loaded == nullptr) {
        throw BadRequest("there is no form to write");
    }
    const std::filesystem::path file = FileOf(request);
    loaded->Update();
    WithForms([&] { forms::Save(loaded->Document(), file); });
    return std::nullopt;
}

Result SetAmbient(ScriptedContainer& container, const Fields& request) {
    memory::Form& form = container.GetForm();
    const Color color = request.Has("BackColor") ? ToColor(ValueOf(request.At("BackColor"), form))
                                                 : form.AmbientBackColor();
    if (request.Has("Font")) {
        form.AmbientFont() = *FontOf(request.At("Font"), form);
    }
    form.SetAmbientBackColor(color);
    return std::nullopt;
}

Result Allow(ScriptedContainer& container, const Fields& request) {
    container.Control(request.String("id"))
        .Site()
        .AllowChange(FromUtf8(request.String("name")), request.Boolean("value"));
    return std::nullopt;
}

Result Version(ScriptedContainer& /*container*/, const Fields& /*request*/) {
    return Json{{"version", protocolVersion}};
}

Result Quit(ScriptedContainer& container, const Fields& /*request*/) {
    container.Quit();
    return std::nullopt;
}

}  // namespace lumenkit::cli::requests
