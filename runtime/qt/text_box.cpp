#include "runtime/qt/text_box.h"

#include <algorithm>

#include "frame/host/accepted_values.h"
#include "runtime/qt/input.h"
#include "runtime/qt/palette_color.h"

namespace lumenkit::qt {

TextBox::TextBox(Elements& elements, const host::TextBoxDesign& design, host::TextBoxEvents& events)
    : BasicTextConstituent(elements, design) {
    Adopt(std::make_unique<TextEdit>(&ParentFor(elements, design), design, events, Errors()));
    ShowFont();
    ShowColors();
}

void TextBox::Disconnect() {
    if (Widget() != nullptr) {
        Edit().Disconnect();
    }
}

void TextBox::Describe(const QString& name, const QString& hint) {
    if (Widget() != nullptr) {
        Edit().setAccessibleName(name);
        Edit().setAccessibleDescription(hint);
    }
}

void TextBox::SetText(TextView text) {
    caretIsPlaced_ = false;
    Edit().SetContents(maxLength_ > 0 ? text.substr(0, static_cast<std::size_t>(maxLength_))
                                      : text);
}

// ---- The twin

void TextBox::SetVisible(bool visible) {
    TextBox* const twin = visible || !IsVisible() ? nullptr : Twin();
    if (twin != nullptr && !twin->caretIsPlaced_) {
        const std::int32_t length = twin->Edit().Length();
        const TextEdit::Selection selected = Edit().Selected();
        twin->Edit().Select(
            {.start = std::min(selected.start, length), .end = std::min(selected.end, length)});
    }
    caretIsPlaced_ = caretIsPlaced_ && visible;
    BasicTextConstituent::SetVisible(visible);
}

const Element* TextBox::Heir() const {
    const TextBox* const twin = Twin();
    return twin != nullptr && twin->IsEnabled() ? twin : nullptr;
}

// Returns the visible box of the same control array that has the same place; null if there is none.
// A box that must look different is hidden and its twin is shown.
TextBox* TextBox::Twin() const {
    for (Element* const element : Siblings().All()) {
        auto* const box = dynamic_cast<TextBox*>(element);
        if (box != nullptr && box != this && box->Widget() != nullptr && Index() >= 0 &&
            box->Name() == Name() && box->IsVisible() && box->Where() == Where() &&
            box->Edit().parentWidget() == Edit().parentWidget()) {
            return box;
        }
    }
    return nullptr;
}

// ---- The selection

void TextBox::SetSelStart(std::int32_t position) {
    Require(position >= 0);
    caretIsPlaced_ = true;
    const std::int32_t start = std::min(position, Edit().Length());
    Edit().Select({.start = start, .end = start});
}

std::int32_t TextBox::SelLength() const {
    const TextEdit::Selection selected = Edit().Selected();
    return selected.end - selected.start;
}

void TextBox::SetSelLength(std::int32_t length) {
    Require(length >= 0);
    caretIsPlaced_ = true;
    const std::int32_t start = SelStart();
    Edit().Select({.start = start, .end = start + std::min(length, Edit().Length() - start)});
}

void TextBox::GetSelection(std::int32_t& start, std::int32_t& end) const {
    const TextEdit::Selection selected = Edit().Selected();
    start = selected.start;
    end = selected.end;
}

void TextBox::SetSelection(std::int32_t start, std::int32_t end) {
    caretIsPlaced_ = true;
    if (start == -1) {
        const std::int32_t caret = Edit().Selected().end;
        Edit().Select({.start = caret, .end = caret});
        return;
    }
    // The numbers of the message are unsigned: a negative position is beyond the end.
    const auto placed = [length = Edit().Length()](std::int32_t position) {
        return position < 0 ? length : std::min(position, length);
    };
    const auto [first, last] = std::minmax({placed(start), placed(end)});
    Edit().Select({.start = first, .end = last});
}

void TextBox::SetForeColor(Color color) {
    foreColor_ = color;
    ShowColors();
}

void TextBox::ShowColors() {
    if (foreColor_ == Color::WindowText) {
        Edit().setPalette({});  // the palette greys it when it is disabled
        return;
    }
    const QPalette& base = Area().palette();
    QPalette palette = base;
    palette.setColor(QPalette::Text, ToQColor(foreColor_, base));
    Edit().setPalette(palette);
}

void TextBox::SetMaxLength(std::int32_t length) {
    Require(length >= 0);
    maxLength_ = length;
    Edit().SetMaxLength(length);
}

void TextBox::SetPointer(host::MousePointer pointer) {
    RequirePointer(static_cast<std::int32_t>(pointer));
    pointer_ = pointer;
    ShowPointer(*Edit().viewport(), pointer, Qt::IBeamCursor);
}

std::int32_t TextBox::WindowHandle() const {
    Edit().setAttribute(Qt::WA_DontCreateNativeAncestors);
    return static_cast<std::int32_t>(Edit().winId());
}

}  // namespace lumenkit::qt
