#pragma once

#include <memory>
#include <optional>

#include "frame/class_table.h"
#include "frame/control.h"
#include "runtime/shared/saving.h"
#include "runtime/win32/constituents.h"
#include "runtime/win32/control_focus.h"
#include "runtime/win32/control_mouse.h"
#include "runtime/win32/control_painter.h"
#include "runtime/win32/control_site.h"
#include "runtime/win32/drawable.h"
#include "runtime/win32/hosted_window.h"
#include "runtime/win32/screen.h"
#include "runtime/win32/surface.h"

namespace lumenkit::win32 {

/// One control with its window, surface and constituents. It covers the life cycle of a control
/// except for the component interfaces. The window is a child of the parking window until it is
/// attached.
///
/// The control receives the keyboard while one of its windows has the focus, and the mouse while
/// one of them is under the pointer, as long as its site accepts input. Screen readers read the
/// text of the window, which is the text that the control draws, without markup.
///
/// The control must not be destroyed while one of its procedures runs, that is before an event that
/// it raised or a call of its site has returned. Where that may happen, a Life defers the
/// destruction. The container may destroy the window that the control is in at any time, and even
/// the control's own window, which cannot be attached again then.
///
/// Used only on the thread that created it. Errors of the control's own procedures do not leave it.
class HostedControl final : public HostedWindow, public Drawable, private SurfaceOwner {
 public:
    /// Creates the control, `size` pixels large, border included, and runs UserControl_Initialize.
    /// `type` must be a control; raises 429 for another class. Raises 429 and 7 as
    /// Window::Create does. `life` is held while one of the control's windows answers a message.
    /// Any other caller of the control must hold it.
    HostedControl(const Context& context, const ClassDescriptor& type, ControlSite& site, SIZE size,
                  Life* life = nullptr);
    ~HostedControl() override;
    HostedControl(const HostedControl&) = delete;
    HostedControl& operator=(const HostedControl&) = delete;

    /// Finishes the start of a new control: runs UserControl_InitProperties and _Resize.
    void StartNew();
    /// Does the same for a saved control, with UserControl_ReadProperties. Errors that the bag
    /// raises reach the caller.
    void StartSaved(host::PropertyBag& bag);
    bool IsStarted() const { return isStarted_; }
    /// Raises the error of a save that failed, which the control has reported before; see
    /// shared::SaveControl.
    void Save(host::PropertyBag& bag);

    Control& GetControl() { return *control_; }
    Object& Automation() { return control_->Automation(); }
    const ClassDescriptor& Type() const { return type_; }
    Surface& Drawing() { return surface_; }
    const ControlHost& Host() const { return host_; }

    // Placement in the container. Sizes are in pixels, border included.
    SIZE Size() const { return size_; }
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
    /// Moves the window back to the hidden parking window. Happens without a call before the
    /// container's window is destroyed.
    void Detach();

    /// Draws the control, its border and constituents in their current state, scaled into `place`
    /// on any device, in that device's logical units. Runs UserControl_Paint if the picture of the
    /// surface is outdated.
    void DrawOn(HDC device, const RECT& place);
    void DrawOn(HDC device) override;
    void DrawShapes(Canvas& canvas) override { painter_.DrawOn(canvas, size_); }

    // Keyboard.
    /// Gives the focus to the first (or last) constituent that takes it, otherwise to the control
    /// itself.
    void Focus(bool last = false);
    bool HasFocus() const;
    /// Returns whether the control used the message: Tab between its constituents, arrows, and
    /// other keys that its constituents need although a container would use them itself. Call it
    /// before the container translates the message.
    bool TranslateKey(const MSG& message);

    // Screen readers.
    std::optional<Description> Describe() override;
    Text SpokenHint() override;

    /// Called when the ambient properties of the container changed.
    void AmbientChanged();
    /// Whether the user may use the control, as its site said last: at the start, when the control
    /// was attached and when the ambient properties changed.
    bool AcceptsInput() const { return acceptsInput_; }

 private:
    // SurfaceOwner
    HWND SurfaceWindow() const override { return Handle(); }
    SIZE WholeSize() const override { return size_; }
    bool IsShown() const override;
    bool PaintControl() override;
    void RequestSize(SIZE size) override;
    void BorderChanged() override;
    void PictureChanged() override { site_.PictureChanged(); }

    // Window
    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void LeaveContainer() override { Detach(); }
    LRESULT FollowWindow(WPARAM wParam, LPARAM lParam);
    LRESULT HandleMouse(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT GiveText(std::size_t room, wchar_t* target);
    Text SpokenText();

    void FinishStart();
    void AdoptSize(SIZE size);
    void BecomeVisible(bool visible);
    void FollowSite();
    void FollowMnemonics(WPARAM isPosted);

    const ClassDescriptor& type_;
    ControlSite& site_;
    SIZE size_;
    Resolution resolution_;
    Screen screen_{resolution_};
    win32::Surface surface_;
    ControlPainter painter_{*this, surface_};
    ControlFocus focus_{*this, surface_, site_};
    ControlMouse mouse_{*this, surface_, focus_, resolution_};
    Constituents constituents_;
    shared::ReportCounter reports_;
    ControlHost host_;
    std::unique_ptr<Control> control_;
    int requests_ = 0;
    bool isStarted_ = false;
    bool isVisible_ = false;  // as set by the container
    bool wasTold_ = false;    // whether it was notified that it is visible
    bool acceptsInput_ = true;
    bool mnemonicsArePosted_ = false;
};

/// Creates a new control on another control or on a page; see EmbedFunction.
std::unique_ptr<host::EmbeddedControl> EmbedControl(const Elements& elements,
                                                    const host::Design& design,
                                                    const ClassDescriptor& type);

}  // namespace lumenkit::win32
