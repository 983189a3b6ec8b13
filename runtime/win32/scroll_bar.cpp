#include "runtime/win32/scroll_bar.h"

#include <algorithm>

#include "frame/host/accepted_values.h"
#include "runtime/win32/device_canvas.h"
#include "runtime/win32/scroll_bar_picture.h"

namespace lumenkit::win32 {

namespace {

// Returns the number of small steps per notch of the wheel, or nothing for whole pages.
std::optional<int> StepsOfNotch() {
    UINT lines = 3;
    SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
    return lines == WHEEL_PAGESCROLL ? std::nullopt : std::optional(static_cast<int>(lines));
}

}  // namespace

ScrollBar::ScrollBar(const Elements& elements, const host::Design& design,
                     host::Orientation orientation, host::ScrollBarEvents& events)
    : BasicConstituent(
          elements,
          {.className = L"SCROLLBAR",
           .style = WS_TABSTOP |
                    static_cast<DWORD>(orientation == host::Orientation::Vertical ? SBS_VERT
                                                                                  : SBS_HORZ)},
          design),
      events_(events),
      orientation_(orientation) {
    ShowRange();
}

void ScrollBar::SetScrollValue(std::int16_t value) {
    Scroll(AcceptedNumber<std::int16_t>(value, 0, max_));
}

void ScrollBar::SetMax(std::int16_t max) {
    Require(max >= 0);
    max_ = max;
    ShowRange();
    Scroll(value_);
}

void ScrollBar::SetLargeChange(std::int16_t step) {
    Require(step >= 1);
    largeChange_ = step;
    ShowRange();
}

void ScrollBar::SetSmallChange(std::int16_t step) {
    Require(step >= 1);
    smallChange_ = step;
}

// The thumb represents a page. The platform's maximum is the end of the last page.
SCROLLINFO ScrollBar::Range() const {
    SCROLLINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
    info.nMax = max_ + largeChange_ - 1;
    info.nPage = static_cast<UINT>(largeChange_);
    info.nPos = std::min(value_, max_);
    return info;
}

void ScrollBar::ShowRange() {
    SCROLLINFO info = Range();
    Ask(SBM_SETSCROLLINFO, TRUE, reinterpret_cast<LPARAM>(&info));
    ShowEnabled();  // the new range may have changed it
}

void ScrollBar::Scroll(std::int32_t value) {
    const auto reached = static_cast<std::int16_t>(std::clamp<std::int32_t>(value, 0, max_));
    if (reached == value_) {
        return;
    }
    value_ = reached;
    Ask(SBM_SETPOS, static_cast<WPARAM>(reached), TRUE);
    events_.Change();
}

void ScrollBar::ScrollBy(WORD code, WORD position) {
    switch (code) {
        case SB_LINEUP:
            return Scroll(value_ - smallChange_);
        case SB_LINEDOWN:
            return Scroll(value_ + smallChange_);
        case SB_PAGEUP:
            return Scroll(value_ - largeChange_);
        case SB_PAGEDOWN:
            return Scroll(value_ + largeChange_);
        case SB_TOP:
            return Scroll(0);
        case SB_BOTTOM:
            return Scroll(max_);
        case SB_THUMBTRACK:
        case SB_THUMBPOSITION:
            return Scroll(position);
        default:
            return;
    }
}

LRESULT ScrollBar::TurnWheel(UINT message, WPARAM wParam) {
    const int turned = GET_WHEEL_DELTA_WPARAM(wParam);
    wheel_ += message == WM_MOUSEHWHEEL ? turned : -turned;
    const std::optional<int> steps = StepsOfNotch();
    const int distance = steps ? *steps * smallChange_ : largeChange_;
    const int scrolled = wheel_ * distance / WHEEL_DELTA;
    if (scrolled != 0) {
        wheel_ -= scrolled * WHEEL_DELTA / distance;
        Scroll(value_ + scrolled);
    }
    return 0;
}

void ScrollBar::DrawOn(HDC device) {
    RECT area = {};
    GetClientRect(Handle(), &area);
    DeviceCanvas canvas(device, Mapping::Plain(SizeOf(area)), area);
    DrawContent(canvas, SizeOf(area));
}

void ScrollBar::DrawContent(Canvas& canvas, SIZE size) const {
    DrawScrollBar(canvas, {0, 0, size.cx, size.cy}, orientation_ == host::Orientation::Vertical,
                  Range(), IsEnabled());
}

LRESULT ScrollBar::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_MOUSEWHEEL || message == WM_MOUSEHWHEEL) {
        return TurnWheel(message, wParam);
    }
    return BasicConstituent::HandleMessage(message, wParam, lParam);
}

std::optional<LRESULT> ScrollBar::HandleNotification(UINT message, WPARAM wParam,
                                                     LPARAM /*lParam*/) {
    if (message != WM_HSCROLL && message != WM_VSCROLL) {
        return std::nullopt;
    }
    ScrollBy(LOWORD(wParam), HIWORD(wParam));
    return 0;
}

}  // namespace lumenkit::win32
