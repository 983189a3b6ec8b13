#pragma once

#include <vector>

#include "runtime/win32/windows_header.h"

namespace lumenkit::win32 {

/// A window that is in a window of a container.
class AttachedWindow {
 public:
    virtual ~AttachedWindow() = default;

    /// Called before `window` is destroyed, and with it all windows inside it. The attached window
    /// may be one of them.
    virtual void WindowIsDestroyed(HWND window) = 0;
};

/// The attached windows of one thread. The platform destroys a window together with its parent, and
/// its constituents with it. Therefore the attached windows are told before that happens, so that
/// they can leave the container. As long as there are attached windows, a hook watches the windows
/// of the thread.
class AttachedWindows {
 public:
    AttachedWindows() = default;
    ~AttachedWindows();
    AttachedWindows(const AttachedWindows&) = delete;
    AttachedWindows& operator=(const AttachedWindows&) = delete;

    /// Does nothing for a window that was added before.
    void Add(AttachedWindow& window);
    void Remove(AttachedWindow& window);

 private:
    static LRESULT CALLBACK Watch(int code, WPARAM wParam, LPARAM lParam);
    void Tell(HWND destroyed) const;
    void EndWatch();

    std::vector<AttachedWindow*> windows_;
    HHOOK hook_ = nullptr;
};

}  // namespace lumenkit::win32
