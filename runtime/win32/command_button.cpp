#include "runtime/win32/command_button.h"

#include "runtime/win32/edges.h"

namespace lumenkit::win32 {

CommandButton::CommandButton(const Elements& elements, const host::CaptionDesign& design,
                             host::ClickEvents& events)
    : BasicCaptioned(elements, {.className = L"BUTTON", .style = BS_PUSHBUTTON | WS_TABSTOP},
                     design, design.caption, design.accessKey),
      events_(events) {}

void CommandButton::DrawContent(Canvas& canvas, SIZE size) const {
    canvas.Clear(Color::ButtonFace);
    DrawRaisedEdge(canvas, {0, 0, size.cx, size.cy});
    const CaptionPicture caption = Picture();
    caption.DrawOn(canvas, {(size.cx - caption.Width()) / 2, (size.cy - caption.Height()) / 2},
                   InkOf(Color::ButtonText), ShowsMnemonics());
}

LRESULT CommandButton::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_KEYDOWN && wParam == VK_RETURN) {
        events_.Click();
        return 0;
    }
    return BasicCaptioned::HandleMessage(message, wParam, lParam);
}

std::optional<LRESULT> CommandButton::HandleNotification(UINT message, WPARAM wParam,
                                                         LPARAM /*lParam*/) {
    if (message != WM_COMMAND) {
        return std::nullopt;
    }
    if (HIWORD(wParam) == BN_CLICKED) {
        events_.Click();
    }
    return 0;
}

}  // namespace lumenkit::win32
