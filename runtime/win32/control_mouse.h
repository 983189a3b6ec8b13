#pragma once

#include <cstdint>

#include "frame/control.h"
#include "runtime/win32/control_focus.h"
#include "runtime/win32/pixels.h"
#include "runtime/win32/surface.h"
#include "runtime/win32/window.h"

namespace lumenkit::win32 {

/// Turns the mouse messages of a control's window into the mouse events of the control. A click is
/// a button that is pressed and released on the surface. The second of two quick clicks is a double
/// click instead.
class ControlMouse {
 public:
    /// The references must outlive the object.
    ControlMouse(Window& window, const Surface& surface, ControlFocus& focus, Resolution resolution)
        : window_(window), surface_(surface), focus_(focus), resolution_(resolution) {}

    /// Whether the message reports a movement or a button.
    static bool IsMouse(UINT message);
    /// Handles such a message: raises the events of `control`. May destroy this object.
    void Handle(Control& control, UINT message, WPARAM wParam, LPARAM lParam);
    /// Called when another window has taken the mouse away.
    void CaptureChanged() { pressed_ = 0; }

 private:
    void ButtonGoesDown(Control& control, host::MouseArguments& mouse);
    void ButtonIsClickedAgain(Control& control, host::MouseArguments& mouse);
    void ButtonGoesUp(Control& control, host::MouseArguments& mouse);
    bool TakeMouse();
    bool IsInside(const host::MouseArguments& mouse) const;
    bool Lift(std::int16_t button);

    Window& window_;
    const Surface& surface_;
    ControlFocus& focus_;
    Resolution resolution_;
    std::int16_t pressed_ = 0;  // the buttons that went down on the surface
};

}  // namespace lumenkit::win32
