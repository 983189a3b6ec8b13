#include "runtime/win32/option_button.h"

#include <uxtheme.h>

#include "frame/host/accepted_values.h"
#include "runtime/win32/canvas_part.h"
#include "runtime/win32/colors.h"
#include "runtime/win32/marked_caption.h"
#include "runtime/win32/spoken_text.h"

namespace lumenkit::win32 {

OptionButton::OptionButton(const Elements& elements, const host::OptionButtonDesign& design,
                           OptionGroup& group)
    : BasicCaptioned(elements, {.className = L"BUTTON", .style = BS_RADIOBUTTON}, design,
                     design.caption),
      group_(group) {
    // Receiving the focus must not click the button.
    Ask(BM_SETDONTCLICK, TRUE);
}

void OptionButton::SetVisible(bool visible) {
    const Watch watch(*this);
    BecomeVisible(visible);
    if (!watch.IsGone()) {
        group_.PlaceTabStop();
    }
}

void OptionButton::SetEnabled(bool enabled) {
    const Watch watch(*this);
    BecomeEnabled(enabled);
    if (!watch.IsGone()) {
        group_.PlaceTabStop();
    }
}

void OptionButton::Select(bool selected) {
    if (selected) {
        group_.Choose(*this);
    } else {
        group_.Release(*this);
    }
}

void OptionButton::SetAlignment(std::int16_t alignment) {
    if (AcceptedNumber<std::int16_t>(alignment, 0, 1) == alignment_) {
        return;
    }
    alignment_ = alignment;
    SwitchStyle(BS_RIGHTBUTTON, alignment == 1);
    Invalidate();
}

void OptionButton::SetForeColor(Color color) {
    if (color == foreColor_) {
        return;
    }
    foreColor_ = color;
    // Visual styles draw captions in their own colour. Without them the button asks its parent.
    const wchar_t* const theme = color == Color::ButtonText ? nullptr : L"";
    SetWindowTheme(Handle(), theme, theme);
    Invalidate();
}

std::optional<Description> OptionButton::Describe() {
    constexpr LONG checked = 0x10;
    const auto [position, count] = group_.RankOf(*this);
    return Description{.role = radioButtonRole,
                       .name = WithoutMnemonic(CaptionNow()),
                       .states = IsSelected() ? checked : 0,
                       .position = position,
                       .groupSize = count,
                       .action = L"Check"};
}

void OptionButton::Mark(bool selected) {
    Ask(BM_SETCHECK, selected ? BST_CHECKED : BST_UNCHECKED);
}

void OptionButton::BecomeTabStop(bool stops) {
    SwitchStyle(WS_TABSTOP, stops);
}

// Moves the focus to the next (or previous) button that takes it, and chooses that button. May
// destroy the object.
void OptionButton::Step(bool forward) {
    OptionGroup& group = group_;
    OptionButton* const next = group.Neighbour(*this, forward);
    if (next == nullptr) {
        return;
    }
    const Watch watch(*next);
    SetFocus(next->Handle());
    if (!watch.IsGone()) {
        group.Choose(*next);
    }
}

void OptionButton::DrawContent(Canvas& canvas, SIZE size) const {
    const CaptionPicture caption = Picture();
    const MarkedCaption places =
        MarkedCaption::In(size, caption, PixelsPerInch().x, alignment_ == 1);
    canvas.Clear(Color::ButtonFace);
    DrawRing(canvas, places.mark);
    const CanvasClip clip(canvas, places.caption);
    caption.DrawOn(canvas, places.text, InkOf(foreColor_), ShowsMnemonics());
}

// The dot takes a third of the ring.
void OptionButton::DrawRing(Canvas& canvas, RECT box) const {
    const int edge = static_cast<int>(box.right - box.left) / 3;
    canvas.FillFigure(Figure::Ellipse, box, SystemColor(COLOR_BTNSHADOW));
    InflateRect(&box, -1, -1);
    canvas.FillFigure(Figure::Ellipse, box,
                      IsUsable() ? Color::WindowBackground : Color::ButtonFace);
    if (IsSelected()) {
        InflateRect(&box, 1 - edge, 1 - edge);
        canvas.FillFigure(Figure::Ellipse, box, InkOf(Color::WindowText));
    }
}

LRESULT OptionButton::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_KEYDOWN) {
        switch (wParam) {
            case VK_DOWN:
            case VK_RIGHT:
                Step(true);
                return 0;
            case VK_UP:
            case VK_LEFT:
                Step(false);
                return 0;
            default:
                break;
        }
    }
    if (message == WM_GETDLGCODE) {
        return Default(message, wParam, lParam) | DLGC_WANTARROWS;
    }
    return BasicCaptioned::HandleMessage(message, wParam, lParam);
}

std::optional<LRESULT> OptionButton::HandleNotification(UINT message, WPARAM wParam,
                                                        LPARAM /*lParam*/) {
    switch (message) {
        case WM_CTLCOLORBTN:
        case WM_CTLCOLORSTATIC:
            return AnswerColors(wParam, foreColor_, Color::ButtonFace);
        case WM_COMMAND:
            if (HIWORD(wParam) == BN_CLICKED || HIWORD(wParam) == BN_DOUBLECLICKED) {
                group_.Choose(*this);
            }
            return 0;
        default:
            return std::nullopt;
    }
}

}  // namespace lumenkit::win32
