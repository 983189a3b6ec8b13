#include "runtime/win32/label.h"

#include <string>

#include "runtime/win32/device.h"
#include "runtime/win32/spoken_text.h"

namespace lumenkit::win32 {

namespace {

DWORD StyleOf(bool useMnemonic) {
    return useMnemonic ? SS_LEFT : SS_LEFTNOWORDWRAP | SS_NOPREFIX;
}

// The size is in pixels. An empty caption has the height of one line.
SIZE SizeOf(const Text& caption, bool useMnemonic, HFONT font) {
    const std::wstring wide = caption.empty() ? L" " : ToWide(caption);
    const WindowDevice screen(nullptr);
    const Selection selection(screen.Handle(), font);
    RECT extent = {};
    DrawTextW(screen.Handle(), wide.c_str(), static_cast<int>(wide.size()), &extent,
              DT_CALCRECT | DT_LEFT | DT_EXPANDTABS | (useMnemonic ? 0U : DT_NOPREFIX));
    return {caption.empty() ? 0 : extent.right, extent.bottom};
}

}  // namespace

Label::Label(const Elements& elements, const host::CaptionDesign& design)
    : BasicCaptioned(elements, {.className = L"STATIC", .style = StyleOf(design.useMnemonic)},
                     design, design.caption, design.accessKey),
      useMnemonic_(design.useMnemonic) {
    if (!useMnemonic_) {
        BasicCaptioned::ShowCaption();  // with its signs
    }
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

Text Label::ShownCaption() const {
    return useMnemonic_ ? BasicCaptioned::ShownCaption() : shared::WithVisibleSigns(CaptionNow());
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
    const SIZE size = SizeOf(ShownCaption(), useMnemonic_, FontHandle());
    host::Placement fitting = Where();
    fitting.width = ToTwips(static_cast<int>(size.cx), PixelsPerInch().x);
    fitting.height = ToTwips(static_cast<int>(size.cy), PixelsPerInch().y);
    MoveTo(fitting);
}

// The platform repaints only the part that is new after a resize, but the lines of the whole text
// may break elsewhere.
LRESULT Label::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_SIZE) {
        Invalidate();
    }
    return BasicCaptioned::HandleMessage(message, wParam, lParam);
}

std::optional<LRESULT> Label::HandleNotification(UINT message, WPARAM wParam, LPARAM /*lParam*/) {
    if (message == WM_CTLCOLORSTATIC) {
        return AnswerColors(wParam, foreColor_, backColor_);
    }
    return std::nullopt;
}

}  // namespace lumenkit::win32
