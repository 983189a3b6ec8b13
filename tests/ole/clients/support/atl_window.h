// Controls in the windows that the platform's template library makes for them.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "tests/ole/clients/support/com.h"

namespace lumenkit::clients {

/// A top-level window with a window of the class "AtlAxWin" in it, 200 pixels by 100.
class AtlWindow {
 public:
    /// `text`: what the window is to hold, as its class takes it: a class's name, or nothing yet.
    explicit AtlWindow(const std::wstring& text);
    ~AtlWindow();
    AtlWindow(const AtlWindow&) = delete;
    AtlWindow& operator=(const AtlWindow&) = delete;

    HWND Host() const { return host_; }
    /// Null where there is none.
    ComPtr<IDispatch> Control() const;
    /// Puts a control in. `saved`: what it is loaded from; null for a new one.
    HRESULT CreateControl(const wchar_t* name, IStream* saved);

    /// The visible windows of a class in it, from top to bottom.
    std::vector<HWND> Visible(const wchar_t* windowClass) const;
    /// Types into the window as a keyboard would: down, character, up.
    static void Type(HWND window, wchar_t character);
    void Resize(int width, int height);
    void Close();

 private:
    HWND top_;
    HWND host_;
};

/// A key that is down as long as this lives, for this thread.
class HeldKey {
 public:
    explicit HeldKey(int key);
    ~HeldKey();
    HeldKey(const HeldKey&) = delete;
    HeldKey& operator=(const HeldKey&) = delete;

 private:
    std::array<BYTE, 256> before_ = {};
};

}  // namespace lumenkit::clients
