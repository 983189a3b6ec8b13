#include "runtime/memory/text_box.h"

#include <algorithm>
#include <limits>
#include <tuple>

#include "frame/host/accepted_values.h"
#include "runtime/memory/key_stroke.h"

namespace lumenkit::memory {

namespace {

constexpr char16_t firstPrintable = 32;
constexpr char16_t deleteCharacter = 127;

// Returns whether two adjacent units are one character: a line break or a surrogate pair.
bool IsPair(char16_t first, char16_t second) {
    const bool isSurrogatePair = (first & 0xFC00) == 0xD800 && (second & 0xFC00) == 0xDC00;
    return isSurrogatePair || (first == u'\r' && second == u'\n');
}

TextView FirstLine(TextView text) {
    return text.substr(0, text.find_first_of(crLf));
}

// Returns the longest beginning of `text` that has at most `room` units and does not split a pair.
TextView Fitting(TextView text, std::size_t room) {
    if (room >= text.size()) {
        return text;
    }
    const bool splits = room > 0 && IsPair(text[room - 1], text[room]);
    return text.substr(0, splits ? room - 1 : room);
}

}  // namespace

TextBox::TextBox(Elements& elements, const host::TextBoxDesign& design, host::TextBoxEvents& events)
    : BasicTextConstituent(elements, u"TextBox", design),
      events_(events),
      text_(design.text),
      windowHandle_(elements.GetForm().NewWindowHandle()),
      scrollBars_(design.scrollBars),
      multiLine_(design.multiLine) {}

void TextBox::SetVisible(bool visible) {
    const bool hides = !visible && IsVisible();
    BasicTextConstituent::SetVisible(visible);
    TextBox* const twin = hides ? Twin() : nullptr;
    if (twin != nullptr && !twin->caretIsPlaced_) {
        twin->ReceiveSelection(selStart_, selEnd_ - selStart_);
    }
    caretIsPlaced_ = caretIsPlaced_ && visible;
    Focus& focus = Siblings().GetForm().GetFocus();
    if (twin != nullptr && twin->IsEnabled() && focus.IsAt(*this)) {
        focus.MoveTo(twin);
    }
}

// Returns the visible box of the same control array that has the same place; null if there is none.
// A box that must look different is hidden and its twin is shown.
TextBox* TextBox::Twin() const {
    for (Element* const element : Siblings().All()) {
        auto* const box = dynamic_cast<TextBox*>(element);
        if (box != nullptr && box != this && Index() >= 0 && box->Name() == Name() &&
            box->IsVisible() && box->Parent() == Parent() && box->Where() == Where()) {
            return box;
        }
    }
    return nullptr;
}

TextView TextBox::GetText() const {
    Call(u"GetText");
    return text_;
}

void TextBox::SetText(TextView text) {
    Call(u"SetText");
    caretIsPlaced_ = false;
    if (maxLength_ > 0) {
        text = text.substr(0, static_cast<std::size_t>(maxLength_));
    }
    if (text == text_) {
        return;
    }
    text_ = Text(text);
    selStart_ = 0;
    selEnd_ = 0;
    events_.Change();
}

std::int32_t TextBox::SelStart() const {
    Call(u"SelStart");
    return selStart_;
}

void TextBox::SetSelStart(std::int32_t position) {
    Call(u"SetSelStart");
    Require(position >= 0);
    caretIsPlaced_ = true;
    selStart_ = std::min(position, Length());
    selEnd_ = selStart_;
}

std::int32_t TextBox::SelLength() const {
    Call(u"SelLength");
    return selEnd_ - selStart_;
}

void TextBox::SetSelLength(std::int32_t length) {
    Call(u"SetSelLength");
    Require(length >= 0);
    caretIsPlaced_ = true;
    selEnd_ = selStart_ + std::min(length, Length() - selStart_);
}

void TextBox::GetSelection(std::int32_t& start, std::int32_t& end) const {
    Call(u"GetSelection");
    start = selStart_;
    end = selEnd_;
}

void TextBox::SetSelection(std::int32_t start, std::int32_t end) {
    Call(u"SetSelection");
    caretIsPlaced_ = true;
    if (start == -1) {
        selStart_ = selEnd_;
        return;
    }
    // The numbers of the message are unsigned: a negative one is beyond the end.
    const auto placed = [&](std::int32_t position) {
        return position < 0 ? Length() : std::min(position, Length());
    };
    std::tie(selStart_, selEnd_) = std::minmax({placed(start), placed(end)});
}

Color TextBox::ForeColor() const {
    Call(u"ForeColor");
    return foreColor_;
}

void TextBox::SetForeColor(Color color) {
    Call(u"SetForeColor");
    foreColor_ = color;
}

bool TextBox::Locked() const {
    Call(u"Locked");
    return locked_;
}

void TextBox::SetLocked(bool locked) {
    Call(u"SetLocked");
    locked_ = locked;
}

std::int32_t TextBox::MaxLength() const {
    Call(u"MaxLength");
    return maxLength_;
}

void TextBox::SetMaxLength(std::int32_t length) {
    Call(u"SetMaxLength");
    Require(length >= 0);
    maxLength_ = length;
}

host::MousePointer TextBox::Pointer() const {
    Call(u"Pointer");
    return pointer_;
}

void TextBox::SetPointer(host::MousePointer pointer) {
    Call(u"SetPointer");
    RequirePointer(static_cast<std::int32_t>(pointer));
    pointer_ = pointer;
}

std::int32_t TextBox::WindowHandle() const {
    Call(u"WindowHandle");
    return windowHandle_;
}

PropertyList TextBox::Properties() const {
    PropertyList list = BasicTextConstituent::Properties();
    list.emplace_back(u"ForeColor", FromColor(foreColor_));
    list.emplace_back(u"Text", text_);
    list.emplace_back(u"SelStart", selStart_);
    list.emplace_back(u"SelLength", selEnd_ - selStart_);
    list.emplace_back(u"MaxLength", maxLength_);
    list.emplace_back(u"Locked", locked_);
    list.emplace_back(u"MultiLine", multiLine_);
    list.emplace_back(u"ScrollBars", static_cast<std::int32_t>(scrollBars_));
    list.emplace_back(u"MousePointer", static_cast<std::int32_t>(pointer_));
    return list;
}

void TextBox::ReceiveFocus() {
    events_.GotFocus();
}

void TextBox::LoseFocus() {
    events_.LostFocus();
}

void TextBox::ReceiveClick() {
    events_.Click();
}

void TextBox::ReceiveDblClick() {
    events_.DblClick();
}

void TextBox::ReceiveMouse(MouseAction action, host::MouseArguments mouse) {
    switch (action) {
        case MouseAction::Down:
            return events_.MouseDown(mouse);
        case MouseAction::Move:
            return events_.MouseMove(mouse);
        case MouseAction::Up:
            return events_.MouseUp(mouse);
    }
}

void TextBox::ReceiveKey(char16_t unit) {
    KeyStroke down = KeyFor(unit);
    KeyStroke up = down;
    events_.KeyDown(down.keyCode, down.shift);
    if (down.keyCode != 0) {
        PressKey(unit);
    }
    events_.KeyUp(up.keyCode, up.shift);
}

void TextBox::PressKey(char16_t unit) {
    auto keyAscii = static_cast<std::int16_t>(unit);
    events_.KeyPress(keyAscii);
    if (keyAscii != 0 && !locked_) {
        Enter(static_cast<char16_t>(keyAscii));
    }
}

void TextBox::Enter(char16_t unit) {
    if (unit == backspace) {
        DeleteBackwards();
    } else if (unit == enter) {
        if (multiLine_) {
            Insert(crLf);
        }
    } else if (unit >= firstPrintable && unit != deleteCharacter) {
        Insert(TextView(&unit, 1));
    }
}

void TextBox::Insert(TextView text) {
    if (text.size() <= Room()) {
        Replace(EditedRange(), text);
    }
}

void TextBox::DeleteBackwards() {
    Range range = EditedRange();
    if (range.start == range.end) {
        range.start -= UnitsBefore(range.start);
    }
    Replace(range, {});
}

void TextBox::DeleteForward() {
    Range range = EditedRange();
    if (range.start == range.end) {
        range.end += UnitsAfter(range.end);
    }
    Replace(range, {});
}

// Returns the length of the character before a position, 0 at the start of the text.
std::int32_t TextBox::UnitsBefore(std::int32_t position) const {
    const auto at = static_cast<std::size_t>(position);
    const bool pair = at >= 2 && IsPair(text_[at - 2], text_[at - 1]);
    return std::min(position, pair ? 2 : 1);
}

// Returns the length of the character at a position, 0 at the end of the text.
std::int32_t TextBox::UnitsAfter(std::int32_t position) const {
    const auto at = static_cast<std::size_t>(position);
    const bool pair = at + 2 <= text_.size() && IsPair(text_[at], text_[at + 1]);
    return std::min(Length() - position, pair ? 2 : 1);
}

void TextBox::ReceiveEditingKey(std::int16_t keyCode) {
    std::int16_t down = keyCode;
    std::int16_t up = keyCode;
    std::int16_t shift = 0;
    events_.KeyDown(down, shift);
    if (down == static_cast<std::int16_t>(EditingKey::Delete)) {
        if (!locked_) {
            DeleteForward();
        }
    } else if (down != 0) {
        MoveCaret(down);
    }
    events_.KeyUp(up, shift);
}

void TextBox::MoveCaret(std::int16_t keyCode) {
    const std::int32_t shown = EditedRange().start;
    const auto at = static_cast<std::size_t>(shown);
    const bool isInBreak = shown != selStart_;
    switch (static_cast<EditingKey>(keyCode)) {
        case EditingKey::Left:
            selStart_ = isInBreak ? shown : shown - UnitsBefore(shown);
            break;
        case EditingKey::Right:
            selStart_ = shown + UnitsAfter(shown);
            break;
        case EditingKey::Home: {
            const std::size_t end = at == 0 ? Text::npos : text_.rfind(crLf, at - 1);
            selStart_ = end == Text::npos ? 0 : static_cast<std::int32_t>(end + crLf.size());
            break;
        }
        case EditingKey::End:
            selStart_ = static_cast<std::int32_t>(std::min(text_.find(crLf, at), text_.size()));
            break;
        default:
            return;
    }
    selEnd_ = selStart_;
}

void TextBox::ReceiveSelection(std::int32_t start, std::int32_t length) {
    selStart_ = std::clamp(start, 0, Length());
    selEnd_ = selStart_ + std::clamp(length, 0, Length() - selStart_);
}

void TextBox::ReceivePaste(TextView text) {
    const TextView fitting = Fitting(multiLine_ ? text : FirstLine(text), Room());
    if (!fitting.empty()) {
        Replace(EditedRange(), fitting);
    }
}

// Returns the number of units that may replace the selection.
std::size_t TextBox::Room() const {
    if (maxLength_ == 0) {
        return std::numeric_limits<std::size_t>::max();
    }
    const Range replaced = EditedRange();
    const std::int32_t kept = Length() - (replaced.end - replaced.start);
    return static_cast<std::size_t>(std::max(maxLength_ - kept, 0));
}

// Returns the selection that the user edits: a position between CR and LF stands for the one before
// both.
TextBox::Range TextBox::EditedRange() const {
    const auto edited = [&](std::int32_t position) {
        const bool isInBreak =
            position > 0 &&
            TextView(text_).substr(static_cast<std::size_t>(position) - 1, 2) == crLf;
        return isInBreak ? position - 1 : position;
    };
    return {.start = edited(selStart_), .end = edited(selEnd_)};
}

void TextBox::Replace(Range range, TextView replacement) {
    const auto start = static_cast<std::size_t>(range.start);
    const auto length = static_cast<std::size_t>(range.end - range.start);
    const bool changes = TextView(text_).substr(start, length) != replacement;
    text_.replace(start, length, replacement);
    selStart_ = range.start + static_cast<std::int32_t>(replacement.size());
    selEnd_ = selStart_;
    if (changes) {
        events_.Change();
    }
}

}  // namespace lumenkit::memory
