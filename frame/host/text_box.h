#pragma once

#include <cstdint>

#include "frame/color.h"
#include "frame/host/constituent.h"
#include "frame/host/enumerations.h"
#include "frame/host/mouse.h"
#include "frame/text.h"

namespace lumenkit::host {

/// The events of a text box, in the order in which they occur: a key goes down, is pressed, changes
/// the text, goes up. Arguments are passed by reference: a handler that sets the code of a key to 0
/// suppresses the key. An exception that leaves a handler propagates to the code that caused the
/// notification.
class TextBoxEvents {
 public:
    virtual ~TextBoxEvents() = default;

    /// Called when the user or code changes the text.
    virtual void Change() {}
    virtual void Click() {}
    virtual void DblClick() {}
    virtual void GotFocus() {}
    virtual void LostFocus() {}
    virtual void KeyDown(std::int16_t& /*keyCode*/, std::int16_t& /*shift*/) {}
    /// `keyAscii` is the UTF-16 unit of the key; control keys have codes below 32.
    virtual void KeyPress(std::int16_t& /*keyAscii*/) {}
    virtual void KeyUp(std::int16_t& /*keyCode*/, std::int16_t& /*shift*/) {}
    virtual void MouseDown(MouseArguments& /*mouse*/) {}
    virtual void MouseMove(MouseArguments& /*mouse*/) {}
    virtual void MouseUp(MouseArguments& /*mouse*/) {}
};

struct TextBoxDesign : Design {
    bool multiLine = false;
    ScrollBars scrollBars = ScrollBars::None;
    TextView text = {};
};

/// A text box. Positions and lengths are in UTF-16 units from 0; a line break is CR LF.
class TextBox : public TextConstituent {
 public:
    /// Returns a view of the text, without a copy if the platform allows it; valid until the text
    /// changes.
    virtual TextView GetText() const = 0;
    /// Replaces the text, truncated to MaxLength where that is not 0, and moves the caret to the
    /// start. If the text differs from the old one, notifies Change before the call returns;
    /// otherwise does nothing.
    virtual void SetText(TextView text) = 0;

    virtual std::int32_t SelStart() const = 0;
    /// Moves the caret to `position`, or to the end when `position` is beyond it, and clears the
    /// selection. A position between CR and LF reads back. Raises 380 when it is negative.
    virtual void SetSelStart(std::int32_t position) = 0;
    virtual std::int32_t SelLength() const = 0;
    /// Selects `length` units from SelStart on, or up to the end of the text. Raises 380 when
    /// `length` is negative.
    virtual void SetSelLength(std::int32_t length) = 0;

    /// The edit control's get-selection message (176): start and end, end exclusive.
    virtual void GetSelection(std::int32_t& start, std::int32_t& end) const = 0;
    /// The edit control's set-selection message (177). An end of -1 means the end of the text; a
    /// start of -1 clears the selection; positions beyond the end mean the end; a start after the
    /// end is swapped with it.
    virtual void SetSelection(std::int32_t start, std::int32_t end) = 0;

    virtual Color ForeColor() const = 0;
    virtual void SetForeColor(Color color) = 0;
    /// A locked box shows its text but does not let the user edit it.
    virtual bool Locked() const = 0;
    virtual void SetLocked(bool locked) = 0;
    /// The most units that the user may enter, 0 for no limit. Setting raises 380 for a negative
    /// length.
    virtual std::int32_t MaxLength() const = 0;
    virtual void SetMaxLength(std::int32_t length) = 0;
    /// Setting raises 380 for a value that is not a member of the enumeration.
    virtual MousePointer Pointer() const = 0;
    virtual void SetPointer(MousePointer pointer) = 0;
    /// Returns the handle of the box's window as a number, for other programs of the platform.
    virtual std::int32_t WindowHandle() const = 0;
};

}  // namespace lumenkit::host
