#include "apps/lumenkit/windowless/saved_placing.h"

#include "frame/automation/value.h"
#include "frame/runtime_error.h"

namespace lumenkit::windowless {

namespace {

template <typename T>
T Read(host::PropertyBag& saved, TextView name, T (*convert)(const Value&), T otherwise) {
    try {
        return convert(saved.ReadProperty(name, otherwise));
    } catch (const RuntimeError&) {
        return otherwise;
    }
}

float Size(host::PropertyBag& saved, TextView name, float otherwise) {
    const float size = Read(saved, name, ToSingle, otherwise);
    return size < 0 ? otherwise : size;
}

}  // namespace

memory::Placing SavedPlacing(host::PropertyBag& saved, bool userMode) {
    memory::Placing placing;
    placing.userMode = userMode;
    placing.left = Read(saved, u"Left", ToSingle, placing.left);
    placing.top = Read(saved, u"Top", ToSingle, placing.top);
    placing.width = Size(saved, u"Width", placing.width);
    placing.height = Size(saved, u"Height", placing.height);
    placing.visible = Read(saved, u"Visible", ToBoolean, placing.visible);
    return placing;
}

Text SavedTag(host::PropertyBag& saved) {
    return Read(saved, u"Tag", ToText, Text());
}

}  // namespace lumenkit::windowless
