#include "runtime/win32/frame_box.h"

#include "frame/host/accepted_values.h"
#include "runtime/win32/device.h"
#include "runtime/win32/label_before.h"
#include "runtime/win32/spoken_text.h"

namespace lumenkit::win32 {

FrameBox::FrameBox(const Elements& elements, const host::CaptionDesign& design)
    : BasicCaptioned(elements,
                     {.className = L"BUTTON",
                      .style = BS_GROUPBOX | WS_CLIPCHILDREN,
                      .extendedStyle = WS_EX_CONTROLPARENT},
                     design, design.caption, design.accessKey) {}

void FrameBox::SetBorderStyle(std::int16_t style) {
    borderStyle_ = AcceptedNumber<std::int16_t>(style, 0, 1);
    Invalidate();
}

std::optional<Description> FrameBox::Describe() {
    const Text caption = borderStyle_ == 0 ? Text() : SpokenLine(WithoutMnemonic(CaptionNow()));
    return Description{.role = groupRole,
                       .name = caption.empty() ? LabelBefore(Handle()) : caption};
}

void FrameBox::ShowCaption() {
    BasicCaptioned::ShowCaption();
    Invalidate();
}

LRESULT FrameBox::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_ERASEBKGND:
            FillBackground(reinterpret_cast<HDC>(wParam));
            return 1;
        case WM_PAINT:
            if (borderStyle_ == 0) {
                const PaintDevice erased(Handle());
                return 0;
            }
            break;
        case WM_PRINTCLIENT:
            // A transparent child window asks its parent to paint only the client area. The border
            // is not painted then, because the child covers it.
            if (borderStyle_ == 0 || lParam == PRF_CLIENT) {
                return 0;
            }
            break;
        default:
            break;
    }
    return BasicCaptioned::HandleMessage(message, wParam, lParam);
}

}  // namespace lumenkit::win32
