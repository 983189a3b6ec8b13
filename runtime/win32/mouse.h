// The mouse as the host contract knows it.
#pragma once

#include <cstdint>

#include "frame/host/mouse.h"
#include "runtime/win32/pixels.h"
#include "runtime/win32/windows_header.h"

namespace lumenkit::win32 {

/// The keys held as of the message being answered: 1 Shift, 2 Ctrl, 4 Alt.
std::int16_t HeldKeys();

/// The arguments of a mouse message of a client area. Of a button's message the button that moved,
/// of WM_MOUSEMOVE all that are held.
host::MouseArguments MouseArgumentsOf(UINT message, WPARAM wParam, LPARAM lParam,
                                      Resolution resolution);

}  // namespace lumenkit::win32
