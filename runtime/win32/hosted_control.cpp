#include "runtime/win32/hosted_control.h"

#include <algorithm>

#include "frame/runtime_error.h"
#include "frame/scoped_count.h"
#include "runtime/win32/accessibility.h"
#include "runtime/win32/control_calls.h"
#include "runtime/win32/keyboard.h"
#include "runtime/win32/pointer_cursor.h"

namespace lumenkit::win32 {

namespace {

constexpr TextView firstFont = u"MS Sans Serif";
constexpr float firstFontSize = 8.25F;

// The number of nested requests for another size that a control may make while it is resized.
constexpr int deepestRequest = 8;

}  // namespace

HostedControl::HostedControl(const Context& context, const ClassDescriptor& type, ControlSite& site,
                             SIZE size, Life* life)
    : HostedWindow(context.module, size, life),
      type_(type),
      site_(site),
      size_(size),
      resolution_(context.resolution),
      surface_(*this, context.fonts.NewFont(firstFont, firstFontSize), resolution_),
      constituents_({context, *this, site.GetAmbient().UserMode()}, &EmbedControl),
      reports_(context.interaction),
      host_{.surface = surface_,
            .container = site.GetContainer(),
            .ambient = site.GetAmbient(),
            .extender = site.GetExtender(),
            .screen = screen_,
            .application = context.application,
            .interaction = reports_,
            .constituents = constituents_} {
    if (type.createControl == nullptr) {
        Raise(ErrorNumber::CannotCreateObject);
    }
    control_ = type.createControl(host_);
    Tell(*control_, &Control::UserControl_Initialize);
}

HostedControl::~HostedControl() {
    isStarted_ = false;
    if (!IsPlatformAtWork()) {
        Destroy();  // destroys all child windows in one step
    }
    control_.reset();
    Destroy();
}

// ---- Life

void HostedControl::StartNew() {
    FollowSite();
    Tell(*control_, &Control::UserControl_InitProperties);
    FinishStart();
}

void HostedControl::StartSaved(host::PropertyBag& bag) {
    FollowSite();
    control_->UserControl_ReadProperties(bag);
    FinishStart();
}

void HostedControl::FinishStart() {
    isStarted_ = true;
    Tell(*control_, &Control::UserControl_Resize);
    BecomeVisible(isVisible_);
}

void HostedControl::Save(host::PropertyBag& bag) {
    shared::SaveControl(*control_, bag, reports_);
}

void HostedControl::AmbientChanged() {
    FollowSite();
    surface_.PictureOutdated();
}

void HostedControl::FollowSite() {
    const bool accepts = site_.AcceptsInput();
    if (accepts != acceptsInput_) {
        acceptsInput_ = accepts;
        AcceptInput(accepts);
    }
}

// ---- Placement

void HostedControl::SetSize(SIZE size) {
    const SIZE accepted = {std::max<LONG>(size.cx, 0), std::max<LONG>(size.cy, 0)};
    Resize(accepted);
    AdoptSize(accepted);
}

void HostedControl::AdoptSize(SIZE size) {
    if (size.cx == size_.cx && size.cy == size_.cy) {
        return;
    }
    size_ = size;
    if (Handle() != nullptr) {
        InvalidateRect(Handle(), nullptr, FALSE);
    }
    if (isStarted_) {
        Tell(*control_, &Control::UserControl_Resize);
    }
}

void HostedControl::RequestSize(SIZE size) {
    if (requests_ >= deepestRequest) {
        return;  // the control requests sizes without end
    }
    const ScopedCount nesting(requests_);
    site_.RequestSize(size);
}

void HostedControl::BorderChanged() {
    SetEdge(surface_.BorderStyle() != 0);
    PictureChanged();
    if (isStarted_) {
        Tell(*control_, &Control::UserControl_Resize);
    }
}

void HostedControl::Attach(HWND parent, const RECT& place) {
    FollowSite();
    if (MoveInto(parent, place)) {
        SetVisible(true);
    }
}

void HostedControl::Place(const RECT& place, const RECT& clip) {
    MoveTo(place);
    ClipTo(clip);
}

void HostedControl::SetVisible(bool visible) {
    BecomeVisible(Show(visible));
}

void HostedControl::Detach() {
    Park();
    BecomeVisible(false);
}

void HostedControl::BecomeVisible(bool visible) {
    isVisible_ = visible;
    const bool tells = visible && isStarted_ && !wasTold_;
    wasTold_ = visible && isStarted_;
    if (tells) {
        Tell(*control_, &Control::UserControl_Show);
    }
}

bool HostedControl::IsShown() const {
    return isStarted_ && isVisible_ && Handle() != nullptr && IsWindowVisible(Handle()) != FALSE;
}

// ---- Painting

bool HostedControl::PaintControl() {
    if (isStarted_) {
        Tell(*control_, &Control::UserControl_Paint);
    }
    return isStarted_;
}

void HostedControl::DrawOn(HDC device, const RECT& place) {
    painter_.DrawOn(device, place, size_);
}

void HostedControl::DrawOn(HDC device) {
    painter_.DrawOn(device, {0, 0, size_.cx, size_.cy}, size_);
}

// ---- Input

bool HostedControl::HasFocus() const {
    return HasFocusInside(Handle());
}

void HostedControl::Focus(bool last) {
    if (acceptsInput_) {
        focus_.Take(last);
    }
}

bool HostedControl::TranslateKey(const MSG& message) {
    return acceptsInput_ && TranslateKeyInside(Handle(), message);
}

LRESULT HostedControl::HandleMouse(UINT message, WPARAM wParam, LPARAM lParam) {
    if (isStarted_ && surface_.Enabled()) {
        mouse_.Handle(*control_, message, wParam, lParam);
    }
    return 0;
}

// One assignment may change many captions. The site is told once, when the control is idle again.
void HostedControl::FollowMnemonics(WPARAM isPosted) {
    if (isPosted != 0) {
        mnemonicsArePosted_ = false;
        site_.MnemonicsMayHaveChanged();
    } else if (!mnemonicsArePosted_) {
        mnemonicsArePosted_ = PostMessageW(Handle(), mnemonicsMessage, 1, 0) != FALSE;
    }
}

// ---- The window

LRESULT HostedControl::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_PAINT:
            painter_.PaintWindow();
            return 0;
        case WM_ERASEBKGND:
            return 1;  // painting erases the background
        case WM_PRINTCLIENT:
            painter_.PaintClientArea(reinterpret_cast<HDC>(wParam));
            return 0;
        case WM_WINDOWPOSCHANGED:
            return FollowWindow(wParam, lParam);
        case WM_SETCURSOR:
            return ShowPointer(Handle(), static_cast<host::MousePointer>(surface_.Pointer()),
                               wParam, lParam)
                       ? TRUE
                       : Default(message, wParam, lParam);
        case WM_GETOBJECT: {
            const auto kind = AccessibleKind(Handle(), lParam);
            return kind ? *kind : HostedWindow::HandleMessage(message, wParam, lParam);
        }
        case WM_GETTEXTLENGTH:
            return GiveText(0, nullptr);
        case WM_GETTEXT:
            return GiveText(wParam, reinterpret_cast<wchar_t*>(lParam));
        case WM_SETFOCUS: {
            const Watch watch(*this);
            focus_.FocusMoved();
            if (!watch.IsGone() && GetFocus() == Handle()) {
                focus_.PassOn(reinterpret_cast<HWND>(wParam));
            }
            return 0;
        }
        case WM_KILLFOCUS:
        case constituentFocusMessage:
            focus_.FocusMoved();
            return 0;
        case WM_GETDLGCODE:
            // Letters for a disabled constituent are no mnemonics of other controls.
            return focus_.IsOutOfUse() ? DLGC_WANTCHARS : 0;
        case mnemonicsMessage:
            FollowMnemonics(wParam);
            return 0;
        case WM_CAPTURECHANGED:
            mouse_.CaptureChanged();
            return 0;
        default:
            return ControlMouse::IsMouse(message)
                       ? HandleMouse(message, wParam, lParam)
                       : HostedWindow::HandleMessage(message, wParam, lParam);
    }
}

// The container or the user may have resized the window.
LRESULT HostedControl::FollowWindow(WPARAM wParam, LPARAM lParam) {
    const Watch watch(*this);
    const LRESULT answer = Default(WM_WINDOWPOSCHANGED, wParam, lParam);
    if (!watch.IsGone() && Handle() != nullptr) {
        AdoptSize(WindowSize());
    }
    return answer;
}

// ---- Screen readers

// A control that does not tell its text says the text that it drew last.
Text HostedControl::SpokenText() {
    if (!isStarted_) {
        return {};
    }
    const Text text = control_->SpokenText();
    return text.empty() ? surface_.ShownTexts() : text;
}

Text HostedControl::SpokenHint() {
    return isStarted_ ? control_->SpokenHint() : Text();
}

// The platform's roles of windows without and with constituents.
std::optional<Description> HostedControl::Describe() {
    const Text text = SpokenText();
    return text.empty() ? Description{.role = clientRole}
                        : Description{.role = staticTextRole, .name = text};
}

LRESULT HostedControl::GiveText(std::size_t room, wchar_t* target) {
    return CopyText(SpokenText(), room, target);
}

}  // namespace lumenkit::win32
