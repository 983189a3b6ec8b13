#pragma once

#include "runtime/win32/accessibility.h"
#include "runtime/win32/attached_windows.h"
#include "runtime/win32/window.h"

namespace lumenkit::win32 {

/// The window of a control or page. It is a child of the parking window until a container takes it.
/// If the container's window is destroyed, it returns to the parking window and can be attached
/// again. All methods do nothing once the window itself is destroyed.
class HostedWindow : public Window, public Described, private AttachedWindow {
 public:
    ~HostedWindow() override;
    HostedWindow(const HostedWindow&) = delete;
    HostedWindow& operator=(const HostedWindow&) = delete;

    bool IsAttached() const { return isAttached_ && Handle() != nullptr; }

 protected:
    /// `size` is in pixels. `life` is null if nothing waits for the window. Raises 429
    /// and 7 as Window::Create does.
    HostedWindow(HINSTANCE module, SIZE size, Life* life);

    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    /// Puts the window into `parent`, hidden. Returns false if the platform refuses.
    bool MoveInto(HWND parent, const RECT& place);
    void MoveTo(const RECT& place);
    void Resize(SIZE size);
    /// Gives the window a sunken border or removes it.
    void SetEdge(bool sunken);
    /// Shows only the part inside `clip`, which is in the parent's coordinates.
    void ClipTo(const RECT& clip);
    /// Shows the window if a container has it, or hides it. Returns whether it is shown then.
    bool Show(bool visible);
    /// Moves the window back to the parking window, hidden.
    void Park();
    SIZE WindowSize() const;
    /// Whether the window and the windows in it receive the user's input; initially they do.
    void AcceptInput(bool accepts);
    /// Called before the container's window is destroyed.
    virtual void LeaveContainer() { Park(); }

 private:
    void WindowIsDestroyed(HWND window) override;
    /// Passes a change of the system settings on to the child windows and repaints the whole
    /// window.
    void SettingsChanged(UINT message, WPARAM wParam, LPARAM lParam);
    /// Invalidates the window with all its children.
    void RepaintAll();
    void FollowChildren(WPARAM event);
    /// Moves the focus to the container, so that the focus does not get lost.
    void GiveFocusAway();

    InputGate gate_;
    ParkingPlace parking_;
    ThreadShared<AttachedWindows> attached_;
    bool isAttached_ = false;
    bool isClipped_ = false;
};

}  // namespace lumenkit::win32
