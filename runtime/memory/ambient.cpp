#include "runtime/memory/ambient.h"

namespace lumenkit::memory {

bool Ambient::UserMode() const {
    form_.Faults().Call(u"Ambient", u"UserMode");
    return userMode_;
}

host::FontRef Ambient::AmbientFont() const {
    form_.Faults().Call(u"Ambient", u"AmbientFont");
    return form_.AmbientFont().Clone();
}

Color Ambient::BackColor() const {
    form_.Faults().Call(u"Ambient", u"BackColor");
    return form_.AmbientBackColor();
}

}  // namespace lumenkit::memory
