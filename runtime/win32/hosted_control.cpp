#include "runtime/win32/hosted_control.h"

#include <algorithm>
#include <cwchar>
#include <string>
#include <utility>

#include "frame/raised_flag.h"
#include "frame/runtime_error.h"
#include "runtime/win32/colors.h"
#include "runtime/win32/constituents.h"
#include "runtime/win32/device_canvas.h"
#include "runtime/win32/drawable.h"
#include "runtime/win32/element.h"
#include "runtime/win32/hosted_window.h"
#include "runtime/win32/keyboard.h"
#include "runtime/win32/memory_device.h"
#include "runtime/win32/mouse.h"
#include "runtime/win32/paint_buffer.h"
#include "runtime/win32/pointer_cursor.h"
#include "runtime/win32/screen.h"
#include "runtime/win32/surface.h"
#include "runtime/win32/thread_shared.h"
#include "runtime/win32/wide_text.h"

namespace lumenkit::win32 {

namespace {

constexpr TextView firstFont = u"MS Sans Serif";
constexpr float firstFontSize = 8.25F;

// The number of nested requests for another size that a control may make while it is resized.
constexpr int deepestRequest = 8;

bool IsEmpty(SIZE size) {
    return size.cx <= 0 || size.cy <= 0;
}

class ScreenDevice {
 public:
    ScreenDevice() : device_(GetDC(nullptr)) {}
    ~ScreenDevice() { ReleaseDC(nullptr, device_); }
    ScreenDevice(const ScreenDevice&) = delete;
    ScreenDevice& operator=(const ScreenDevice&) = delete;

    HDC Handle() const { return device_; }

 private:
    HDC device_;
};

// The action of a mouse button that a message reports.
enum class Press { None, Down, Double, Up };

Press PressOf(UINT message) {
    switch (message) {
        case WM_LBUTTONDOWN:
        case WM_RBUTTONDOWN:
        case WM_MBUTTONDOWN:
            return Press::Down;
        case WM_LBUTTONDBLCLK:
        case WM_RBUTTONDBLCLK:
        case WM_MBUTTONDBLCLK:
            return Press::Double;
        case WM_LBUTTONUP:
        case WM_RBUTTONUP:
        case WM_MBUTTONUP:
            return Press::Up;
        default:
            return Press::None;
    }
}

}  // namespace

class HostedControl::Body final : public HostedWindow, public Drawable, private SurfaceOwner {
 public:
    Body(const Context& context, const ClassDescriptor& type, ControlSite& site, SIZE size,
         Life* life);
    ~Body() override;
    Body(const Body&) = delete;
    Body& operator=(const Body&) = delete;

    void StartNew();
    void StartSaved(host::PropertyBag& bag);
    bool IsStarted() const { return isStarted_; }
    Control& GetControl() { return *control_; }
    const ClassDescriptor& Type() const { return type_; }
    win32::Surface& Drawing() { return surface_; }
    const ControlHost& Host() const { return host_; }

    SIZE WholeSize() const override { return size_; }
    void SetSize(SIZE size);
    void Attach(HWND parent, const RECT& place);
    void Place(const RECT& place, const RECT& clip);
    void SetVisible(bool visible);
    void Detach();
    void Draw(HDC device, const RECT& place);
    void DrawTo(HDC device) override;
    void Focus(bool last);
    void AmbientChanged();

 private:
    // SurfaceOwner
    HWND SurfaceWindow() const override { return Handle(); }
    bool IsShown() const override;
    void PaintControl() override;
    void RequestSize(SIZE size) override;
    void BorderChanged() override;
    void PictureChanged() override { site_.PictureChanged(); }

    // Window
    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    template <typename Act>
    void Tell(Act&& act);
    void CheckFocus();
    void FinishStart();
    void AdoptSize(SIZE size);
    void BecomeVisible(bool visible);
    void PaintWindow();
    void DrawBorder(HDC device, const Mapping& mapping);
    void DrawParts(HDC device, const Mapping& mapping);
    void HandleMouse(UINT message, WPARAM wParam, LPARAM lParam);
    void HandlePress(Press press, host::MouseArguments& mouse);
    bool SetPointerCursor(WPARAM wParam, LPARAM lParam);
    LRESULT AccessibleKind(WPARAM wParam, LPARAM lParam);
    LRESULT CopyText(std::size_t room, wchar_t* target);

