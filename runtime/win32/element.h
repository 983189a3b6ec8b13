#pragma once

#include <cstdint>

#include "frame/color.h"
#include "frame/host/constituent.h"
#include "frame/text.h"
#include "runtime/win32/context.h"
#include "runtime/win32/drawable.h"
#include "runtime/win32/pixels.h"
#include "runtime/win32/window.h"
#include "runtime/win32/windows_header.h"

namespace lumenkit::win32 {

/// Sent to the window of the control or page when the keyboard focus came to one of its
/// constituents (wParam 1) or left it (wParam 0). The answer does not matter.
inline constexpr UINT constituentFocusMessage = WM_APP + 1;

/// Whom a constituent belongs to: the component, and the window of the control or page.
struct Owner {
    const Context& context;
    Window& window;
    Resolution resolution = Resolution::OfScreen();
};

/// The window that a constituent of this design lies in. Throws std::logic_error for a parent of
/// another runtime.
HWND ParentWindow(const Owner& owner, const host::Design& design);

/// A constituent's window, and what the runtime keeps of any kind of constituent. Its place is kept
/// in twips as it was set, though windows have whole pixels.
class Element : public Window, public Drawable {
 public:
    ~Element() override;
    Element(const Element&) = delete;
    Element& operator=(const Element&) = delete;

    const Text& Name() const { return name_; }
    std::int16_t Index() const { return index_; }  ///< in a control array, else -1
    bool IsVisible() const { return visible_; }    ///< by itself
    bool IsEnabled() const { return enabled_; }    ///< by itself

    /// Lets the window's class draw the client area, then the children, inside the border.
    void DrawTo(HDC device) override;

 protected:
    /// What window a kind of constituent has: see WindowDesign. Each is a child window, visible
    /// where designed so.
    struct Kind {
        const wchar_t* className = nullptr;
        DWORD style = 0;
        DWORD extendedStyle = 0;
    };
    /// Throws std::logic_error for a parent of another runtime; raises 7 when the platform has no
    /// more windows.
    Element(const Owner& owner, const Kind& kind, const host::Design& design, TextView text = {});

    const host::Placement& Where() const { return placement_; }
    /// Raises 380 for a negative width or height.
    void MoveTo(const host::Placement& placement);
    void BecomeVisible(bool visible);
    void BecomeEnabled(bool enabled);
    void RepaintNow() const;
    /// Has it painted anew when the platform sees fit.
    void Invalidate() const;

    /// Sends the window a message; 0 when there is no window any more.
    LRESULT Ask(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    void SwitchStyle(DWORD style, bool on) const;
    Resolution PixelsPerInch() const { return resolution_; }

    /// The focus came or went. May destroy the object.
    virtual void FocusMoved(bool /*came*/) {}
    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    /// Fills the client area with the colour of buttons.
    void FillBackground(HDC device) const;
    /// Answers WM_CTLCOLOR... with these colours.
    static LRESULT AnswerColors(WPARAM device, Color text, Color background);

 private:
    Text name_;
    std::int16_t index_;
    host::Placement placement_;
    bool visible_;
    bool enabled_ = true;
    HWND owner_;
    Resolution resolution_;
};

}  // namespace lumenkit::win32
