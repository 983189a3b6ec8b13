#include "runtime/memory/extender.h"

#include "runtime/memory/hosted_control.h"

namespace lumenkit::memory {

Value Extender::Invoke(std::int32_t identifier, InvokeKind kind, std::span<Value> arguments) {
    if (const Member* member = Known(identifier)) {
        control_.GetForm().Faults().Call(u"Extender", member->name);
    }
    return host::Extender::Invoke(identifier, kind, arguments);
}

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
    return {.left = control_.Left(),
            .top = control_.Top(),
            .width = control_.Drawing().CurrentWidth(),
            .height = control_.Drawing().CurrentHeight()};
}

void Extender::Move(const host::Placement& place) {
    control_.Move(place.left, place.top);
    control_.Resize(place.width, place.height);
}

bool Extender::IsVisible() const {
    return control_.IsVisible();
}

void Extender::SetVisible(bool visible) {
    visible ? control_.Show() : control_.Hide();
}

}  // namespace lumenkit::memory
