#pragma once

#include "frame/host/enumerations.h"
#include "runtime/win32/windows_header.h"

namespace lumenkit::win32 {

/// The platform's cursor for a pointer, its own to keep; null for Default, which is whatever the
/// window has by itself. Nobody can give a picture for Custom: it is an arrow.
HCURSOR CursorOf(host::MousePointer pointer);

}  // namespace lumenkit::win32
