// Controls in windows of the class AtlAxWin, which every Windows (and Wine) brings along in
// atl.dll.
#pragma once

#include <string>

#include <ocidl.h>
#include <ole2.h>
#include <windows.h>
#include <wrl/client.h>

namespace atl_host {

using Microsoft::WRL::ComPtr;

/// A child window with a control in it, loaded from `settings`. `name` is the control's
/// programmatic identifier; `place` in pixels of `parent`. Null where there is no such control.
HWND PlaceControl(HWND parent, const wchar_t* name, const RECT& place, IPropertyBag& settings);

/// The control in a window; null where there is none or it lacks the interface.
ComPtr<IUnknown> ControlIn(HWND window);
template <typename Interface>
ComPtr<Interface> ControlIn(HWND window) {
    ComPtr<Interface> found;
    if (const ComPtr<IUnknown> control = ControlIn(window); control != nullptr) {
        control.As(&found);
    }
    return found;
}

/// Lets `sink` hear the events of interface `events` until the control goes. False where the
/// control has no such events.
bool Advise(HWND window, IDispatch& sink, REFIID events);

/// Offers a message of the queue to the control that has the focus, then to the form as a dialog:
/// this is what makes Tab, arrows and mnemonics work. True where the message was used up.
bool TranslateKey(HWND form, MSG& message);

}  // namespace atl_host
