#pragma once

#include <cstdint>

#include "frame/color.h"
#include "frame/host/constituent.h"
#include "frame/host/enumerations.h"
#include "frame/host/mouse.h"
#include "frame/text.h"

namespace lumenkit::host {

/// What happens in a text box, in the order in which it happens: a key goes down, is pressed,
/// changes the text, goes up. Arguments are by reference: a handler that sets a key's code to 0
/// takes the key away from the box. An exception that leaves a handler goes to whoever caused the
/// notification.
class TextBoxEvents {
 public:
    virtual ~TextBoxEvents() = default;

    /// The text changed, by the user or by code.
    virtual void Change() {}
    virtual void Click() {}
    virtual void DblClick() {}
    virtual void GotFocus() {}
    virtual void LostFocus() {}
    virtual void KeyDown(std::int16_t& /*keyCode*/, std::int16_t& /*shift*/) {}
    /// `keyAscii` is the UTF-16 unit of the key; control keys have their codes below 32.
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
    /// The text where it lies, without a copy if the platform can; valid until the text changes.
    virtual TextView GetText() const = 0;
    /// Replaces the text, cut to MaxLength where that is not 0, and puts the caret before it.
    /// If the text differs from the old one, Change is notified before the call returns, else
    /// nothing happens at all.
    virtual void SetText(TextView text) = 0;

    virtual std::int32_t SelStart() const = 0;
    /// Puts the caret there, at the end when that lies beyond it, and selects nothing.
    /// Raises 380 when negative.
    virtual void SetSelStart(std::int32_t position) = 0;
    virtual std::int32_t SelLength() const = 0;
    /// Selects that many units from SelStart on, or what there is. Raises 380 when negative.
    virtual void SetSelLength(std::int32_t length) = 0;

    /// The edit control's get-selection message (176): start and end, end exclusive.
    virtual void GetSelection(std::int32_t& start, std::int32_t& end) const = 0;
    /// The edit control's set-selection message (177): an end of -1 is the end of the text, a start
    /// of -1 drops the selection, positions beyond the end are the end, a start behind the end
    /// changes places with it.
    virtual void SetSelection(std::int32_t start, std::int32_t end) = 0;

    virtual Color ForeColor() const = 0;
    virtual void SetForeColor(Color color) = 0;
    /// A locked box shows, but does not let the user edit, its text.
    virtual bool Locked() const = 0;
    virtual void SetLocked(bool locked) = 0;
    /// Most units that the user may enter, 0 for no limit. Raises 380 when negative.
    virtual std::int32_t MaxLength() const = 0;
    virtual void SetMaxLength(std::int32_t length) = 0;
    /// Setting raises 380 for what is no member of the enumeration.
    virtual MousePointer Pointer() const = 0;
    virtual void SetPointer(MousePointer pointer) = 0;
    /// The box's window, as a number that other programs of the platform know it by.
    virtual std::int32_t WindowHandle() const = 0;
};

}  // namespace lumenkit::host
