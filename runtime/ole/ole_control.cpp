#include "runtime/ole/ole_control.h"

#include "runtime/ole/result.h"

namespace lumenkit::ole {

namespace {

BOOL CALLBACK WantsReturn(HWND window, LPARAM found) {
    constexpr LONG_PTR shownWithLines = WS_VISIBLE | ES_MULTILINE;
    const bool mayHaveLines =
        (GetWindowLongPtrW(window, GWL_STYLE) & shownWithLines) == shownWithLines;
    // The second style means something else to other windows than text boxes.
    if (mayHaveLines && (SendMessageW(window, WM_GETDLGCODE, 0, 0) & DLGC_HASSETSEL) != 0) {
        *reinterpret_cast<bool*>(found) = true;
        return FALSE;
    }
    return TRUE;
}

// Whether Return means something inside the control, as in a text box of several lines.
bool EatsReturn(HWND window) {
    bool found = false;
    EnumChildWindows(window, &WantsReturn, reinterpret_cast<LPARAM>(&found));
    return found;
}

}  // namespace

HRESULT OleControl::GetControlInfo(CONTROLINFO* information) {
    return Guarded([&] {
        if (Checked(information).cb != sizeof(CONTROLINFO)) {
            return E_INVALIDARG;
        }
        information->hAccel = nullptr;
        information->cAccel = 0;
        information->dwFlags = EatsReturn(core_.Hosted().Window()) ? CTRLINFO_EATS_RETURN : 0;
        return S_OK;
    });
}

HRESULT OleControl::OnMnemonic(MSG* message) {
    return Guarded([&] {
        Checked(message);
        core_.GetActivation().ActivateUI();
    });
}

HRESULT OleControl::OnAmbientPropertyChange(DISPID /*property*/) {
    return Guarded([&] { core_.Hosted().AmbientChanged(); });
}

HRESULT OleControl::FreezeEvents(BOOL freeze) {
    return Guarded([&] { core_.FreezeEvents(freeze != FALSE); });
}

}  // namespace lumenkit::ole
