#pragma once

#include <cstdint>

#include "frame/color.h"
#include "frame/host/constituent.h"
#include "frame/text.h"
#include "runtime/win32/accessibility.h"
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
class Element : public Window, public Drawable, public Described {
 public:
    ~Element() override;
    Element(const Element&) = delete;
    Element& operator=(const Element&) = delete;

    const Text& Name() const { return name_; }
    std::int16_t Index() const { return index_; }  ///< in a control array, else -1
    bool IsVisible() const { return visible_; }    ///< regardless of its parents
    bool IsEnabled() const { return enabled_; }    ///< regardless of its parents
    /// Whether it and the elements around it are enabled.
    bool IsUsable() const { return enabled_ && parentIsUsable_; }

    /// Called when the page around the constituent is larger than it is designed, by `growth`
    /// pixels, or no longer is.
    void FollowPage(SIZE growth);

    /// Draws the border, lets the window class draw the client area, and draws the children in it.
    void DrawOn(HDC device) override;
    /// Draws the border, the content, and the children in it.
    void DrawShapes(Canvas& canvas) override;

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
    // Both move the focus out of an element that cannot be used any more: to its heir, to the next
    // tab stop, or else to the control's window, which keeps it for the element. May destroy the
    // object.
    void BecomeVisible(bool visible);
    void BecomeEnabled(bool enabled);
    /// Returns the element that takes the focus over when this one, which has it, is hidden or
    /// disabled; null if there is none.
    virtual const Element* Heir() const { return nullptr; }
    /// Brings the state to the window and to the elements inside.
    void ShowEnabled();
    void RepaintNow() const;
    void TellThatMnemonicsMayChange() const;
    /// Invalidates the window for a later repaint.
    void Invalidate() const;

    /// Sends the window a message. Returns 0 if the window no longer exists.
    LRESULT Ask(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    void SwitchStyle(DWORD style, bool on) const;
    /// Returns the limits that the control around the element tells screen readers.
    Text OwnersHint() const;
    Resolution PixelsPerInch() const { return resolution_; }

    /// Called when the focus came or left. May destroy the object.
    virtual void FocusMoved(bool /*came*/) {}
    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    /// Draws the client area without its children. The canvas is the client area, `size` pixels
    /// large.
    virtual void DrawContent(Canvas& canvas, SIZE size) const = 0;
    /// Whether mnemonics are underlined now: the platform hides them until the user presses Alt.
    bool ShowsMnemonics() const;
    /// The colour for texts: grey in a disabled window.
    Color InkOf(Color color) const;

    /// Fills the client area with the background colour of buttons.
    void FillBackground(HDC device) const;
    /// Answers WM_CTLCOLOR... with these colours.
    static LRESULT AnswerColors(WPARAM device, Color text, Color background);

 private:
    template <typename Change>
    void BecomeUsable(bool usable, Change&& change);
    void GiveFocusAway();
    void TakeFocusBack();
    RECT PlaceInPixels() const;
    void PutInto(const RECT& former) const;

    Text name_;
    std::int16_t index_;
    host::Placement placement_;
    host::MovingEdges movingEdges_;
    SIZE growth_ = {0, 0};
    bool visible_;
    bool enabled_ = true;
    bool parentIsUsable_ = true;
    HWND owner_;
    HWND lostFocus_ = nullptr;  // the window inside for which the control's window keeps the focus
    Resolution resolution_;
};

}  // namespace lumenkit::win32
