#pragma once

#include <optional>
#include <unordered_map>

#include "frame/text.h"
#include "runtime/win32/life.h"
#include "runtime/win32/thread_shared.h"
#include "runtime/win32/windows_header.h"

namespace lumenkit::win32 {

/// Whether the windows of one control or page receive the user's input.
struct InputGate {
    bool isOpen = true;
};

struct WindowDesign {
    HINSTANCE module = nullptr;
    /// Null: the window class of this library. Otherwise a class of the platform ("EDIT"), whose
    /// window procedure answers the messages that HandleMessage does not handle.
    const wchar_t* className = nullptr;
    TextView text = {};
    DWORD style = 0;
    DWORD extendedStyle = 0;
    RECT place = {};  ///< pixels, in the parent
    HWND parent = nullptr;
    /// The Life of the object that owns the window, held while the window answers a message. Null:
    /// the Life of the parent, if the parent is a window of this library.
    Life* life = nullptr;
    /// The gate for mouse and keyboard messages, which a closed gate drops. Null: the gate of the
    /// parent, if the parent is a window of this library.
    const InputGate* gate = nullptr;
};

class Window;

/// The windows of this library on one thread. Every message looks up its window here, which is
/// cheaper than asking the platform.
using OwnWindows = std::unordered_map<HWND, Window*>;

/// A window that is destroyed with its object. Used only on the thread that created it.
///
/// A window passes the notifications of its children (WM_COMMAND, WM_NOTIFY, WM_HSCROLL,
/// WM_VSCROLL, WM_DRAWITEM, WM_CTLCOLOR...) on to the child, if the child is a Window too.
class Window {
 public:
    Window() = default;
    virtual ~Window();
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;

    /// Null before Create and after the window was destroyed. A container may destroy it at any
    /// time.
    HWND Handle() const { return handle_; }
    /// Returns the object of a window of this library that belongs to the current thread; null for
    /// other windows.
    static Window* Of(HWND handle);
    /// The Life that is held while the window answers a message, or null.
    Life* GetLife() const { return life_; }

    /// Reports whether the object still exists after a call that may have destroyed it, as every
    /// notification may. The watches of one window end in the reverse order of their creation.
    class Watch {
     public:
        explicit Watch(Window& window) : window_(&window), outer_(window.watches_) {
            window.watches_ = this;
        }
        ~Watch() {
            if (window_ != nullptr) {
                window_->watches_ = outer_;
            }
        }
        Watch(const Watch&) = delete;
        Watch& operator=(const Watch&) = delete;

        bool IsGone() const { return window_ == nullptr; }

     private:
        friend class Window;
        Window* window_;
        Watch* outer_;
    };

 protected:
    /// Creates the window. Raises 429 if the platform cannot create windows, and 7 if its memory or
    /// its window handles are exhausted.
    void Create(const WindowDesign& design);
    /// Destroys the window. If the platform's window procedure is running in it, the window is only
    /// hidden and detached from the object; it is destroyed when the procedure has returned.
    void Destroy();
    /// Whether the platform's window procedure is running in any window of the thread. Such a
    /// window must not be destroyed together with another one.
    bool IsPlatformAtWork() const;

    /// Answers a message, or passes it to Default. No exception leaves the window procedure: errors
    /// of event handlers end there. May destroy the object.
    virtual LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
        return Default(message, wParam, lParam);
    }
    /// Answers a notification that the parent received from this window. Without a result the
    /// parent's default answer applies. May destroy the object.
    virtual std::optional<LRESULT> HandleNotification(UINT /*message*/, WPARAM /*wParam*/,
                                                      LPARAM /*lParam*/) {
        return std::nullopt;
    }
    /// Returns the answer of the window class. The object may be destroyed when the call returns.
    LRESULT Default(UINT message, WPARAM wParam, LPARAM lParam);

 private:
    static LRESULT CALLBACK Procedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam);
    static const wchar_t* OwnClass(HINSTANCE module);
    LRESULT Answer(UINT message, WPARAM wParam, LPARAM lParam);
    std::optional<LRESULT> Reflect(UINT message, WPARAM wParam, LPARAM lParam);
    void LetGo();

    ThreadShared<OwnWindows> own_;
    HWND handle_ = nullptr;
    Life* life_ = nullptr;  // null: nothing waits for this window
    const InputGate* gate_ = nullptr;
    WNDPROC former_ = nullptr;  // the window procedure of the platform's class
    int defaultCalls_ = 0;      // calls of former_ that have not returned
    Watch* watches_ = nullptr;  // the innermost
};

/// Removes the library's window class from the process before the code is unloaded. All windows are
/// destroyed by then.
void RemoveWindowClass(HINSTANCE module);

struct ParkingWindow;

/// A share in the hidden parking window, which is the parent of control windows that no container
/// shows. Each thread has one parking window, as long as a share in it exists.
class ParkingPlace {
 public:
    /// Raises 429 and 7 as Window::Create does.
    explicit ParkingPlace(HINSTANCE module);
    ~ParkingPlace();
    ParkingPlace(const ParkingPlace&) = delete;
    ParkingPlace& operator=(const ParkingPlace&) = delete;

    HWND Handle() const;

 private:
    ThreadShared<ParkingWindow> shared_;
};

}  // namespace lumenkit::win32
