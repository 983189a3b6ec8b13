#pragma once

#include "runtime/win32/windows_header.h"
#include "tests/contract/contract_runtime.h"

namespace lumenkit::contract {

/// The user's part of a runtime in real windows: sends messages to the windows of constituents.
class WindowsUser : public ContractRuntime {
 public:
    void Focus(host::TextBox& box) override;
    bool HasFocus(host::TextBox& box) override;
    void Type(host::TextBox& box, TextView text) override;
    void Press(host::TextBox& box, std::int16_t keyCode) override;
    void Select(host::TextBox& box, std::int32_t start, std::int32_t length) override;
    void Paste(host::TextBox& box, TextView text) override;
    void Click(host::OptionButton& button) override;
    void Click(host::CheckBox& box) override;
    void Click(host::CommandButton& button) override;
    void Scroll(host::ScrollBar& bar, std::int16_t value) override;
    void ClickSurface() override;

 protected:
    virtual HWND FormWindow() = 0;
    virtual HWND ControlWindow() = 0;
};

}  // namespace lumenkit::contract
