#include "runtime/win32/frame_box.h"

#include "frame/host/accepted_values.h"
#include "runtime/win32/canvas_part.h"
#include "runtime/win32/device.h"
#include "runtime/win32/edges.h"
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

// The groove runs through the middle of the caption.
void FrameBox::DrawContent(Canvas& canvas, SIZE size) const {
    constexpr int captionLeft = 8;
    canvas.Clear(Color::ButtonFace);
    if (borderStyle_ == 0) {
        return;
    }
    const CaptionPicture caption = Picture();
    DrawEtchedEdge(canvas, {0, caption.Height() / 2 - 1, size.cx, size.cy});
    const int width = caption.Width();
    if (width > 0) {
        const CanvasClip clip(canvas, {captionLeft - 2, 0, size.cx - captionLeft + 2, size.cy});
        canvas.Fill({captionLeft - 2, 0, captionLeft + width + 1, caption.Height()},
                    Color::ButtonFace);
        caption.DrawOn(canvas, {captionLeft, 0}, InkOf(Color::ButtonText), ShowsMnemonics());
    }
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
