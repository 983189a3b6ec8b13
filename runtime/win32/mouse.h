// Conversion of the platform's mouse messages to the arguments of the host contract. Containers use
// the same numbers for held keys.
#pragma once

#include <cstdint>

#include "frame/host/mouse.h"
#include "runtime/win32/pixels.h"
#include "runtime/win32/windows_header.h"

namespace lumenkit::win32 {

inline constexpr std::int16_t leftButton = 1;
inline constexpr std::int16_t rightButton = 2;
inline constexpr std::int16_t middleButton = 4;

/// Returns the keys held when the current message was sent, as the sum of 1 for Shift, 2 for Ctrl
/// and 4 for Alt.
std::int16_t HeldKeys();

/// Returns the arguments for a mouse message of a client area. A button message reports the button
/// that changed; WM_MOUSEMOVE reports all buttons that are held.
host::MouseArguments MouseArgumentsOf(UINT message, WPARAM wParam, LPARAM lParam,
                                      Resolution resolution);

}  // namespace lumenkit::win32
