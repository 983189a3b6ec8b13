#include "runtime/qt/extender.h"

#include "runtime/qt/hosted_control.h"

namespace lumenkit::qt {

Text Extender::Name() const {
    return control_.Name();
}

Text Extender::Tag() const {
    return control_.Tag();
}

void Extender::SetTag(TextView tag) {
    control_.SetTag(tag);
}

host::Placement Extender::Place() const {
    return control_.Place();
}

void Extender::Move(const host::Placement& place) {
    control_.Move(place);
}

bool Extender::IsVisible() const {
    return control_.IsShown();
}

void Extender::SetVisible(bool visible) {
    control_.SetShown(visible);
}

}  // namespace lumenkit::qt
