#pragma once

#include <optional>
#include <unordered_map>

#include "frame/text.h"
#include "runtime/win32/life.h"
#include "runtime/win32/thread_shared.h"
#include "runtime/win32/windows_header.h"

namespace lumenkit::win32 {

struct WindowDesign {
    HINSTANCE module = nullptr;
    /// Null: a class of this library's own. Else a class of the platform's ("EDIT"), whose window
    /// procedure answers what HandleMessage leaves to it.
    const wchar_t* className = nullptr;
    TextView text = {};
    DWORD style = 0;
    DWORD extendedStyle = 0;
    RECT place = {};  ///< pixels, in the parent
    HWND parent = nullptr;
    /// Of the object that the window belongs to, kept while the window answers a message; null:
    /// that of the parent, where it is a window of this library.
    Life* life = nullptr;
};

class Window;

/// The windows of this library on one thread. Every message asks whose it is: the platform would
/// know, too, but at some price.
using OwnWindows = std::unordered_map<HWND, Window*>;

/// A window that lives as long as the object. Belongs to the thread that created it.
///
/// A window passes what its children notify it of (WM_COMMAND, WM_NOTIFY, WM_HSCROLL, WM_VSCROLL,
/// WM_DRAWITEM, WM_CTLCOLOR...) on to the child, where that is such an object.
class Window {
 public:
    Window() = default;
    virtual ~Window();
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;

    /// Null when there is none (any more): a container may destroy windows under us.
    HWND Handle() const { return handle_; }
    /// The object behind a window of this library that belongs to the current thread; null for
    /// others.
    static Window* Of(HWND handle);
    /// What is kept while the window answers; null where nothing is.
    Life* GetLife() const { return life_; }
    /// How many windows of this library exist in the process.
    static int Count();

    /// Tells whether the object still lives after a call that may have destroyed it, as every
    /// notification may. Watches of one window end in the reverse order of their beginning.
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
    /// Creates the window. Raises 7 when the platform refuses.
    void Create(const WindowDesign& design);
    /// While the platform's own window procedure is at work in the window, the window is only
    /// hidden and let go; the platform destroys it when that is done.
    void Destroy();
    /// Whether the platform's own window procedure is at work in any of the thread's windows, which
    /// must not be destroyed with another one then.
    bool IsPlatformAtWork() const;

    /// Answers a message. What it does not answer it hands to Default. Nothing that it throws
    /// leaves the window procedure: errors of event handlers end there. It may destroy the object.
    virtual LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
        return Default(message, wParam, lParam);
    }
    /// Answers what this window's parent was notified of; nothing: the parent's default answer.
    /// It may destroy the object.
    virtual std::optional<LRESULT> HandleNotification(UINT /*message*/, WPARAM /*wParam*/,
                                                      LPARAM /*lParam*/) {
        return std::nullopt;
    }
    /// The answer of the window's class. The object may be gone when it returns.
    LRESULT Default(UINT message, WPARAM wParam, LPARAM lParam);

 private:
    static LRESULT CALLBACK Procedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam);
    static const wchar_t* OwnClass(HINSTANCE module);
    LRESULT Answer(UINT message, WPARAM wParam, LPARAM lParam);
    std::optional<LRESULT> Reflect(UINT message, WPARAM wParam, LPARAM lParam);
    void LetGo();

    ThreadShared<OwnWindows> own_;
    HWND handle_ = nullptr;
    Life* life_ = nullptr;      // null: nothing waits for this window
    WNDPROC former_ = nullptr;  // of the platform's class
    int defaultCalls_ = 0;      // of the platform's class that have not returned
    Watch* watches_ = nullptr;  // the innermost
};

/// Removes the library's window class from the process, before its code is unloaded. There are no
/// windows any more then.
void RemoveWindowClass(HINSTANCE module);

struct ParkingWindow;

/// A share in the invisible window on which the windows of controls lie that their containers do
/// not show. There is one for each thread, as long as somebody has a share in it.
class ParkingPlace {
 public:
    /// Raises 7 when the platform has no more windows.
    explicit ParkingPlace(HINSTANCE module);
    ~ParkingPlace();
    ParkingPlace(const ParkingPlace&) = delete;
    ParkingPlace& operator=(const ParkingPlace&) = delete;

    HWND Handle() const;

 private:
    ThreadShared<ParkingWindow> shared_;
};

}  // namespace lumenkit::win32
