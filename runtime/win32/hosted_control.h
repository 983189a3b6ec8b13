#pragma once

#include <memory>

#include "frame/class_table.h"
#include "frame/control.h"
#include "runtime/win32/context.h"
#include "runtime/win32/life.h"
#include "runtime/win32/windows_header.h"

namespace lumenkit::win32 {

/// The services that a hosted control needs from the object between it and its container. The site
/// must outlive the control.
class ControlSite {
 public:
    virtual ~ControlSite() = default;

    virtual host::Container& GetContainer() = 0;
    virtual host::Ambient& GetAmbient() = 0;
    virtual Object& GetExtender() = 0;

    /// Requests another size for the control, in pixels, border included. If the container agrees,
    /// HostedControl::SetSize has run before the call returns.
    virtual void RequestSize(SIZE size) = 0;
    /// Called when the picture that the control shows has changed.
    virtual void PictureChanged() = 0;
    /// Called when the keyboard focus entered one of the control's windows or left all of them.
    virtual void FocusChanged(bool inside) = 0;
};

/// One control with its window, surface and constituents. It covers the life cycle of a control
/// except for the component interfaces. The window is a child of the parking window until it is
/// attached.
///
/// The control receives the keyboard while one of its windows has the focus, and the mouse while
/// one of them is under the pointer. Screen readers read the text of the window, which is the text
/// that the control shows.
///
/// The control must not be destroyed while one of its procedures runs, that is before an event that
/// it raised or a call of its site has returned. Where that may happen, a Life defers the
/// destruction. The container may destroy the control's window at any time.
///
/// Used only on the thread that created it. Errors of the control's own procedures do not leave it.
/// Construction raises 7 if the platform cannot create more windows.
class HostedControl {
 public:
    /// Creates the control, `size` pixels large, border included, and runs UserControl_Initialize.
    /// `type` must be a control; raises 429 for another class. `life` is held while one of the
    /// control's windows answers a message. Any other caller of the control must hold it.
    HostedControl(const Context& context, const ClassDescriptor& type, ControlSite& site, SIZE size,
                  Life* life = nullptr);
    ~HostedControl();
    HostedControl(const HostedControl&) = delete;
    HostedControl& operator=(const HostedControl&) = delete;

    /// Finishes the start of a new control: runs UserControl_InitProperties and _Resize.
    void StartNew();
    /// Does the same for a saved control, with UserControl_ReadProperties. Errors that the bag
    /// raises reach the caller.
    void StartSaved(host::PropertyBag& bag);
    bool IsStarted() const;
    void Save(host::PropertyBag& bag);

    Control& GetControl();
    Object& Automation() { return GetControl().Automation(); }
    const ClassDescriptor& Type() const;
    host::Surface& Drawing();
    const ControlHost& Host() const;

    // Placement in the container. Sizes are in pixels, border included.
    SIZE Size() const;
    /// Resizes the control. UserControl_Resize runs if the size changed.
    void SetSize(SIZE size);
    /// Puts the window into `parent` at `place` and shows it. UserControl_Show runs if it was
    /// hidden.
    void Attach(HWND parent, const RECT& place);
    /// Moves the attached window and shows only the part inside `clip` (in the parent's
    /// coordinates).
    void Place(const RECT& place, const RECT& clip);
    /// Hides or shows the attached window. Showing a hidden window runs UserControl_Show.
    void SetVisible(bool visible);
    /// Moves the window back to the hidden parking window.
    void Detach();
    bool IsAttached() const;
    HWND Window() const;

    /// Draws the control, its border and constituents in their current state, scaled into `place`
    /// on any device, in that device's logical units. Runs UserControl_Paint if the surface does
    /// not keep its drawing. Nothing that is visible elsewhere changes.
    void Draw(HDC device, const RECT& place);

    // Keyboard.
    /// Gives the focus to the first (or last) constituent that takes it, otherwise to the control
    /// itself.
    void Focus(bool last = false);
    bool HasFocus() const;
    /// Returns whether the control used the message: Tab between its constituents, arrows, and
    /// other keys that its constituents need although a container would use them itself. Call it
    /// before the container translates the message.
    bool TranslateKey(const MSG& message);

    /// Called when the ambient properties of the container changed.
    void AmbientChanged();

 private:
    class Body;
    std::unique_ptr<Body> body_;
};

}  // namespace lumenkit::win32
