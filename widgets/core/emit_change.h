#pragma once

#include <QObject>

#include <lumenkit/widgets/control_widget.h>

namespace lumenkit::widgets {

/// The class whose member function this is.
template <typename Function>
struct ClassOfMember;
template <typename Class, typename Return, typename... Arguments>
struct ClassOfMember<Return (Class::*)(Arguments...)> {
    using Type = Class;
};

/// Emits the signal `changed` with the value of the property that `read` returns.
template <auto read, auto changed>
void EmitChange(ControlWidget& widget) {
    using Class = typename ClassOfMember<decltype(changed)>::Type;
    auto& control = static_cast<Class&>(widget);
    Q_EMIT(control.*changed)((control.*read)());
}

}  // namespace lumenkit::widgets
