#include "runtime/win32/label.h"

#include <string>

#include "runtime/win32/device.h"
#include "runtime/win32/spoken_text.h"

namespace lumenkit::win32 {

namespace {

// The size is in pixels. An empty caption has the height of one line.
SIZE SizeOf(const Text& caption, HFONT font) {
    const std::wstring wide = caption.empty() ? L" " : ToWide(caption);
    const WindowDevice screen(nullptr);
    const Selection selection(screen.Handle(), font);
    RECT extent = {};
    DrawTextW(screen.Handle(), wide.c_str(), static_cast<int>(wide.size()), &extent,
              DT_CALCRECT | DT_LEFT | DT_EXPANDTABS);
    return {caption.empty() ? 0 : extent.right, extent.bottom};
}

}  // namespace

Label::Label(const Elements& elements, const host::CaptionDesign& design)
    : BasicCaptioned(elements, {.className = L"STATIC", .style = SS_LEFT}, design, design.caption) {
}

void Label::SetAutoSize(bool autoSize) {
    autoSize_ = autoSize;
    FitToCaption();
}

void Label::SetForeColor(Color color) {
    foreColor_ = color;
    Invalidate();
}

void Label::SetBackColor(Color color) {
    backColor_ = color;
    Invalidate();
}

std::optional<Description> Label::Describe() {
    return Description{.role = staticTextRole, .name = WithoutMnemonic(CaptionNow())};
}

void Label::ShowCaption() {
    BasicCaptioned::ShowCaption();
    FitToCaption();
}

void Label::ShowFont() {
    BasicCaptioned::ShowFont();
    FitToCaption();
}

void Label::FitToCaption() {
    if (!autoSize_) {
        return;
    }
    const SIZE size = SizeOf(CaptionNow(), FontHandle());
    host::Placement fitting = Where();
    fitting.width = ToTwips(static_cast<int>(size.cx), PixelsPerInch().x);
    fitting.height = ToTwips(static_cast<int>(size.cy), PixelsPerInch().y);
    MoveTo(fitting);
}

std::optional<LRESULT> Label::HandleNotification(UINT message, WPARAM wParam, LPARAM /*lParam*/) {
    if (message == WM_CTLCOLORSTATIC) {
        return AnswerColors(wParam, foreColor_, backColor_);
    }
    return std::nullopt;
}

}  // namespace lumenkit::win32
