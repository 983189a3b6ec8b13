#include "runtime/win32/hosted_window.h"

#include <utility>

#include "runtime/win32/accessible_object.h"
#include "runtime/win32/drawable.h"
#include "runtime/win32/keyboard.h"
#include "runtime/win32/resolution_messages.h"

namespace lumenkit::win32 {

namespace {

constexpr UINT quietly = SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOOWNERZORDER;

}  // namespace

HostedWindow::HostedWindow(HINSTANCE module, SIZE size, Life* life) : parking_(module) {
    Create({.module = module,
            .style = WS_CHILD | WS_CLIPCHILDREN | WS_CLIPSIBLINGS,
            .place = {0, 0, size.cx, size.cy},
            .parent = parking_.Handle(),
            .life = life,
            .gate = &gate_});
}

HostedWindow::~HostedWindow() {
    attached_->Remove(*this);
}

LRESULT HostedWindow::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_GETOBJECT: {
            const auto object = AnswerObjectRequest(Handle(), wParam, lParam);
            return object ? *object : Default(message, wParam, lParam);
        }
        case WM_PARENTNOTIFY:
            FollowChildren(wParam);
            return Default(message, wParam, lParam);
        case WM_SYSCOLORCHANGE:
        case WM_THEMECHANGED:
        case WM_SETTINGCHANGE:
            SettingsChanged(message, wParam, lParam);
            return 0;
        case resolutionChangesMessage:
            return 0;
        case resolutionChangedMessage:
            RepaintAll();
            return 0;
        default:
            return Default(message, wParam, lParam);
    }
}

// Dialogs search the children of a window with this style for one that takes the focus. A window
// without children must not have the style: some dialogs loop forever when such a window has the
// focus itself.
void HostedWindow::FollowChildren(WPARAM event) {
    if (LOWORD(event) == WM_CREATE) {
        const LONG_PTR style = GetWindowLongPtrW(Handle(), GWL_EXSTYLE);
        SetWindowLongPtrW(Handle(), GWL_EXSTYLE, style | WS_EX_CONTROLPARENT);
    }
}

bool HostedWindow::MoveInto(HWND parent, const RECT& place) {
    if (Handle() == nullptr || SetParent(Handle(), parent) == nullptr) {
        return false;
    }
    isAttached_ = true;
    attached_->Add(*this);
    if (std::exchange(isClipped_, false)) {
        SetWindowRgn(Handle(), nullptr, FALSE);
    }
    SetWindowPos(Handle(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    MoveTo(place);
    return true;
}

void HostedWindow::MoveTo(const RECT& place) {
    if (Handle() != nullptr) {
        SetWindowPos(Handle(), nullptr, place.left, place.top, place.right - place.left,
                     place.bottom - place.top, quietly);
    }
}

void HostedWindow::Resize(SIZE size) {
    if (Handle() != nullptr) {
        SetWindowPos(Handle(), nullptr, 0, 0, size.cx, size.cy, quietly | SWP_NOMOVE);
    }
}

void HostedWindow::SetEdge(bool sunken) {
    if (Handle() == nullptr) {
        return;
    }
    const LONG_PTR style = GetWindowLongPtrW(Handle(), GWL_EXSTYLE);
    const LONG_PTR edge = WS_EX_CLIENTEDGE;
    SetWindowLongPtrW(Handle(), GWL_EXSTYLE, sunken ? style | edge : style & ~edge);
    SetWindowPos(Handle(), nullptr, 0, 0, 0, 0,
                 quietly | SWP_NOMOVE | SWP_NOSIZE | SWP_FRAMECHANGED);
    InvalidateRect(Handle(), nullptr, FALSE);
}

void HostedWindow::ClipTo(const RECT& clip) {
    if (!IsAttached()) {
        return;
    }
    const RECT place = PlaceInParent(GetAncestor(Handle(), GA_PARENT), Handle());
    RECT seen = {};
    IntersectRect(&seen, &place, &clip);
    const bool isWhole = EqualRect(&seen, &place) != FALSE;
    if (isWhole && !isClipped_) {
        return;
    }
    OffsetRect(&seen, -place.left, -place.top);
    // The window owns its region.
    SetWindowRgn(Handle(), isWhole ? nullptr : CreateRectRgnIndirect(&seen), TRUE);
    isClipped_ = !isWhole;
}

bool HostedWindow::Show(bool visible) {
    if (Handle() == nullptr) {
        return false;
    }
    const bool shows = visible && IsAttached();
    if (!shows) {
        GiveFocusAway();
    }
    ShowWindow(Handle(), shows ? SW_SHOWNA : SW_HIDE);
    return visible && IsAttached();
}

void HostedWindow::Park() {
    attached_->Remove(*this);
    if (!IsAttached()) {
        return;
    }
    Show(false);
    SetParent(Handle(), parking_.Handle());
    isAttached_ = false;
}

// A window whose parent belongs to this library stays in it and leaves together with it.
void HostedWindow::WindowIsDestroyed(HWND window) {
    if (IsAttached() && IsChild(window, Handle()) != FALSE &&
        Of(GetAncestor(Handle(), GA_PARENT)) == nullptr) {
        LeaveContainer();
    }
}

void HostedWindow::GiveFocusAway() {
    if (IsAttached() && HasFocusInside(Handle())) {
        SetFocus(GetAncestor(Handle(), GA_PARENT));
    }
}

// The platform passes no input to a disabled window and to the windows in it, which do not look
// disabled. A click goes to the container.
void HostedWindow::AcceptInput(bool accepts) {
    gate_.isOpen = accepts;
    if (Handle() == nullptr) {
        return;
    }
    if (!accepts) {
        const HWND capture = GetCapture();
        if (capture != nullptr && (capture == Handle() || IsChild(Handle(), capture) != FALSE)) {
            ReleaseCapture();
        }
        GiveFocusAway();
    }
    EnableWindow(Handle(), accepts ? TRUE : FALSE);
}

SIZE HostedWindow::WindowSize() const {
    RECT place = {};
    GetWindowRect(Handle(), &place);
    return {place.right - place.left, place.bottom - place.top};
}

void HostedWindow::SettingsChanged(UINT message, WPARAM wParam, LPARAM lParam) {
    for (HWND child = GetWindow(Handle(), GW_CHILD); child != nullptr;
         child = GetWindow(child, GW_HWNDNEXT)) {
        SendMessageW(child, message, wParam, lParam);
    }
    RepaintAll();
}

void HostedWindow::RepaintAll() {
    RedrawWindow(Handle(), nullptr, nullptr,
                 RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
}

}  // namespace lumenkit::win32
