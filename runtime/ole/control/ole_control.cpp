#include "runtime/ole/control/ole_control.h"

#include <vector>

#include "runtime/ole/values/result.h"
#include "runtime/win32/keyboard.h"

namespace lumenkit::ole {

namespace {

BOOL CALLBACK WantsReturn(HWND window, LPARAM found) {
    constexpr LONG_PTR shownWithLines = WS_VISIBLE | ES_MULTILINE;
    const bool mayHaveLines =
        (GetWindowLongPtrW(window, GWL_STYLE) & shownWithLines) == shownWithLines;
    // ES_MULTILINE has another meaning for windows other than text boxes.
    if (mayHaveLines && (SendMessageW(window, WM_GETDLGCODE, 0, 0) & DLGC_HASSETSEL) != 0) {
        *reinterpret_cast<bool*>(found) = true;
        return FALSE;
    }
    return TRUE;
}

// Whether Return has an effect inside the control, as in a multi-line text box.
bool EatsReturn(HWND window) {
    bool found = false;
    EnumChildWindows(window, &WantsReturn, reinterpret_cast<LPARAM>(&found));
    return found;
}

// Containers compare either the character or the virtual key, so the table contains both.
std::vector<ACCEL> AcceleratorsOf(const std::wstring& mnemonics) {
    std::vector<ACCEL> accelerators;
    for (const wchar_t unit : mnemonics) {
        wchar_t upper = unit;
        CharUpperBuffW(&upper, 1);
        accelerators.push_back({.fVirt = FALT, .key = unit, .cmd = 0});
        if (upper != unit) {
            accelerators.push_back({.fVirt = FALT, .key = upper, .cmd = 0});
        }
        const SHORT key = VkKeyScanW(unit);
        if (key != -1 && HIBYTE(key) == 0) {
            accelerators.push_back(
                {.fVirt = FALT | FVIRTKEY, .key = static_cast<WORD>(LOBYTE(key)), .cmd = 0});
        }
    }
    return accelerators;
}

// Returns the character that the message types, or 0 if there is none.
wchar_t UnitOf(const MSG& message) {
    if (message.message == WM_SYSCHAR || message.message == WM_CHAR) {
        return static_cast<wchar_t>(message.wParam);
    }
    return static_cast<wchar_t>(
        MapVirtualKeyW(static_cast<UINT>(message.wParam), MAPVK_VK_TO_CHAR));
}

}  // namespace

HRESULT OleControl::GetControlInfo(CONTROLINFO* information) {
    return Guarded([&] {
        if (Checked(information).cb != sizeof(CONTROLINFO)) {
            return E_INVALIDARG;
        }
        std::vector<ACCEL> keys = AcceleratorsOf(core_.GiveMnemonics());
        table_.reset(keys.empty()
                         ? nullptr
                         : CreateAcceleratorTableW(keys.data(), static_cast<int>(keys.size())));
        information->hAccel = table_.get();
        information->cAccel = table_ == nullptr ? WORD{0} : static_cast<WORD>(keys.size());
        information->dwFlags = EatsReturn(core_.Hosted().Handle()) ? CTRLINFO_EATS_RETURN : 0;
        return S_OK;
    });
}

HRESULT OleControl::OnMnemonic(MSG* message) {
    return Guarded([&] {
        const wchar_t unit = UnitOf(Checked(message));
        if (!core_.Started().AcceptsInput()) {
            return;
        }
        core_.GetActivation().ActivateUI();
        if (unit != 0 && core_.GetActivation().IsActive()) {
            win32::UseMnemonicInside(core_.Hosted().Handle(), unit);
        }
    });
}

HRESULT OleControl::OnAmbientPropertyChange(DISPID /*property*/) {
    return Guarded([&] { core_.Hosted().AmbientChanged(); });
}

HRESULT OleControl::FreezeEvents(BOOL freeze) {
    return Guarded([&] { core_.FreezeEvents(freeze != FALSE); });
}

}  // namespace lumenkit::ole
