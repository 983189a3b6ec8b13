// Places controls in windows of the class AtlAxWin, which atl.dll provides on every Windows and in
// Wine.
#pragma once

#include <string>

#include <ocidl.h>
#include <ole2.h>
#include <windows.h>
#include <wrl/client.h>

namespace atl_host {

using Microsoft::WRL::ComPtr;

/// Creates a child window with a control that loads its properties from `settings`. `name` is the
/// ProgID of the control. `place` is in pixels of the client area of `parent`. Returns null if the
/// control cannot be created.
HWND PlaceControl(HWND parent, const wchar_t* name, const RECT& place, IPropertyBag& settings);

/// Returns the control in a window, or null if there is no control or it lacks the interface.
ComPtr<IUnknown> ControlIn(HWND window);
template <typename Interface>
ComPtr<Interface> ControlIn(HWND window) {
    ComPtr<Interface> found;
    if (const ComPtr<IUnknown> control = ControlIn(window); control != nullptr) {
        control.As(&found);
    }
    return found;
}

/// Connects `sink` to the events of interface `events` until the control is destroyed. Returns
/// false if the control has no such events.
bool Advise(HWND window, IDispatch& sink, REFIID events);

/// Offers a key message to the control that has the focus, then to IsDialogMessage, which handles
/// Tab, arrow keys and mnemonics. Returns true if the message was handled.
bool TranslateKey(HWND form, MSG& message);

}  // namespace atl_host
