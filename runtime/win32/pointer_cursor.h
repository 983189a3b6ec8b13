#pragma once

#include "frame/host/enumerations.h"
#include "runtime/win32/windows_header.h"

namespace lumenkit::win32 {

/// Returns the platform's cursor for a pointer; the platform owns it. Returns null for Default,
/// which is the window's usual cursor. Custom is an arrow, because no picture can be set for it.
HCURSOR CursorOf(host::MousePointer pointer);

}  // namespace lumenkit::win32
