#include "runtime/ole/control/site_ambient.h"

#include "runtime/ole/values/font_maker.h"

namespace lumenkit::ole {

namespace {

constexpr TextView defaultFontName = u"MS Sans Serif";
constexpr float defaultFontSize = 8.25F;

// Returns the ambient property as `convert` converts it, or nothing if it cannot be converted.
template <typename Convert>
auto AmbientAs(const ClientSite& site, DISPID property, Convert&& convert)
    -> std::optional<decltype(convert(Value()))> {
    const std::optional<Value> value = site.Ambient(property);
    if (!value) {
        return std::nullopt;
    }
    try {
        return convert(*value);
    } catch (...) {
        return std::nullopt;
    }
}

}  // namespace

bool SiteAmbient::UserMode() const {
    return AmbientAs(site_, DISPID_AMBIENT_USERMODE, ToBoolean).value_or(true);
}

host::FontRef SiteAmbient::AmbientFont() const {
    const auto copied = AmbientAs(site_, DISPID_AMBIENT_FONT, [](const Value& value) {
        const host::FontRef font = host::ToFont(value);
        return font == nullptr ? nullptr : host::FontRef(NewOleFont(RecordOf(*font)));
    });
    return copied && *copied != nullptr ? *copied
                                        : fonts_.NewFont(defaultFontName, defaultFontSize);
}

bool SiteAmbient::IsUIDead() const {
    return AmbientAs(site_, DISPID_AMBIENT_UIDEAD, ToBoolean).value_or(false);
}

Color SiteAmbient::BackColor() const {
    return AmbientAs(site_, DISPID_AMBIENT_BACKCOLOR, ToColor).value_or(Color::ButtonFace);
}

}  // namespace lumenkit::ole