    const ClassDescriptor& type_;
    ControlSite& site_;
    SIZE size_;
    Resolution resolution_ = Resolution::OfScreen();
    Screen screen_{resolution_};
    ThreadShared<PaintBuffer> buffer_;
    win32::Surface surface_;
    Constituents constituents_;
    ControlHost host_;
    std::unique_ptr<Control> control_;
    int requests_ = 0;
    std::int16_t pressed_ = 0;  // the buttons that went down on the surface
    bool isStarted_ = false;
    bool isVisible_ = false;  // as set by the container
    bool wasTold_ = false;    // whether it was notified that it is visible
    bool hasFocus_ = false;
};

HostedControl::Body::Body(const Context& context, const ClassDescriptor& type, ControlSite& site,
                          SIZE size, Life* life)
    : HostedWindow(context.module, size, life),
      type_(type),
      site_(site),
      size_(size),
      surface_(*this, context.fonts.NewFont(firstFont, firstFontSize), resolution_),
      constituents_(context, *this, site.GetAmbient().UserMode()),
      host_{.surface = surface_,
            .container = site.GetContainer(),
            .ambient = site.GetAmbient(),
            .extender = site.GetExtender(),
            .screen = screen_,
            .application = context.application,
            .interaction = context.interaction,
            .constituents = constituents_} {
    if (type.createControl == nullptr) {
        Raise(ErrorNumber::CannotCreateObject);
    }
    control_ = type.createControl(host_);
    Tell([](Control& control) { control.UserControl_Initialize(); });
}

HostedControl::Body::~Body() {
    isStarted_ = false;
    if (!IsPlatformAtWork()) {
        Destroy();  // destroys all child windows in one step
    }
    control_.reset();
    Destroy();
}

// Errors of the control do not reach its container.
template <typename Act>
void HostedControl::Body::Tell(Act&& act) {
    if (control_ == nullptr) {
        return;
    }
    try {
        act(*control_);
    } catch (...) {
        // The control's own procedures report their errors as far as possible.
    }
}

// ---- Start

void HostedControl::Body::StartNew() {
    Tell([](Control& control) { control.UserControl_InitProperties(); });
    FinishStart();
}

void HostedControl::Body::StartSaved(host::PropertyBag& bag) {
    control_->UserControl_ReadProperties(bag);
    FinishStart();
}

void HostedControl::Body::FinishStart() {
    isStarted_ = true;
    Tell([](Control& control) { control.UserControl_Resize(); });
    BecomeVisible(isVisible_);
}

// ---- In its container

bool HostedControl::Body::IsShown() const {
    return isStarted_ && isVisible_ && Handle() != nullptr && IsWindowVisible(Handle()) != FALSE;
}

void HostedControl::Body::SetSize(SIZE size) {
    const SIZE accepted = {std::max<LONG>(size.cx, 0), std::max<LONG>(size.cy, 0)};
    if (Handle() != nullptr) {
        SetWindowPos(Handle(), nullptr, 0, 0, accepted.cx, accepted.cy,
                     SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOOWNERZORDER);
    }
    AdoptSize(accepted);
}

void HostedControl::Body::AdoptSize(SIZE size) {
    if (size.cx == size_.cx && size.cy == size_.cy) {
        return;
    }
    size_ = size;
    if (Handle() != nullptr) {
        InvalidateRect(Handle(), nullptr, FALSE);
    }
    if (isStarted_) {
        Tell([](Control& control) { control.UserControl_Resize(); });
    }
}

void HostedControl::Body::RequestSize(SIZE size) {
    if (requests_ >= deepestRequest) {
        return;  // the control requests sizes without end
    }
    ++requests_;
    try {
        site_.RequestSize(size);
    } catch (...) {
        --requests_;
        throw;
    }
    --requests_;
}

void HostedControl::Body::BorderChanged() {
    if (Handle() != nullptr) {
        const LONG_PTR style = GetWindowLongPtrW(Handle(), GWL_EXSTYLE);
        const LONG_PTR edge = WS_EX_CLIENTEDGE;
        SetWindowLongPtrW(Handle(), GWL_EXSTYLE,
                          surface_.BorderStyle() == 0 ? style & ~edge : style | edge);
        SetWindowPos(Handle(), nullptr, 0, 0, 0, 0,
                     SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
        InvalidateRect(Handle(), nullptr, FALSE);
    }
    PictureChanged();
    if (isStarted_) {
        Tell([](Control& control) { control.UserControl_Resize(); });
    }
}

void HostedControl::Body::Attach(HWND parent, const RECT& place) {
    if (MoveInto(parent, place)) {
        SetVisible(true);
    }
}

void HostedControl::Body::Place(const RECT& place, const RECT& clip) {
    MoveTo(place);
    ClipTo(clip);
}

void HostedControl::Body::SetVisible(bool visible) {
    Show(visible && IsAttached());
    BecomeVisible(visible && IsAttached());
}

void HostedControl::Body::BecomeVisible(bool visible) {
    isVisible_ = visible;
    const bool tells = visible && isStarted_ && !wasTold_;
    wasTold_ = visible && isStarted_;
    if (tells) {
        Tell([](Control& control) { control.UserControl_Show(); });
    }
}

void HostedControl::Body::Detach() {
    Park();
    BecomeVisible(false);
}

void HostedControl::Body::AmbientChanged() {
    if (Handle() != nullptr) {
        InvalidateRect(Handle(), nullptr, FALSE);
    }
}

// ---- Painting

void HostedControl::Body::PaintControl() {
    if (isStarted_) {
        Tell([](Control& control) { control.UserControl_Paint(); });
    }
}

void HostedControl::Body::PaintWindow() {
    PAINTSTRUCT paint = {};
    const HDC device = BeginPaint(Handle(), &paint);
    try {
        const SIZE area = SizeOf(surface_.Area());
        const PaintBuffer::Use use(*buffer_, device, paint.rcPaint);
        const POINT origin = use.Origin();
        const RECT place = {origin.x, origin.y, origin.x + area.cx, origin.y + area.cy};
        DeviceCanvas canvas(use.Device(), {place, area}, {0, 0, area.cx, area.cy});
        surface_.DrawOn(canvas);
    } catch (...) {
        EndPaint(Handle(), &paint);
        throw;
    }
    EndPaint(Handle(), &paint);
}

void HostedControl::Body::Draw(HDC device, const RECT& place) {
    if (IsEmpty(size_) || place.left == place.right || place.top == place.bottom) {
        return;
    }
    const Mapping mapping = {place, size_};
    if (surface_.BorderStyle() != 0) {
        DrawBorder(device, mapping);
    }
    {
        DeviceCanvas canvas(device, mapping, surface_.Area());
        surface_.DrawOn(canvas);
    }
    DrawParts(device, mapping);
}

void HostedControl::Body::DrawTo(HDC device) {
    Draw(device, {0, 0, size_.cx, size_.cy});
}

// Draws the platform's sunken edge at any scale.
void HostedControl::Body::DrawBorder(HDC device, const Mapping& mapping) {
    struct Ring {
        Color upperLeft;
        Color lowerRight;
    };
    constexpr auto system = [](std::uint32_t index) {
        return static_cast<Color>(0x80000000U | index);
    };
    constexpr Ring outer = {system(COLOR_BTNSHADOW), system(COLOR_BTNHIGHLIGHT)};
    constexpr Ring inner = {system(COLOR_3DDKSHADOW), system(COLOR_3DLIGHT)};
    DeviceCanvas canvas(device, mapping, {0, 0, size_.cx, size_.cy});
    RECT box = {0, 0, size_.cx, size_.cy};
    for (const Ring& ring : {outer, inner}) {
        canvas.Fill({box.left, box.top, box.right, box.top + 1}, ring.upperLeft);
        canvas.Fill({box.left, box.top, box.left + 1, box.bottom}, ring.upperLeft);
        canvas.Fill({box.left, box.bottom - 1, box.right, box.bottom}, ring.lowerRight);
        canvas.Fill({box.right - 1, box.top, box.right, box.bottom}, ring.lowerRight);
        InflateRect(&box, -1, -1);
    }
}

// The constituents draw in pixels. They are composed at the screen's size and then scaled.
void HostedControl::Body::DrawParts(HDC device, const Mapping& mapping) {
    if (Handle() == nullptr || GetWindow(Handle(), GW_CHILD) == nullptr) {
        return;
    }
    const RECT area = surface_.Area();
    const SIZE size = SizeOf(area);
    const RECT all = {0, 0, size.cx, size.cy};
    const ScreenDevice screen;
    const MemoryDevice parts(screen.Handle(), size);
    DeviceCanvas(parts.Handle(), Mapping::Plain(size), all).Clear(surface_.BackColor());
    DrawChildren(Handle(), parts.Handle());
    const int mode = SetStretchBltMode(device, COLORONCOLOR);
    for (HWND child = GetWindow(Handle(), GW_CHILD); child != nullptr;
         child = GetWindow(child, GW_HWNDNEXT)) {
        RECT place = {};
        GetWindowRect(child, &place);
        MapWindowPoints(nullptr, Handle(), reinterpret_cast<POINT*>(&place), 2);
        const bool isHidden = (GetWindowLongW(child, GWL_STYLE) & WS_VISIBLE) == 0;
        if (isHidden || IntersectRect(&place, &place, &all) == FALSE) {
            continue;
        }
        RECT target = place;
        OffsetRect(&target, static_cast<int>(area.left), static_cast<int>(area.top));
        target = mapping.Of(target);
        StretchBlt(device, target.left, target.top, target.right - target.left,
                   target.bottom - target.top, parts.Handle(), place.left, place.top,
                   place.right - place.left, place.bottom - place.top, SRCCOPY);
    }
    SetStretchBltMode(device, mode);
}

// ---- Messages

LRESULT HostedControl::Body::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_PAINT:
            PaintWindow();
            return 0;
        case WM_ERASEBKGND:
            return 1;  // painting erases the background
        case WM_PRINTCLIENT: {
            const SIZE area = SizeOf(surface_.Area());
            DeviceCanvas canvas(reinterpret_cast<HDC>(wParam), Mapping::Plain(area),
                                {0, 0, area.cx, area.cy});
            surface_.DrawOn(canvas);
            return 0;
        }
        case WM_WINDOWPOSCHANGED: {
            const Watch watch(*this);
            const LRESULT answer = Default(message, wParam, lParam);
            if (!watch.IsGone() && Handle() != nullptr) {
                AdoptSize(WindowSize());
            }
            return answer;
        }
        case WM_SETCURSOR:
            return SetPointerCursor(wParam, lParam) ? TRUE : Default(message, wParam, lParam);
        case WM_GETOBJECT:
            return AccessibleKind(wParam, lParam);
        case WM_GETTEXTLENGTH:
            return CopyText(0, nullptr);
        case WM_GETTEXT:
            return CopyText(wParam, reinterpret_cast<wchar_t*>(lParam));
        case WM_SYSCOLORCHANGE:
        case WM_THEMECHANGED:
        case WM_SETTINGCHANGE:
            SettingsChanged(message, wParam, lParam);
            return 0;
        case WM_SETFOCUS:
        case WM_KILLFOCUS:
        case constituentFocusMessage:
            CheckFocus();
            return 0;
        case WM_CAPTURECHANGED:
            pressed_ = 0;
            return 0;
        case WM_MOUSEMOVE:
            HandleMouse(message, wParam, lParam);
            return 0;
        default:
            if (PressOf(message) != Press::None) {
                HandleMouse(message, wParam, lParam);
                return 0;
            }
            return HostedWindow::HandleMessage(message, wParam, lParam);
    }
}

