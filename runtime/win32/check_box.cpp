#include "runtime/win32/check_box.h"

#include "frame/host/accepted_values.h"
#include "runtime/win32/canvas_part.h"
#include "runtime/win32/colors.h"
#include "runtime/win32/edges.h"
#include "runtime/win32/marked_caption.h"

namespace lumenkit::win32 {

namespace {

// Draws the mark of a checked box, column by column: two down, the others up.
void DrawTick(Canvas& canvas, const RECT& box, Color ink) {
    constexpr int columns = 7;
    constexpr int height = 3;
    const LONG left = (box.left + box.right - columns) / 2;
    LONG top = (box.top + box.bottom - height) / 2;
    for (int column = 0; column < columns; ++column) {
        canvas.Fill({left + column, top, left + column + 1, top + height}, ink);
        top += column < 2 ? 1 : -1;
    }
}

}  // namespace

CheckBox::CheckBox(const Elements& elements, const host::CaptionDesign& design,
                   host::ClickEvents& events)
    : BasicCaptioned(elements, {.className = L"BUTTON", .style = BS_3STATE | WS_TABSTOP}, design,
                     design.caption, design.accessKey),
      events_(events) {}

void CheckBox::SetCheckState(std::int16_t state) {
    Change(AcceptedNumber<std::int16_t>(state, 0, 2));
}

void CheckBox::Change(std::int16_t state) {
    if (state != state_) {
        state_ = state;
        Ask(BM_SETCHECK, static_cast<WPARAM>(state));  // BM_SETCHECK uses the same numbers
        events_.Click();
    }
}

void CheckBox::DrawContent(Canvas& canvas, SIZE size) const {
    const CaptionPicture caption = Picture();
    const MarkedCaption places = MarkedCaption::In(size, caption, PixelsPerInch().x, false);
    canvas.Clear(Color::ButtonFace);
    canvas.Fill(places.mark,
                IsUsable() && state_ < 2 ? Color::WindowBackground : Color::ButtonFace);
    DrawSunkenEdge(canvas, places.mark);
    if (state_ != 0) {
        DrawTick(canvas, places.mark,
                 state_ == 1 ? InkOf(Color::WindowText) : SystemColor(COLOR_GRAYTEXT));
    }
    const CanvasClip clip(canvas, places.caption);
    caption.DrawOn(canvas, places.text, InkOf(Color::ButtonText), ShowsMnemonics());
}

std::optional<LRESULT> CheckBox::HandleNotification(UINT message, WPARAM wParam,
                                                    LPARAM /*lParam*/) {
    switch (message) {
        case WM_CTLCOLORBTN:
        case WM_CTLCOLORSTATIC:
            return AnswerColors(wParam, Color::ButtonText, Color::ButtonFace);
        case WM_COMMAND:
            if (HIWORD(wParam) == BN_CLICKED) {
                Change(state_ == 0 ? 1 : 0);
            }
            return 0;
        default:
            return std::nullopt;
    }
}

}  // namespace lumenkit::win32
