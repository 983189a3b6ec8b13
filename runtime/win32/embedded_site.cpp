#include "runtime/win32/embedded_site.h"

namespace lumenkit::win32 {

host::FontRef EmbeddedAmbient::AmbientFont() const {
    const host::Design usual;
    return fonts_.NewFont(usual.fontName, usual.fontSize);
}

}  // namespace lumenkit::win32
