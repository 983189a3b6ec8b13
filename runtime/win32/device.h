// Classes that release device contexts and drawing objects, and restore selections.
#pragma once

#include <memory>
#include <type_traits>

#include "runtime/win32/windows_header.h"

namespace lumenkit::win32 {

struct DeleteDevice {
    void operator()(HDC device) const { DeleteDC(device); }
};
struct DeleteDrawingObject {
    void operator()(HGDIOBJ object) const { DeleteObject(object); }
};
/// A device in memory. An object that is selected in it must outlive it.
using OwnDevice = std::unique_ptr<std::remove_pointer_t<HDC>, DeleteDevice>;
using OwnBitmap = std::unique_ptr<std::remove_pointer_t<HBITMAP>, DeleteDrawingObject>;
using OwnBrush = std::unique_ptr<std::remove_pointer_t<HBRUSH>, DeleteDrawingObject>;
using OwnPen = std::unique_ptr<std::remove_pointer_t<HPEN>, DeleteDrawingObject>;
using OwnFont = std::unique_ptr<std::remove_pointer_t<HFONT>, DeleteDrawingObject>;

/// The device of a window's client area.
class WindowDevice {
 public:
    /// Null: the whole screen.
    explicit WindowDevice(HWND window) : window_(window), device_(GetDC(window)) {}
    ~WindowDevice() { ReleaseDC(window_, device_); }
    WindowDevice(const WindowDevice&) = delete;
    WindowDevice& operator=(const WindowDevice&) = delete;

    HDC Handle() const { return device_; }

 private:
    HWND window_;
    HDC device_;
};

/// The device of a window that answers WM_PAINT. Its creation erases the background.
class PaintDevice {
 public:
    explicit PaintDevice(HWND window) : window_(window), device_(BeginPaint(window, &paint_)) {}
    ~PaintDevice() { EndPaint(window_, &paint_); }
    PaintDevice(const PaintDevice&) = delete;
    PaintDevice& operator=(const PaintDevice&) = delete;

    HDC Handle() const { return device_; }
    /// The part of the client area that needs a repaint.
    const RECT& Damaged() const { return paint_.rcPaint; }

 private:
    HWND window_;
    PAINTSTRUCT paint_ = {};
    HDC device_;
};

/// Selects a drawing object in a device. The destructor selects the former object again.
class Selection {
 public:
    Selection(HDC device, HGDIOBJ object)
        : device_(device), former_(SelectObject(device, object)) {}
    ~Selection() { SelectObject(device_, former_); }
    Selection(const Selection&) = delete;
    Selection& operator=(const Selection&) = delete;

 private:
    HDC device_;
    HGDIOBJ former_;
};

/// A bitmap in memory to draw on.
class MemoryDevice {
 public:
    /// The bitmap has the format of the device `like`. `size` is in pixels. Raises 7 if the
    /// platform cannot allocate the bitmap.
    MemoryDevice(HDC like, SIZE size);

    HDC Handle() const { return device_.get(); }

 private:
    OwnDevice device_;
    OwnBitmap bitmap_;
    Selection selection_;
};

}  // namespace lumenkit::win32
