#include "runtime/win32/window.h"

#include <algorithm>
#include <string>
#include <utility>

#include "frame/runtime_error.h"
#include "runtime/win32/wide_text.h"

namespace lumenkit::win32 {

namespace {

constexpr const wchar_t* ownClass = L"lumenkitWindow";

// Returns the window that sent a notification to its parent; null for other messages.
HWND Notifier(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_COMMAND:
        case WM_HSCROLL:
        case WM_VSCROLL:
        case WM_CTLCOLOREDIT:
        case WM_CTLCOLORBTN:
        case WM_CTLCOLORSTATIC:
        case WM_CTLCOLORSCROLLBAR:
            return reinterpret_cast<HWND>(lParam);
        case WM_NOTIFY:
            return reinterpret_cast<const NMHDR*>(lParam)->hwndFrom;
        case WM_DRAWITEM:
            return wParam == 0 ? nullptr
                               : reinterpret_cast<const DRAWITEMSTRUCT*>(lParam)->hwndItem;
        default:
            return nullptr;
    }
}

// Raises the error for a window that the platform did not create.
[[noreturn]] void RaiseNoWindow() {
    switch (GetLastError()) {
        case ERROR_NOT_ENOUGH_MEMORY:
        case ERROR_OUTOFMEMORY:
        case ERROR_NO_SYSTEM_RESOURCES:
        case ERROR_NO_MORE_USER_HANDLES:
            Raise(ErrorNumber::OutOfMemory);
        default:
            throw RuntimeError(static_cast<std::int32_t>(ErrorNumber::CannotCreateObject),
                               u"No window can be created; the program may have no display");
    }
}

bool IsInput(UINT message) {
    return (message >= WM_KEYFIRST && message <= WM_KEYLAST) ||
           (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST) || message == WM_CONTEXTMENU ||
           message == WM_IME_STARTCOMPOSITION || message == WM_IME_COMPOSITION ||
           message == WM_IME_CHAR;
}

}  // namespace

Window::~Window() {
    for (Watch* watch = watches_; watch != nullptr; watch = watch->outer_) {
        watch->window_ = nullptr;
    }
    Destroy();
}

Window* Window::Of(HWND handle) {
    const OwnWindows* const own = ThreadShared<OwnWindows>::IfAny();
    if (own == nullptr) {
        return nullptr;
    }
    const auto found = own->find(handle);
    return found == own->end() ? nullptr : found->second;
}

const wchar_t* Window::OwnClass(HINSTANCE module) {
    WNDCLASSEXW known = {};
    known.cbSize = sizeof known;
    if (GetClassInfoExW(module, ownClass, &known) == FALSE) {
        WNDCLASSEXW own = {};
        own.cbSize = sizeof own;
        own.style = CS_DBLCLKS;
        own.lpfnWndProc = DefWindowProcW;
        own.hInstance = module;
        own.hCursor = LoadCursorW(nullptr, MAKEINTRESOURCEW(32512));
        own.lpszClassName = ownClass;
        RegisterClassExW(&own);
    }
    return ownClass;
}

void RemoveWindowClass(HINSTANCE module) {
    UnregisterClassW(ownClass, module);
}

void Window::Create(const WindowDesign& design) {
    const Window* const parent = Of(design.parent);
    life_ = design.life == nullptr && parent != nullptr ? parent->life_ : design.life;
    gate_ = design.gate == nullptr && parent != nullptr ? parent->gate_ : design.gate;
    const std::wstring text = ToWide(design.text);
    const RECT& place = design.place;
    SetLastError(ERROR_SUCCESS);
    handle_ =
        CreateWindowExW(design.extendedStyle,
                        design.className == nullptr ? OwnClass(design.module) : design.className,
                        text.c_str(), design.style, place.left, place.top, place.right - place.left,
                        place.bottom - place.top, design.parent, nullptr, design.module, nullptr);
    if (handle_ == nullptr) {
        RaiseNoWindow();
    }
    own_->emplace(handle_, this);
    former_ = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrW(handle_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Procedure)));
}

void Window::Destroy() {
    if (handle_ == nullptr) {
        return;
    }
    if (defaultCalls_ == 0) {
        DestroyWindow(handle_);
    } else {
        LetGo();
    }
}

bool Window::IsPlatformAtWork() const {
    return std::ranges::any_of(*own_,
                               [](const auto& window) { return window.second->defaultCalls_ > 0; });
}

void Window::LetGo() {
    const HWND handle = std::exchange(handle_, nullptr);
    own_->erase(handle);
    SetWindowLongPtrW(handle, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(former_));
    ShowWindow(handle, SW_HIDE);
    SetParent(handle, HWND_MESSAGE);  // so that its parent does not destroy it too early
    PostMessageW(handle, WM_CLOSE, 0, 0);
}

LRESULT Window::Default(UINT message, WPARAM wParam, LPARAM lParam) {
    if (handle_ == nullptr) {
        return 0;
    }
    const Watch watch(*this);
    ++defaultCalls_;
    const LRESULT answer = CallWindowProcW(former_, handle_, message, wParam, lParam);
    if (!watch.IsGone()) {
        --defaultCalls_;
    }
    return answer;
}

LRESULT CALLBACK Window::Procedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
    Window* const window = Of(handle);
    if (window == nullptr) {
        return DefWindowProcW(handle, message, wParam, lParam);
    }
    if (window->gate_ != nullptr && !window->gate_->isOpen && IsInput(message)) {
        return 0;
    }
    const Life::Hold hold(window->life_);
    if (message != WM_NCDESTROY) {
        return window->Answer(message, wParam, lParam);
    }
    const LRESULT answer = window->Default(message, wParam, lParam);
    window->own_->erase(handle);
    window->handle_ = nullptr;
    return answer;
}

LRESULT Window::Answer(UINT message, WPARAM wParam, LPARAM lParam) {
    try {
        const std::optional<LRESULT> reflected = Reflect(message, wParam, lParam);
        return reflected ? *reflected : HandleMessage(message, wParam, lParam);
    } catch (...) {
        // The platform cannot propagate exceptions.
        return 0;
    }
}

std::optional<LRESULT> Window::Reflect(UINT message, WPARAM wParam, LPARAM lParam) {
    Window* const child = Of(Notifier(message, wParam, lParam));
    if (child == nullptr || child == this) {
        return std::nullopt;
    }
    return child->HandleNotification(message, wParam, lParam);
}

struct ParkingWindow {
    HWND handle = nullptr;

    ParkingWindow() = default;
    ~ParkingWindow() {
        if (handle != nullptr) {
            DestroyWindow(handle);
        }
    }
    ParkingWindow(const ParkingWindow&) = delete;
    ParkingWindow& operator=(const ParkingWindow&) = delete;

    void Create(HINSTANCE module) {
        // The desktop belongs to another process and need not be notified.
        SetLastError(ERROR_SUCCESS);
        handle = CreateWindowExW(WS_EX_TOOLWINDOW | WS_EX_NOPARENTNOTIFY, L"STATIC", L"", WS_POPUP,
                                 0, 0, 1, 1, nullptr, nullptr, module, nullptr);
        if (handle == nullptr) {
            RaiseNoWindow();
        }
    }
};

ParkingPlace::ParkingPlace(HINSTANCE module) {
    if (shared_->handle == nullptr) {
        shared_->Create(module);
    }
}

ParkingPlace::~ParkingPlace() = default;

HWND ParkingPlace::Handle() const {
    return shared_->handle;
}

}  // namespace lumenkit::win32
