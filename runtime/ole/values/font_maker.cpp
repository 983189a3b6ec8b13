#include "runtime/ole/values/font_maker.h"

#include "frame/runtime_error.h"
#include "runtime/win32/wide_text.h"

namespace lumenkit::ole {

stored::FontRecord RecordOf(const host::Font& font) {
    return {.name = font.Name(),
            .size = FontSize(font.Size()).int64,
            .weight = font.Weight(),
            .charset = font.Charset(),
            .italic = font.Italic(),
            .underline = font.Underline(),
            .strikethrough = font.Strikethrough()};
}

std::shared_ptr<OleFont> NewOleFont(const stored::FontRecord& attributes) {
    std::wstring name = win32::ToWide(attributes.name);
    FONTDESC description = {};
    description.cbSizeofstruct = sizeof description;
    description.lpstrName = name.data();
    description.cySize.int64 = attributes.size;
    description.sWeight = attributes.weight;
    description.sCharset = attributes.charset;
    description.fItalic = attributes.italic ? TRUE : FALSE;
    description.fUnderline = attributes.underline ? TRUE : FALSE;
    description.fStrikethrough = attributes.strikethrough ? TRUE : FALSE;
    ComPtr<IFont> font;
    if (FAILED(OleCreateFontIndirect(&description, IID_PPV_ARGS(&font)))) {
        Raise(ErrorNumber::InvalidPropertyValue);
    }
    auto made = OleFont::Of(font.Get());
    made->Ask(description.cySize);
    return made;
}

std::shared_ptr<win32::Font> FontMaker::NewFont(TextView name, float points) {
    return NewOleFont({.name = Text(name), .size = FontSize(points).int64});
}

}  // namespace lumenkit::ole
