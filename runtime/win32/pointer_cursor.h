#pragma once

#include "frame/host/enumerations.h"
#include "runtime/win32/windows_header.h"

namespace lumenkit::win32 {

/// Answers WM_SETCURSOR of `window`: shows the pointer over its client area. Custom is an arrow,
/// because no picture can be set for it. Returns false where the window shows its usual cursor: for
/// Default, over its border and over its children.
bool ShowPointer(HWND window, host::MousePointer pointer, WPARAM wParam, LPARAM lParam);

}  // namespace lumenkit::win32
