// Emit the signals of events and store what the slots assigned.
#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>
#include <span>

#include <lumenkit/widgets/event_arguments.h>

#include "frame/automation/value.h"

namespace lumenkit::widgets {

/// A slot's number as the control takes it. Numbers beyond 16 bits become the nearest one.
inline std::int16_t ToArgument(int number) {
    using Limits = std::numeric_limits<std::int16_t>;
    return static_cast<std::int16_t>(std::clamp<int>(number, Limits::min(), Limits::max()));
}

template <typename Emit>
void EmitMouse(std::span<Value> arguments, const Emit& emit) {
    MouseArguments mouse(ToInteger(arguments[0]), ToInteger(arguments[1]), ToSingle(arguments[2]),
                         ToSingle(arguments[3]));
    emit(&mouse);
    arguments[0] = ToArgument(mouse.button());
    arguments[1] = ToArgument(mouse.shift());
    arguments[2] = static_cast<float>(mouse.x());
    arguments[3] = static_cast<float>(mouse.y());
}

template <typename Emit>
void EmitKey(std::span<Value> arguments, const Emit& emit) {
    KeyArguments key(ToInteger(arguments[0]), ToInteger(arguments[1]));
    emit(&key);
    arguments[0] = ToArgument(key.keyCode());
    arguments[1] = ToArgument(key.shift());
}

template <typename Emit>
void EmitKeyPress(std::span<Value> arguments, const Emit& emit) {
    KeyPressArguments key(ToInteger(arguments[0]));
    emit(&key);
    arguments[0] = ToArgument(key.keyAscii());
}

template <typename Emit>
void EmitValidate(std::span<Value> arguments, const Emit& emit) {
    ValidateArguments validation(ToBoolean(arguments[0]));
    emit(&validation);
    arguments[0] = validation.cancel();
}

}  // namespace lumenkit::widgets
