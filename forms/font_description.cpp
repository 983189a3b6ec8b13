#include "forms/font_description.h"

namespace lumenkit::forms {

FontDescription Describe(const host::Font& font) {
    FontDescription description;
    description.name = font.Name();
    description.size = font.Size();
    description.charset = font.Charset();
    description.weight = font.Weight();
    description.underline = font.Underline();
    description.italic = font.Italic();
    description.strikethrough = font.Strikethrough();
    return description;
}

void SetStyle(host::Font& font, const FontDescription& description) {
    font.SetWeight(description.weight);
    font.SetCharset(description.charset);
    font.SetItalic(description.italic);
    font.SetUnderline(description.underline);
    font.SetStrikethrough(description.strikethrough);
}

}  // namespace lumenkit::forms
