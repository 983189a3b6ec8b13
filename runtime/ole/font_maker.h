#pragma once

#include "runtime/ole/ole_font.h"

namespace lumenkit::ole {

/// All attributes of a font, as plain data.
struct FontAttributes {
    Text name;
    CY size = {};
    std::int16_t weight = FW_NORMAL;
    std::int16_t charset = ANSI_CHARSET;
    bool italic = false;
    bool underline = false;
    bool strikethrough = false;
};

FontAttributes AttributesOf(const host::Font& font);

/// A standard font object of its own. Raises 380 for attributes that the platform refuses.
std::shared_ptr<OleFont> NewOleFont(const FontAttributes& attributes);

class FontMaker final : public win32::FontMaker {
 public:
    std::shared_ptr<win32::Font> NewFont(TextView name, float points) override;
};

}  // namespace lumenkit::ole