void HostedControl::Body::HandleMouse(UINT message, WPARAM wParam, LPARAM lParam) {
    if (!isStarted_ || !surface_.Enabled()) {
        return;
    }
    host::MouseArguments mouse = MouseArgumentsOf(message, wParam, lParam, resolution_);
    if (message == WM_MOUSEMOVE) {
        Tell([&](Control& control) { control.UserControl_MouseMove(mouse); });
    } else {
        HandlePress(PressOf(message), mouse);
    }
}

// A click is a button that is pressed and released on the surface. The second of two quick clicks
// is a double click instead.
void HostedControl::Body::HandlePress(Press press, host::MouseArguments& mouse) {
    constexpr std::int16_t middle = 4;
    const auto button = mouse.button;
    const bool isInside = mouse.x >= 0 && mouse.y >= 0 && mouse.x < surface_.ScaleWidth() &&
                          mouse.y < surface_.ScaleHeight();
    if (press == Press::Up) {
        const bool isClick = (pressed_ & button) != 0 && isInside && button != middle;
        pressed_ = static_cast<std::int16_t>(pressed_ & ~button);
        if (pressed_ == 0 && GetCapture() == Handle()) {
            ReleaseCapture();
        }
        const Watch watch(*this);
        Tell([&](Control& control) { control.UserControl_MouseUp(mouse); });
        if (isClick && !watch.IsGone() && surface_.Enabled()) {
            Tell([](Control& control) { control.UserControl_Click(); });
        }
        return;
    }
    SetCapture(Handle());
    const Watch watch(*this);
    if (!hasFocus_) {
        Focus(false);
    }
    if (watch.IsGone()) {
        return;
    }
    if (press == Press::Double) {
        if (button != middle) {
            Tell([](Control& control) { control.UserControl_DblClick(); });
        }
        return;
    }
    pressed_ = static_cast<std::int16_t>(pressed_ | button);
    Tell([&](Control& control) { control.UserControl_MouseDown(mouse); });
}

