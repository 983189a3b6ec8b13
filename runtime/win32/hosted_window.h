#pragma once

#include "runtime/win32/window.h"

namespace lumenkit::win32 {

/// The window of a control or page, on a parking place until a container takes it in. All of it
/// works, and does nothing, when the window is gone.
class HostedWindow : public Window {
 public:
    bool IsAttached() const { return isAttached_ && Handle() != nullptr; }

 protected:
    /// `size` in pixels; `life` is null where nothing waits for the window. Raises 7 when the
    /// platform has no more windows.
    HostedWindow(HINSTANCE module, SIZE size, Life* life);

    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    /// Puts the window into `parent`, hidden. False where the platform refuses.
    bool MoveInto(HWND parent, const RECT& place);
    void MoveTo(const RECT& place);
    /// Shows only what lies in `clip`, which is in the parent's coordinates.
    void ClipTo(const RECT& clip);
    void Show(bool visible);
    /// Back to the parking place, hidden.
    void Park();
    SIZE WindowSize() const;

    /// Passes on to what lies in the window that system settings changed, and repaints all of it.
    void SettingsChanged(UINT message, WPARAM wParam, LPARAM lParam);

 private:
    /// Leaves the focus to the container rather than to nobody.
    void GiveFocusAway();

    ParkingPlace parking_;
    bool isAttached_ = false;
    bool isClipped_ = false;
};

}  // namespace lumenkit::win32
