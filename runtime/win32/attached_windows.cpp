#include "runtime/win32/attached_windows.h"

#include <algorithm>
#include <utility>

#include "runtime/win32/thread_shared.h"

namespace lumenkit::win32 {

AttachedWindows::~AttachedWindows() {
    EndWatch();
}

void AttachedWindows::Add(AttachedWindow& window) {
    if (std::ranges::find(windows_, &window) != windows_.end()) {
        return;
    }
    windows_.push_back(&window);
    if (hook_ == nullptr) {
        hook_ = SetWindowsHookExW(WH_CBT, &Watch, nullptr, GetCurrentThreadId());
    }
}

void AttachedWindows::Remove(AttachedWindow& window) {
    std::erase(windows_, &window);
    if (windows_.empty()) {
        EndWatch();
    }
}

void AttachedWindows::EndWatch() {
    if (hook_ != nullptr) {
        UnhookWindowsHookEx(std::exchange(hook_, nullptr));
    }
}

LRESULT CALLBACK AttachedWindows::Watch(int code, WPARAM wParam, LPARAM lParam) {
    const AttachedWindows* const own = ThreadShared<AttachedWindows>::IfAny();
    if (code == HCBT_DESTROYWND && own != nullptr) {
        try {
            own->Tell(reinterpret_cast<HWND>(wParam));
        } catch (...) {
            // The platform cannot propagate exceptions.
        }
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

void AttachedWindows::Tell(HWND destroyed) const {
    // A window that leaves its container runs code of the container, which may destroy others, and
    // this object with the last of them.
    const std::vector<AttachedWindow*> told = windows_;
    for (AttachedWindow* const window : told) {
        const AttachedWindows* const own = ThreadShared<AttachedWindows>::IfAny();
        if (own != nullptr && std::ranges::find(own->windows_, window) != own->windows_.end()) {
            window->WindowIsDestroyed(destroyed);
        }
    }
}

}  // namespace lumenkit::win32
