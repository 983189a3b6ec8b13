#include "runtime/win32/label.h"

#include <algorithm>
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

// Returns the length of the first line: as many words as fit into `width` pixels, at least one.
std::size_t LengthOfFirstLine(TextView text, LONG width, const ScreenFontRef& font) {
    std::size_t length = std::min(text.find(blank), text.size());
    while (length < text.size()) {
        const std::size_t next = std::min(text.find(blank, length + 1), text.size());
        if (CaptionPicture(text.substr(0, next), font).Width() > width) {
            break;
        }
        length = next;
    }
    return length;
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

void Label::DrawContent(Canvas& canvas, SIZE size) const {
    canvas.Clear(backColor_);
    const ScreenFontRef font = RealisedFont();
    const Text shown = ShownCaption();
    TextView rest = shown;
    for (LONG top = 0; !rest.empty() && top < size.cy; top += font->LineHeight()) {
        const TextView paragraph = rest.substr(0, rest.find_first_of(crLf));
        const std::size_t length = LengthOfFirstLine(paragraph, size.cx, font);
        const TextView line = paragraph.substr(0, length);
        if (useMnemonic_) {
            CaptionPicture(line, font)
                .DrawOn(canvas, {0, top}, InkOf(foreColor_), ShowsMnemonics());
        } else {
            canvas.Print({.text = line, .at = {0, top}, .font = font, .ink = InkOf(foreColor_)});
        }
        rest.remove_prefix(length);
        rest.remove_prefix(rest.starts_with(crLf) ? crLf.size()
                                                  : std::min<std::size_t>(1, rest.size()));
    }
}

std::optional<LRESULT> Label::HandleNotification(UINT message, WPARAM wParam, LPARAM /*lParam*/) {
    if (message == WM_CTLCOLORSTATIC) {
        return AnswerColors(wParam, foreColor_, backColor_);
    }
    return std::nullopt;
}

}  // namespace lumenkit::win32
