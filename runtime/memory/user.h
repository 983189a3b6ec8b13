#pragma once

#include <cstdint>

#include "frame/host/mouse.h"
#include "frame/text.h"
#include "runtime/memory/element.h"

namespace lumenkit::memory {

class Form;
class HostedControl;
class ScrollBar;
class TextBox;

/// A scripted user. Input is ignored when the target or one of its parents is invisible or
/// disabled; the function then returns false. Before the input, except mouse moves and releases,
/// the focus moves to a target that takes it. Exceptions that leave a handler propagate to the
/// caller.
class User {
 public:
    explicit User(Form& form) : form_(form) {}

    /// Types unit by unit. Each unit causes KeyDown, KeyPress, the edit with its Change, and KeyUp.
    /// A handler that sets the code of KeyDown or KeyPress to 0 suppresses the key, but KeyUp still
    /// follows. A handler that assigns another unit to the argument of KeyPress replaces the unit.
    /// CR is Enter: a line break in a multi-line box, ignored in others. Backspace (8) deletes the
    /// selection or the unit before the caret; it deletes a CR LF or a surrogate pair as a whole.
    /// Other control characters insert nothing, and a unit that exceeds MaxLength is not inserted.
    /// A locked box receives the keys but is not edited. Stops and returns false when the box no
    /// longer accepts input.
    bool Type(TextBox& box, TextView text);
    /// Presses a key that enters nothing; see EditingKey. A caret between CR and LF moves and
    /// deletes as if it stood before both. Other codes only notify KeyDown and KeyUp.
    bool Press(TextBox& box, std::int16_t keyCode);
    /// Selects `length` units from `start` on, or up to the end of the text. Notifies only changes
    /// of the focus.
    bool Select(TextBox& box, std::int32_t start, std::int32_t length);
    /// Replaces the selection in one change, without keys. A single-line box takes only the first
    /// line. Text beyond MaxLength is cut off without splitting a pair. Returns false for a locked
    /// box.
    bool Paste(TextBox& box, TextView text);

    /// Clicks without the mouse notifications around a click: selects an option button, toggles a
    /// check box, presses a button.
    bool Click(Element& element);
    bool DblClick(Element& element);
    bool Mouse(Element& element, MouseAction action, const host::MouseArguments& mouse);
    /// The same for the surface of a control.
    static bool Click(HostedControl& control);
    static bool DblClick(HostedControl& control);
    static bool Mouse(HostedControl& control, MouseAction action,
                      const host::MouseArguments& mouse);

    /// Moves the thumb to `value`, or as near as the range allows.
    bool Scroll(ScrollBar& bar, std::int32_t value);

    bool MoveFocusTo(Element& element);
    /// Moves the focus to something else on the form.
    void LeaveFocus();

 private:
    /// Returns whether the element accepts input, and moves the focus to it if it takes the focus.
    bool Reach(Element& element);

    Form& form_;
};

}  // namespace lumenkit::memory