bool HostedControl::Body::SetPointerCursor(WPARAM wParam, LPARAM lParam) {
    if (reinterpret_cast<HWND>(wParam) != Handle() || LOWORD(lParam) != HTCLIENT) {
        return false;
    }
    const HCURSOR cursor = CursorOf(static_cast<host::MousePointer>(surface_.Pointer()));
    if (cursor == nullptr) {
        return false;
    }
    SetCursor(cursor);
    return true;
}

// To screen readers, a control without constituents is a static text: the returned number is the
// platform's class index for STATIC windows.
LRESULT HostedControl::Body::AccessibleKind(WPARAM wParam, LPARAM lParam) {
    constexpr LRESULT staticText = 65536 + 3;
    const bool asksForKind = static_cast<LONG>(lParam) == OBJID_QUERYCLASSNAMEIDX;
    if (asksForKind && GetWindow(Handle(), GW_CHILD) == nullptr) {
        return staticText;
    }
    return Default(WM_GETOBJECT, wParam, lParam);
}

// Screen readers read the text of the window, which is the text that the control shows.
LRESULT HostedControl::Body::CopyText(std::size_t room, wchar_t* target) {
    const std::wstring text = ToWide(isStarted_ ? surface_.ShownTexts() : Text());
    if (target == nullptr) {
        return static_cast<LRESULT>(text.size());
    }
    if (room == 0) {
        return 0;
    }
    const std::size_t length = std::min(text.size(), room - 1);
    std::wmemcpy(target, text.data(), length);
    target[length] = L'\0';
    return static_cast<LRESULT>(length);
}

