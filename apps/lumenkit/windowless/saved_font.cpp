#include "apps/lumenkit/windowless/saved_font.h"

namespace lumenkit::windowless {

host::FontRef SavedFont(const memory::Form& form, const forms::FontDescription& description) {
    auto font = form.NewFont(description.name, description.size);
    font->SetWeight(description.weight);
    font->SetCharset(description.charset);
    font->SetItalic(description.italic);
    font->SetUnderline(description.underline);
    font->SetStrikethrough(description.strikethrough);
    return font;
}

}  // namespace lumenkit::windowless
