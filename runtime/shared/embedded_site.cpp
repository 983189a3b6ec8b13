#include "runtime/shared/embedded_site.h"

#include <utility>

namespace lumenkit::shared {

EmbeddedAmbient::EmbeddedAmbient(FontMaker newFont, bool userMode)
    : newFont_(std::move(newFont)), userMode_(userMode) {}

host::FontRef EmbeddedAmbient::AmbientFont() const {
    const host::Design usual;
    return newFont_(usual.fontName, usual.fontSize);
}

}  // namespace lumenkit::shared
