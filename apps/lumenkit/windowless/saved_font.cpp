#include "apps/lumenkit/windowless/saved_font.h"

namespace lumenkit::windowless {

host::FontRef SavedFont(const memory::Form& form, const forms::FontDescription& description) {
    auto font = form.NewFont(description.name, description.size);
    forms::SetStyle(*font, description);
    return font;
}

}  // namespace lumenkit::windowless
