#include "runtime/win32/element.h"

#include <stdexcept>
#include <utility>

#include "frame/host/accepted_values.h"
#include "runtime/win32/accessible_object.h"
#include "runtime/win32/canvas_part.h"
#include "runtime/win32/colors.h"
#include "runtime/win32/edges.h"
#include "runtime/win32/keyboard.h"
#include "runtime/win32/resolution_messages.h"

namespace lumenkit::win32 {

namespace {

bool HasEdge(HWND window) {
    return (GetWindowLongW(window, GWL_EXSTYLE) & WS_EX_CLIENTEDGE) != 0;
}

// Draws the border, if there is one, and moves the origin to its inner corner.
void DrawBorder(HWND window, HDC device) {
    if (!HasEdge(window)) {
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
      movingEdges_(design.movingEdges),
      visible_(design.visible),
      owner_(elements.window.Handle()),
      resolution_(elements.context.resolution) {
    RequireSize(placement_.width, placement_.height);
    const DWORD visible = visible_ ? WS_VISIBLE : 0;
    Create({.module = elements.context.module,
            .className = kind.className,
            .text = text,
            .style = WS_CHILD | WS_CLIPSIBLINGS | visible | kind.style,
            .extendedStyle = kind.extendedStyle,
            .place = ToPixels(placement_, resolution_),
            .parent = ParentWindow(elements, design)});
    const auto* const parent = dynamic_cast<const Element*>(design.parent);
    if (parent != nullptr && !parent->IsUsable()) {
        parentIsUsable_ = false;
        EnableWindow(Handle(), FALSE);
    }
}

Element::~Element() {
    Destroy();
}

void Element::MoveTo(const host::Placement& placement) {
    RequireSize(placement.width, placement.height);
    const RECT before = PlaceInPixels();
    placement_ = placement;
    PutInto(before);
}

void Element::FollowPage(SIZE growth) {
    const RECT before = PlaceInPixels();
    growth_ = growth;
    PutInto(before);
}

RECT Element::PlaceInPixels() const {
    RECT place = ToPixels(placement_, resolution_);
    place.left += movingEdges_.left ? growth_.cx : 0;
    place.top += movingEdges_.top ? growth_.cy : 0;
    place.right += movingEdges_.right ? growth_.cx : 0;
    place.bottom += movingEdges_.bottom ? growth_.cy : 0;
    return place;
}

// Moves the window to its place, unless it was there before.
void Element::PutInto(const RECT& former) const {
    const RECT now = PlaceInPixels();
    if (EqualRect(&former, &now) == FALSE) {
        SetWindowPos(Handle(), nullptr, now.left, now.top, now.right - now.left,
                     now.bottom - now.top, SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOOWNERZORDER);
    }
}

void Element::BecomeVisible(bool visible) {
    if (visible != visible_) {
        visible_ = visible;
        BecomeUsable(visible, [&] { ShowWindow(Handle(), visible ? SW_SHOWNA : SW_HIDE); });
    }
}

void Element::BecomeEnabled(bool enabled) {
    if (enabled != enabled_) {
        enabled_ = enabled;
        BecomeUsable(enabled, [&] { ShowEnabled(); });
    }
}

// Handlers of the focus may destroy the object.
template <typename Change>
void Element::BecomeUsable(bool usable, Change&& change) {
    const Watch watch(*this);
    if (!usable) {
        GiveFocusAway();
    }
    if (watch.IsGone()) {
        return;
    }
    change();
    if (!watch.IsGone()) {
        TellThatMnemonicsMayChange();
    }
    if (usable && !watch.IsGone()) {
        TakeFocusBack();
    }
}

// The window classes grey only disabled windows, so the elements in a disabled frame have disabled
// windows too.
void Element::ShowEnabled() {
    EnableWindow(Handle(), IsUsable() ? TRUE : FALSE);
    const HWND first = Handle() == nullptr ? nullptr : GetWindow(Handle(), GW_CHILD);
    for (HWND child = first; child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
        if (auto* const inside = dynamic_cast<Element*>(Window::Of(child))) {
            inside->parentIsUsable_ = IsUsable();
            inside->ShowEnabled();
        }
    }
}

// Moves the focus before the window is hidden or disabled, because the platform would move it to a
// window that cannot use it.
void Element::GiveFocusAway() {
    if (!HasFocusInside(Handle())) {
        return;
    }
    const HWND loser = GetFocus();
    const Element* const heir = Heir();
    const HWND next = heir != nullptr ? heir->Handle() : FocusAfter(owner_, Handle());
    lostFocus_ = next == nullptr ? loser : nullptr;
    SetFocus(next == nullptr ? owner_ : next);
}

void Element::TakeFocusBack() {
    const HWND loser = std::exchange(lostFocus_, nullptr);
    if (GetFocus() != owner_) {
        return;
    }
    const bool isInside = loser == Handle() || IsChild(Handle(), loser) != FALSE;
    if (isInside && IsWindowVisible(loser) != FALSE && IsWindowEnabled(loser) != FALSE) {
        SetFocus(loser);
    } else {
        FocusFirst(owner_, false);
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

Text Element::OwnersHint() const {
    auto* const owner = dynamic_cast<Described*>(Window::Of(owner_));
    return owner == nullptr ? Text() : owner->SpokenHint();
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
    if (message == WM_GETOBJECT) {
        const auto object = AnswerObjectRequest(Handle(), wParam, lParam);
        return object ? *object : Default(message, wParam, lParam);
    }
    // The window class would change the size of its parts, but not that of its font. A control
    // keeps its resolution.
    if (message == resolutionChangesMessage || message == resolutionChangedMessage) {
        return 0;
    }
    if (message != WM_SETFOCUS && message != WM_KILLFOCUS) {
        return Default(message, wParam, lParam);
    }
    const bool came = message == WM_SETFOCUS;
    // A container that was left and entered again restores the focus to the window that had it.
    const Element* const heir = came && !visible_ ? Heir() : nullptr;
    if (heir != nullptr && heir->IsVisible()) {
        SetFocus(heir->Handle());
        return 0;
    }
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

void Element::DrawShapes(Canvas& canvas) {
    const RECT inside = ClientArea(Handle());
    if (HasEdge(Handle())) {
        RECT outside = {};
        GetWindowRect(Handle(), &outside);
        DrawSunkenEdge(canvas, {0, 0, outside.right - outside.left, outside.bottom - outside.top});
    }
    CanvasPart part(canvas, inside);
    DrawContent(part, SizeOf(inside));
    DrawChildShapes(Handle(), part);
}

bool Element::ShowsMnemonics() const {
    return (Ask(WM_QUERYUISTATE) & UISF_HIDEACCEL) == 0;
}

Color Element::InkOf(Color color) const {
    return IsUsable() ? color : SystemColor(COLOR_GRAYTEXT);
}

}  // namespace lumenkit::win32
