// The contract held against the Windows runtime.
#include <algorithm>
#include <memory>
#include <utility>

#include <gtest/gtest.h>

#include "runtime/memory/property_bag.h"
#include "runtime/win32/window.h"
#include "tests/contract/contract_runtime.h"
#include "tests/support/windows_form.h"

namespace lumenkit::contract {
namespace {

// The window of a constituent.
template <typename Constituent>
HWND WindowOf(Constituent& constituent) {
    return dynamic_cast<win32::Window&>(constituent).Handle();
}

// Whether a person at the screen can use the window.
bool IsUsable(HWND window) {
    for (HWND at = window; at != nullptr; at = GetAncestor(at, GA_PARENT)) {
        if (at == GetDesktopWindow()) {
            break;
        }
        if (IsWindowEnabled(at) == FALSE) {
            return false;
        }
    }
    return IsWindowVisible(window) != FALSE;
}

void ClickInside(HWND window) {
    if (!IsUsable(window)) {
        return;
    }
    RECT area = {};
    GetClientRect(window, &area);
    const LPARAM centre = MAKELPARAM(area.right / 2, area.bottom / 2);
    SendMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, centre);
    SendMessageW(window, WM_LBUTTONUP, 0, centre);
}

// The keys held while a key is typed, as the platform tells them.
class HeldControl {
 public:
    explicit HeldControl(bool isHeld) {
        GetKeyboardState(former_);
        BYTE keys[256];
        GetKeyboardState(keys);
        keys[VK_CONTROL] = isHeld ? 0x80 : 0;
        SetKeyboardState(keys);
    }
    ~HeldControl() { SetKeyboardState(former_); }
    HeldControl(const HeldControl&) = delete;
    HeldControl& operator=(const HeldControl&) = delete;

 private:
    BYTE former_[256] = {};
};

// A key's messages as the queue holds them: its character comes behind the message that it went
// down, unless whoever deals with that takes it away.
void Strike(HWND window, char16_t unit) {
    const bool isControl = unit < 0x20 && unit != u'\b' && unit != u'\t' && unit != u'\r';
    const HeldControl held(isControl);
    const WCHAR shown = static_cast<WCHAR>(isControl ? unit + u'@' : unit);
    const WPARAM key = LOBYTE(VkKeyScanW(shown));
    PostMessageW(window, WM_CHAR, unit, 1);
    SendMessageW(window, WM_KEYDOWN, key, 1);
    MSG message = {};
    while (PeekMessageW(&message, window, WM_CHAR, WM_CHAR, PM_REMOVE) != FALSE) {
        DispatchMessageW(&message);
    }
    SendMessageW(window, WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
}

void PutOnClipboard(HWND owner, TextView text) {
    ASSERT_NE(OpenClipboard(owner), FALSE);
    EmptyClipboard();
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, (text.size() + 1) * sizeof(char16_t));
    auto* const target = static_cast<char16_t*>(GlobalLock(memory));
    *std::copy(text.begin(), text.end(), target) = u'\0';
    GlobalUnlock(memory);
    SetClipboardData(CF_UNICODETEXT, memory);
    CloseClipboard();
}

class Win32Runtime final : public ContractRuntime {
 public:
    explicit Win32Runtime(const ClassTable& classes) : form_(classes) {}

    void PlaceNew(const ClassDescriptor& type) override {
        Place(type);
        control_->Start();
    }
    void PlaceSaved(const ClassDescriptor& type, host::PropertyBag& bag) override {
        Place(type);
        control_->Start(&bag);
    }
    void Resize(float width, float height) override {
        control_->Hosted().SetSize(Pixels(width, height));
    }
    void Repaint() override {
        InvalidateRect(control_->Hosted().Window(), nullptr, FALSE);
        UpdateWindow(control_->Hosted().Window());
    }
    void Save(host::PropertyBag& bag) override { control_->Hosted().Save(bag); }
    void SetEventHandler(EventHandler handler) override {
        control_->Site().SetEventHandler(std::move(handler));
    }
    void AllowChange(TextView property, bool allowed) override {
        control_->Site().AllowChange(property, allowed);
    }
    std::vector<Text> ChangedProperties() override {
        std::vector<Text> names;
        for (const memory::ChangedProperty* changed : form_.GetLog().Changes()) {
            names.push_back(changed->name);
        }
        return names;
    }
    std::unique_ptr<host::PropertyBag> NewBag() override {
        return std::make_unique<memory::PropertyBag>();
    }
    host::FontRef NewFont(TextView name, float points) override {
        return form_.Fonts().NewFont(name, points);
    }

    void Focus(host::TextBox& box) override { Reach(WindowOf(box)); }
    void Type(host::TextBox& box, TextView text) override {
        const HWND window = WindowOf(box);
        for (const char16_t unit : text) {
            if (!Reach(window)) {
                return;
            }
            Strike(window, unit);
        }
    }
    void Select(host::TextBox& box, std::int32_t start, std::int32_t length) override {
        if (Reach(WindowOf(box))) {
            SendMessageW(WindowOf(box), EM_SETSEL, static_cast<WPARAM>(start), start + length);
        }
    }
    void Paste(host::TextBox& box, TextView text) override {
        if (Reach(WindowOf(box))) {
            PutOnClipboard(form_.Window(), text);
            SendMessageW(WindowOf(box), WM_PASTE, 0, 0);
        }
    }
    void Click(host::OptionButton& button) override { ClickInside(WindowOf(button)); }
    void Click(host::CheckBox& box) override { ClickInside(WindowOf(box)); }
    void Click(host::CommandButton& button) override { ClickInside(WindowOf(button)); }
    void Scroll(host::ScrollBar& bar, std::int16_t value) override {
        const HWND window = WindowOf(bar);
        const HWND parent = GetAncestor(window, GA_PARENT);
        for (const int step : {SB_THUMBTRACK, SB_THUMBPOSITION, SB_ENDSCROLL}) {
            SendMessageW(parent, WM_HSCROLL, MAKEWPARAM(step, value),
                         reinterpret_cast<LPARAM>(window));
        }
    }
    void ClickSurface() override { ClickInside(control_->Hosted().Window()); }

 private:
    SIZE Pixels(float width, float height) {
        const win32::Resolution resolution = form_.PixelsPerInch();
        return {win32::ToPixels(width, resolution.x), win32::ToPixels(height, resolution.y)};
    }
    void Place(const ClassDescriptor& type) {
        control_.reset();
        control_ = std::make_unique<testing::FormControl>(form_, type, Pixels(3000, 1500));
    }
    // Whether the window can be used; it has the focus then.
    static bool Reach(HWND window) {
        if (!IsUsable(window)) {
            return false;
        }
        SetFocus(window);
        return true;
    }

    testing::WindowsForm form_;
    std::unique_ptr<testing::FormControl> control_;
};

}  // namespace

RuntimeKind RuntimeUnderTest() {
    return {.name = "Win32",
            .create = [](const ClassTable& classes) -> std::unique_ptr<ContractRuntime> {
                return std::make_unique<Win32Runtime>(classes);
            }};
}

}  // namespace lumenkit::contract
