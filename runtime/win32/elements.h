#pragma once

#include "runtime/win32/context.h"
#include "runtime/win32/window.h"

namespace lumenkit::win32 {

/// Sent to the window of the control or page when the keyboard focus enters one of its constituents
/// (wParam 1) or leaves it (wParam 0). The result is ignored.
inline constexpr UINT constituentFocusMessage = WM_APP + 1;

/// Sent to the window of the control or page when a constituent changed its caption, appeared,
/// disappeared, or was enabled or disabled (wParam 0), so that there may be other mnemonics. The
/// window may post it to itself. The result is ignored.
inline constexpr UINT mnemonicsMessage = WM_APP + 2;

/// The elements of one control or page have this in common: the component, the window that they are
/// in, and the mode in which the container runs the control.
struct Elements {
    const Context& context;
    Window& window;
    bool userMode = true;  ///< passed on to embedded controls
};

}  // namespace lumenkit::win32
