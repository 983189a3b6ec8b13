#pragma once

#include "runtime/win32/canvas.h"
#include "runtime/win32/windows_header.h"

namespace lumenkit::win32 {

/// A Window that can draw itself on any device, whether it is visible or not.
class Drawable {
 public:
    virtual ~Drawable() = default;

    /// Draws the window with its border and its children. The logical units of the device are the
    /// window's pixels; the origin is the window's upper left corner, border included. Restores the
    /// settings of the device. The caller is responsible for clipping.
    virtual void DrawOn(HDC device) = 0;
    /// Draws the same on a canvas, with texts and shapes only. The origin and the responsibility
    /// for clipping are the same too.
    virtual void DrawShapes(Canvas& canvas) = 0;
};

/// Whether a window is not hidden itself; its parents may be.
bool HasVisibleStyle(HWND window);
/// Returns the place of `child`, border included, in pixels of the parent's client area.
RECT PlaceInParent(HWND parent, HWND child);

/// Returns the client area of a window, measured from the window's upper left corner.
RECT ClientArea(HWND window);

/// Draws the child windows of `parent` that are Drawable and not hidden themselves, from back to
/// front, each clipped to its rectangle. The origin is the upper left corner of the parent's client
/// area.
void DrawChildren(HWND parent, HDC device);
/// Does the same on a canvas, whose origin is the upper left corner of the parent's client area.
/// Children outside the client area are left out.
void DrawChildShapes(HWND parent, Canvas& canvas);

}  // namespace lumenkit::win32
