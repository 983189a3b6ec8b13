#pragma once

#include <cstdint>

#include "frame/color.h"
#include "frame/host/constituent.h"
#include "frame/text.h"
#include "runtime/win32/drawable.h"
#include "runtime/win32/elements.h"
#include "runtime/win32/pixels.h"
#include "runtime/win32/window.h"
#include "runtime/win32/windows_header.h"

namespace lumenkit::win32 {

/// Returns the parent window for a constituent of this design. Throws std::logic_error for a parent
/// of another runtime.
HWND ParentWindow(const Elements& elements, const host::Design& design);

/// The window of a constituent, and the state that the runtime keeps for every kind. The placement
/// is kept in twips as it was set, although windows have whole pixels.
class Element : public Window, public Drawable {
 public:
    ~Element() override;
    Element(const Element&) = delete;
    Element& operator=(const Element&) = delete;

    const Text& Name() const { return name_; }
    std::int16_t Index() const { return index_; }  ///< in a control array, else -1
    bool IsVisible() const { return visible_; }    ///< regardless of its parents
    bool IsEnabled() const { return enabled_; }    ///< regardless of its parents

    /// Draws the border, lets the window class draw the client area, and draws the children in it.
    void DrawOn(HDC device) override;

 protected:
    /// The window of a kind of constituent; see WindowDesign. It is a child window and visible if
    /// it is designed so.
    struct Kind {
        const wchar_t* className = nullptr;
        DWORD style = 0;
        DWORD extendedStyle = 0;
    };
    /// Throws std::logic_error for a parent of another runtime. Raises 429 and 7 as
    /// Window::Create does.
    Element(const Elements& elements, const Kind& kind, const host::Design& design,
            TextView text = {});

    const host::Placement& Where() const { return placement_; }
    /// Raises 380 for a negative width or height.
    void MoveTo(const host::Placement& placement);
    void BecomeVisible(bool visible);
    void BecomeEnabled(bool enabled);
    void RepaintNow() const;
    void TellThatMnemonicsMayChange() const;
    /// Invalidates the window for a later repaint.
    void Invalidate() const;

    /// Sends the window a message. Returns 0 if the window no longer exists.
    LRESULT Ask(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    void SwitchStyle(DWORD style, bool on) const;
    Resolution PixelsPerInch() const { return resolution_; }

    /// Called when the focus came or left. May destroy the object.
    virtual void FocusMoved(bool /*came*/) {}
    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    /// Fills the client area with the background colour of buttons.
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
