// A form with constituents, and the actions of a user.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "frame/runtime_error.h"
#include "runtime/win32/constituents.h"
#include "runtime/win32/element.h"
#include "runtime/win32/window.h"
#include "tests/support/windows_form.h"

namespace lumenkit::win32 {

using Lines = std::vector<std::string>;

/// The window of the control that contains the constituents. Counts how often the focus comes and
/// leaves.
class Panel final : public Window {
 public:
    Panel(HINSTANCE module, HWND parent);

    int focusCame = 0;
    int focusLeft = 0;

 private:
    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
};

class PartsTest : public ::testing::Test {
 protected:
    explicit PartsTest(const ClassTable& classes = {}) : form_(classes) {}

    Constituents& Parts() { return parts_; }
    /// Returns the window of a constituent.
    template <typename Constituent>
    static HWND WindowOf(Constituent& constituent) {
        return dynamic_cast<Window&>(constituent).Handle();
    }
    static void Pump() { lumenkit::testing::WindowsForm::Pump(); }

    lumenkit::testing::WindowsForm form_;
    std::unique_ptr<Panel> panel_ =
        std::make_unique<Panel>(GetModuleHandleW(nullptr), form_.Window());
    Constituents parts_{{form_.Context(), *panel_, true}, &EmbedControl};
};

/// Presses and releases a key. In between, sends its character if it has one.
void Strike(HWND window, WORD key, char16_t unit = 0);
/// Types letters, digits and line breaks (CR).
void TypeText(HWND window, TextView text);
/// Places are in pixels of the client area.
void PressButton(HWND window, POINT place);
void LiftButton(HWND window, POINT place);
void ClickAt(HWND window, POINT place);
void PutOnClipboard(HWND owner, TextView text);

/// Holds a key down in the keyboard state of this thread while the object exists.
class HeldKey {
 public:
    explicit HeldKey(int key);
    ~HeldKey();
    HeldKey(const HeldKey&) = delete;
    HeldKey& operator=(const HeldKey&) = delete;

 private:
    BYTE former_[256] = {};
};

/// Whether `action` raises the runtime's error `number`.
template <typename Action>
::testing::AssertionResult Raises(ErrorNumber number, Action&& action) {
    try {
        action();
    } catch (const RuntimeError& error) {
        if (error.Number() == static_cast<std::int32_t>(number)) {
            return ::testing::AssertionSuccess();
        }
        return ::testing::AssertionFailure() << "raised " << error.Number();
    }
    return ::testing::AssertionFailure() << "raised nothing";
}

}  // namespace lumenkit::win32