// While the focus moves, the platform already reports its new position.
void HostedControl::Body::CheckFocus() {
    const bool inside = HasFocusInside(Handle());
    if (std::exchange(hasFocus_, inside) != inside) {
        site_.FocusChanged(inside);
    }
}

void HostedControl::Body::Focus(bool last) {
    if (Handle() != nullptr && surface_.Enabled() && !FocusFirst(Handle(), last)) {
        SetFocus(Handle());
    }
}

// ---- The public interface

HostedControl::HostedControl(const Context& context, const ClassDescriptor& type, ControlSite& site,
                             SIZE size, Life* life)
    : body_(std::make_unique<Body>(context, type, site, size, life)) {}

HostedControl::~HostedControl() = default;

void HostedControl::StartNew() {
    body_->StartNew();
}

void HostedControl::StartSaved(host::PropertyBag& bag) {
    body_->StartSaved(bag);
}

bool HostedControl::IsStarted() const {
    return body_->IsStarted();
}

void HostedControl::Save(host::PropertyBag& bag) {
    GetControl().UserControl_WriteProperties(bag);
}

Control& HostedControl::GetControl() {
    return body_->GetControl();
}

const ClassDescriptor& HostedControl::Type() const {
    return body_->Type();
}

host::Surface& HostedControl::Drawing() {
    return body_->Drawing();
}

const ControlHost& HostedControl::Host() const {
    return body_->Host();
}

SIZE HostedControl::Size() const {
    return body_->WholeSize();
}

void HostedControl::SetSize(SIZE size) {
    body_->SetSize(size);
}

void HostedControl::Attach(HWND parent, const RECT& place) {
    body_->Attach(parent, place);
}

void HostedControl::Place(const RECT& place, const RECT& clip) {
    body_->Place(place, clip);
}

void HostedControl::SetVisible(bool visible) {
    body_->SetVisible(visible);
}

void HostedControl::Detach() {
    body_->Detach();
}

bool HostedControl::IsAttached() const {
    return body_->IsAttached();
}

HWND HostedControl::Window() const {
    return body_->Handle();
}

void HostedControl::Draw(HDC device, const RECT& place) {
    body_->Draw(device, place);
}

void HostedControl::Focus(bool last) {
    body_->Focus(last);
}

bool HostedControl::HasFocus() const {
    return HasFocusInside(body_->Handle());
}

bool HostedControl::TranslateKey(const MSG& message) {
    return TranslateKeyInside(body_->Handle(), message);
}

void HostedControl::AmbientChanged() {
    body_->AmbientChanged();
}

}  // namespace lumenkit::win32
