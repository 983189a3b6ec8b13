// Controls in windows that the platform's template library makes for them.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "tests/ole/clients/support/com.h"

namespace lumenkit::clients {

/// A top-level window that contains a window of the class "AtlAxWin", 200 by 100 pixels in size.
class AtlWindow {
 public:
    /// `text` is the text of the "AtlAxWin" window: the class name of the control to create, or
    /// empty.
    explicit AtlWindow(const std::wstring& text);
    ~AtlWindow();
    AtlWindow(const AtlWindow&) = delete;
    AtlWindow& operator=(const AtlWindow&) = delete;

    HWND Host() const { return host_; }
    /// Returns null if there is no control.
    ComPtr<IDispatch> Control() const;
    /// Creates a control in the window. It is loaded from `saved`, or is new if `saved` is null.
    HRESULT CreateControl(const wchar_t* name, IStream* saved);

    /// Returns the visible windows of a class inside, from top to bottom.
    std::vector<HWND> Visible(const wchar_t* windowClass) const;
    /// Sends the messages of a keystroke to the window: key down, character, key up.
    static void Type(HWND window, wchar_t character);
    void Resize(int width, int height);
    void Close();

 private:
    HWND top_;
    HWND host_;
};

/// Holds a key down in the keyboard state of this thread while the object exists.
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
