#include "runtime/win32/element.h"

#include <stdexcept>

#include "frame/host/accepted_values.h"
#include "runtime/win32/colors.h"

namespace lumenkit::win32 {

namespace {

// Draws the border, if there is one, and moves the origin to its inner corner.
void DrawBorder(HWND window, HDC device) {
    if ((GetWindowLongW(window, GWL_EXSTYLE) & WS_EX_CLIENTEDGE) == 0) {
        return;
    }
    RECT outside = {};
    GetWindowRect(window, &outside);
    OffsetRect(&outside, -outside.left, -outside.top);
    const int border = GetSystemMetrics(SM_CXEDGE);
    DrawEdge(device, &outside, EDGE_SUNKEN, BF_RECT);
    OffsetWindowOrgEx(device, -border, -border, nullptr);
}

}  // namespace

HWND ParentWindow(const Elements& elements, const host::Design& design) {
    if (design.parent == nullptr) {
        return elements.window.Handle();
    }
    const auto* const parent = dynamic_cast<const Element*>(design.parent);
    if (parent == nullptr) {
        throw std::logic_error("the parent belongs to another runtime");
    }
    return parent->Handle();
}

Element::Element(const Elements& elements, const Kind& kind, const host::Design& design,
                 TextView text)
    : name_(design.name),
      index_(design.index),
      placement_(design.placement),
      visible_(design.visible),
      owner_(elements.window.Handle()),
      resolution_(elements.resolution) {
    RequireSize(placement_.width, placement_.height);
    const DWORD visible = visible_ ? WS_VISIBLE : 0;
    Create({.module = elements.context.module,
            .className = kind.className,
            .text = text,
            .style = WS_CHILD | WS_CLIPSIBLINGS | visible | kind.style,
            .extendedStyle = kind.extendedStyle,
            .place = ToPixels(placement_, resolution_),
            .parent = ParentWindow(elements, design)});
}

Element::~Element() {
    Destroy();
}

void Element::MoveTo(const host::Placement& placement) {
    RequireSize(placement.width, placement.height);
    const RECT before = ToPixels(placement_, resolution_);
    const RECT now = ToPixels(placement, resolution_);
    placement_ = placement;
    if (EqualRect(&before, &now) == FALSE) {
        SetWindowPos(Handle(), nullptr, now.left, now.top, now.right - now.left,
                     now.bottom - now.top, SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOOWNERZORDER);
    }
}

void Element::BecomeVisible(bool visible) {
    if (visible != visible_) {
        visible_ = visible;
        ShowWindow(Handle(), visible ? SW_SHOWNA : SW_HIDE);
        TellThatMnemonicsMayChange();
    }
}

void Element::BecomeEnabled(bool enabled) {
    if (enabled == enabled_) {
        return;
    }
    enabled_ = enabled;
    const HWND focus = GetFocus();
    const bool losesFocus = !enabled && focus != nullptr && Handle() != nullptr &&
                            (focus == Handle() || IsChild(Handle(), focus) != FALSE);
    EnableWindow(Handle(), enabled ? TRUE : FALSE);
    TellThatMnemonicsMayChange();
    if (losesFocus) {
        SetFocus(owner_);  // so that keys still reach a window; may destroy the object
    }
}

void Element::TellThatMnemonicsMayChange() const {
    SendMessageW(owner_, mnemonicsMessage, 0, 0);
}

void Element::RepaintNow() const {
    if (Handle() != nullptr) {
        RedrawWindow(Handle(), nullptr, nullptr,
                     RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW);
    }
}

void Element::Invalidate() const {
    if (Handle() != nullptr) {
        InvalidateRect(Handle(), nullptr, TRUE);
    }
}

LRESULT Element::Ask(UINT message, WPARAM wParam, LPARAM lParam) const {
    return Handle() == nullptr ? 0 : SendMessageW(Handle(), message, wParam, lParam);
}

void Element::SwitchStyle(DWORD style, bool on) const {
    const auto before = static_cast<DWORD>(GetWindowLongW(Handle(), GWL_STYLE));
    const DWORD now = on ? before | style : before & ~style;
    if (now != before) {
        SetWindowLongW(Handle(), GWL_STYLE, static_cast<LONG>(now));
    }
}

LRESULT Element::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_SETFOCUS && message != WM_KILLFOCUS) {
        return Default(message, wParam, lParam);
    }
    const bool came = message == WM_SETFOCUS;
    const Watch watch(*this);
    const LRESULT answer = Default(message, wParam, lParam);
    if (!watch.IsGone()) {
        SendMessageW(owner_, constituentFocusMessage, came ? 1 : 0, 0);
    }
    if (!watch.IsGone()) {
        FocusMoved(came);
    }
    return answer;
}

void Element::FillBackground(HDC device) const {
    RECT inside = {};
    GetClientRect(Handle(), &inside);
    FillRect(device, &inside, GetSysColorBrush(COLOR_BTNFACE));
}

LRESULT Element::AnswerColors(WPARAM device, Color text, Color background) {
    const auto context = reinterpret_cast<HDC>(device);
    SetTextColor(context, ToColorRef(text));
    SetBkColor(context, ToColorRef(background));
    SetDCBrushColor(context, ToColorRef(background));
    return reinterpret_cast<LRESULT>(GetStockObject(DC_BRUSH));
}

void Element::DrawOn(HDC device) {
    const int state = SaveDC(device);
    DrawBorder(Handle(), device);
    RECT inside = {};
    GetClientRect(Handle(), &inside);
    IntersectClipRect(device, inside.left, inside.top, inside.right, inside.bottom);
    const auto context = reinterpret_cast<WPARAM>(device);
    Ask(WM_ERASEBKGND, context);
    Ask(WM_PRINTCLIENT, context, PRF_CLIENT | PRF_ERASEBKGND);
    DrawChildren(Handle(), device);
    RestoreDC(device, state);
}

}  // namespace lumenkit::win32
