#pragma once

#include <oleacc.h>
#include <wrl/client.h>

#include "runtime/win32/windows_header.h"

namespace lumenkit::win32 {

/// Returns an IAccessibleEx and IRawElementProviderSimple that tells the position of a window in
/// its group; null if there is no memory. `object` is the window's IAccessible.
Microsoft::WRL::ComPtr<IUnknown> NewGroupPosition(HWND window, IAccessible& object);

}  // namespace lumenkit::win32
