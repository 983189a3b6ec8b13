#include "apps/lumenkit/drive/requests.h"
#include "frame/host/font.h"
#include "frame/utf8.h"

namespace lumenkit::cli::requests {

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

Result Quit(ScriptedContainer& container, const Fields& /*request*/) {
    container.Quit();
    return std::nullopt;
}

}  // namespace lumenkit::cli::requests
