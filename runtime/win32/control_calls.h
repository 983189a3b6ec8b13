#pragma once

#include <utility>

#include "frame/control.h"

namespace lumenkit::win32 {

/// Runs a procedure of the control. Its errors do not reach the container: the control's own
/// procedures report them as far as possible.
template <typename... Parameters, typename... Arguments>
void Tell(Control& control, void (Control::*procedure)(Parameters...), Arguments&&... arguments) {
    try {
        (control.*procedure)(std::forward<Arguments>(arguments)...);
    } catch (...) {
        // Nobody else can handle it.
    }
}

}  // namespace lumenkit::win32
