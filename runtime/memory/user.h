#pragma once

#include <cstdint>

#include "frame/host/mouse.h"
#include "frame/text.h"
#include "runtime/memory/element.h"

namespace lumenkit::memory {

class Form;
class PlacedControl;
class ScrollBar;
class TextBox;

/// A scripted person at the screen. What is invisible or disabled, by itself or by what it lies on,
/// cannot be used: then nothing happens and the answer is false. What the person uses gets the
/// focus first. Exceptions that leave a handler reach the caller.
class User {
 public:
    explicit User(Form& form) : form_(form) {}

    /// Types unit by unit; for each, KeyDown, KeyPress, the edit with its Change, KeyUp. A handler
    /// that sets KeyDown's or KeyPress's code to 0 takes the key away (KeyUp comes all the same);
    /// another unit put into KeyPress's argument is entered instead. CR is Enter: a line break in
    /// a multi-line box, else nothing. Backspace (8) deletes the selection, or what is before the
    /// caret, a CR LF or a surrogate pair as one. Other control characters insert nothing; what
    /// does not fit MaxLength does not come in. A locked box gets the keys but no edit. Stops with
    /// false when the box can no longer be used.
    bool Type(TextBox& box, TextView text);
    /// Selects `length` units from `start` on, or what there is. Notifies nothing but the focus.
    bool Select(TextBox& box, std::int32_t start, std::int32_t length);
    /// Replaces the selection in one change, without keys. A single-line box takes the first line
    /// only; what is beyond MaxLength is left out, and no pair is split. False for a locked box.
    bool Paste(TextBox& box, TextView text);

    /// A click alone, without the mouse notifications around it: selects an option button, toggles
    /// a check box, presses a button.
    bool Click(Element& element);
    bool DblClick(Element& element);
    bool Mouse(Element& element, MouseAction action, const host::MouseArguments& mouse);
    /// The same on a control's own surface.
    static bool Click(PlacedControl& control);
    static bool DblClick(PlacedControl& control);
    static bool Mouse(PlacedControl& control, MouseAction action,
                      const host::MouseArguments& mouse);

    /// Moves the thumb to `value`, or as near as the bar goes.
    bool Scroll(ScrollBar& bar, std::int32_t value);

    bool MoveFocusTo(Element& element);
    /// To something else on the form.
    void LeaveFocus();

 private:
    /// Whether the element can be used; it has the focus then.
    bool Reach(Element& element);

    Form& form_;
};

}  // namespace lumenkit::memory
