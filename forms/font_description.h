#pragma once

#include <cstdint>
#include <functional>

#include "frame/host/font.h"
#include "frame/text.h"

namespace lumenkit::forms {

/// A font as a form describes it, in the group `BeginProperty Font {…}`.
struct FontDescription {
    Text name = u"MS Sans Serif";
    float size = 8.25F;  ///< points
    std::int16_t charset = 0;
    std::int16_t weight = 400;
    bool underline = false;
    bool italic = false;
    bool strikethrough = false;

    friend bool operator==(const FontDescription&, const FontDescription&) = default;
};

/// Creates a font of the runtime that shows the form; never returns null.
using FontFactory = std::function<host::FontRef(const FontDescription&)>;

FontDescription Describe(const host::Font& font);

/// Gives a font everything of the description but its name and size.
void SetStyle(host::Font& font, const FontDescription& description);

}  // namespace lumenkit::forms
