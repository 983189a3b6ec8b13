#pragma once

#include <memory>

#include "frame/class_table.h"
#include "frame/control.h"
#include "runtime/win32/context.h"
#include "runtime/win32/life.h"
#include "runtime/win32/windows_header.h"

namespace lumenkit::win32 {

/// What a hosted control needs of whoever stands between it and its container. It must outlive the
/// control.
class ControlSite {
 public:
    virtual ~ControlSite() = default;

    virtual host::Container& GetContainer() = 0;
    virtual host::Ambient& GetAmbient() = 0;
    virtual Object& GetExtender() = 0;

    /// The control asks for another size, in pixels, border included. Where the container agrees,
    /// HostedControl::SetSize has run before the call returns.
    virtual void RequestSize(SIZE size) = 0;
    /// What the control shows has changed.
    virtual void PictureChanged() = 0;
    /// The keyboard focus came into the control's windows, or left them all.
    virtual void FocusChanged(bool inside) = 0;
};

/// One control with its window, surface and constituents: everything of a control's life that is no
/// matter of component plumbing. The window lies on the parking window until it is attached.
///
/// The keyboard and the mouse are the control's where its windows have the focus or lie under the
/// pointer. The window's text, for programs that read it aloud, is what the control shows.
///
/// It must not be destroyed while one of its procedures is at work, that is before an event that it
/// raised or a call of its site has returned: where that may happen, a Life puts the end off. Its
/// container may destroy its window at any time.
///
/// Belongs to the thread that made it. Errors of the control's own procedures never come out of it;
/// construction raises 7 when the platform has no more windows.
class HostedControl {
 public:
    /// Creates the control, `size` pixels large, border included, and runs UserControl_Initialize.
    /// `type` is a control's. Raises 429 for another class. `life` is kept while one of the
    /// control's windows answers a message; whoever calls the control in another way keeps it
    /// himself.
    HostedControl(const Context& context, const ClassDescriptor& type, ControlSite& site, SIZE size,
                  Life* life = nullptr);
    ~HostedControl();
    HostedControl(const HostedControl&) = delete;
    HostedControl& operator=(const HostedControl&) = delete;

    /// The rest of a new control's start: UserControl_InitProperties and _Resize.
    void StartNew();
    /// The same for a saved one, with UserControl_ReadProperties. What the bag raises comes out.
    void StartSaved(host::PropertyBag& bag);
    bool IsStarted() const;
    void Save(host::PropertyBag& bag);

    Control& GetControl();
    Object& Automation() { return GetControl().Automation(); }
    const ClassDescriptor& Type() const;
    host::Surface& Drawing();
    const ControlHost& Host() const;

    // In its container. Sizes are in pixels, border included.
    SIZE Size() const;
    /// UserControl_Resize runs if the size changed.
    void SetSize(SIZE size);
    /// Puts the window into `parent` at `place`, visible; UserControl_Show runs if it was not.
    void Attach(HWND parent, const RECT& place);
    /// Moves the attached window, shows only what lies in `clip` (in the parent's coordinates).
    void Place(const RECT& place, const RECT& clip);
    /// Hides or shows the attached window; showing runs UserControl_Show if it was hidden.
    void SetVisible(bool visible);
    /// Puts the window back where it is not seen.
    void Detach();
    bool IsAttached() const;
    HWND Window() const;

    /// Draws the control, its border and constituents as they are, scaled into `place` on any
    /// device, in that device's logical units. Asks for a Paint where the surface does not keep
    /// what is drawn on it. Changes nothing that can be seen elsewhere.
    void Draw(HDC device, const RECT& place);

    // The keyboard.
    /// Gives the focus to the first (or last) constituent that takes it, or to the control itself.
    void Focus(bool last = false);
    bool HasFocus() const;
    /// Whether the control made use of the message: Tab between its constituents, arrows and keys
    /// that its constituents want though a container would take them for its own. Call it before
    /// the container translates the message.
    bool TranslateKey(const MSG& message);

    /// The container's ambient properties changed.
    void AmbientChanged();

 private:
    class Body;
    std::unique_ptr<Body> body_;
};

}  // namespace lumenkit::win32
