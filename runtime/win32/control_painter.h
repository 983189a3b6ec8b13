#pragma once

#include "runtime/win32/device_canvas.h"
#include "runtime/win32/paint_buffer.h"
#include "runtime/win32/surface.h"
#include "runtime/win32/thread_shared.h"
#include "runtime/win32/window.h"

namespace lumenkit::win32 {

/// Draws a control: on its window when it needs a repaint, and on any other device at any scale.
class ControlPainter {
 public:
    /// Both arguments must outlive the painter.
    ControlPainter(const Window& window, Surface& surface) : window_(window), surface_(surface) {}

    /// Answers WM_PAINT of the control's window.
    void PaintWindow();
    /// Draws the client area without the constituents, unscaled.
    void PaintClientArea(HDC device);
    /// Draws the border, the surface and the constituents of a control of `size` pixels, scaled
    /// into `place`, which is in logical units of the device. On a screen or bitmap at the size of
    /// the control, the constituents look as in their windows. On any other device and at any other
    /// size, they are drawn as texts and shapes.
    void DrawOn(HDC device, const RECT& place, SIZE size);
    /// Draws the same as texts and shapes. The canvas has the size of the control.
    void DrawOn(Canvas& canvas, SIZE size);

 private:
    void DrawSurface(Canvas& canvas, SIZE size);
    void DrawParts(Canvas& canvas) const;
    void DrawParts(HDC device, const Mapping& mapping) const;

    const Window& window_;
    Surface& surface_;
    ThreadShared<PaintBuffer> buffer_;
};

}  // namespace lumenkit::win32
