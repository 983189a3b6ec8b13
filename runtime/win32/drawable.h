#pragma once

#include "runtime/win32/windows_header.h"

namespace lumenkit::win32 {

/// A Window that can draw itself on any device, whether it is to be seen or not.
class Drawable {
 public:
    virtual ~Drawable() = default;

    /// Draws the window with its border and with what lies in it. The device's logical units are
    /// the window's pixels, the origin is its upper left corner, border included. Leaves the
    /// device's settings as they were; clipping is the caller's.
    virtual void DrawTo(HDC device) = 0;
};

/// Draws those child windows of `parent` that are Drawable and not hidden by themselves, the front
/// ones last, each clipped to its own rectangle. The origin is the upper left corner of the
/// parent's client area.
void DrawChildren(HWND parent, HDC device);

}  // namespace lumenkit::win32
