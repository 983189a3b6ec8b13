#include "runtime/win32/control_painter.h"

#include "runtime/win32/drawable.h"

namespace lumenkit::win32 {

namespace {

constexpr Color SystemColor(std::uint32_t index) {
    return static_cast<Color>(0x80000000U | index);
}

// Draws a frame that is one pixel wide.
void DrawRing(Canvas& canvas, const RECT& box, Color upperLeft, Color lowerRight) {
    canvas.Fill({box.left, box.top, box.right, box.top + 1}, upperLeft);
    canvas.Fill({box.left, box.top, box.left + 1, box.bottom}, upperLeft);
    canvas.Fill({box.left, box.bottom - 1, box.right, box.bottom}, lowerRight);
    canvas.Fill({box.right - 1, box.top, box.right, box.bottom}, lowerRight);
}

// Draws the platform's sunken edge at any scale.
void DrawBorder(HDC device, const Mapping& mapping) {
    const RECT outside = {0, 0, mapping.size.cx, mapping.size.cy};
    RECT inside = outside;
    InflateRect(&inside, -1, -1);
    DeviceCanvas canvas(device, mapping, outside);
    DrawRing(canvas, outside, SystemColor(COLOR_BTNSHADOW), SystemColor(COLOR_BTNHIGHLIGHT));
    DrawRing(canvas, inside, SystemColor(COLOR_3DDKSHADOW), SystemColor(COLOR_3DLIGHT));
}

// Returns the part of `area` that the child window covers; empty for a hidden child.
RECT ShownPart(HWND parent, HWND child, const RECT& area) {
    if (!HasVisibleStyle(child)) {
        return {};
    }
    const RECT place = PlaceInParent(parent, child);
    RECT shown = {};
    IntersectRect(&shown, &place, &area);
    return shown;
}

void Stretch(HDC device, const RECT& target, HDC from, const RECT& source) {
    StretchBlt(device, target.left, target.top, target.right - target.left,
               target.bottom - target.top, from, source.left, source.top,
               source.right - source.left, source.bottom - source.top, SRCCOPY);
}

RECT Shifted(RECT box, const RECT& area) {
    OffsetRect(&box, static_cast<int>(area.left), static_cast<int>(area.top));
    return box;
}

}  // namespace

void ControlPainter::PaintWindow() {
    surface_.PaintIfOutdated();
    if (window_.Handle() == nullptr) {
        return;  // destroyed while a message box was open
    }
    const PaintDevice device(window_.Handle());
    const SIZE area = SizeOf(surface_.Area());
    const PaintBuffer::Use use(*buffer_, device.Handle(), device.Damaged());
    const POINT origin = use.Origin();
    const RECT place = {origin.x, origin.y, origin.x + area.cx, origin.y + area.cy};
    DeviceCanvas canvas(use.Device(), {place, area}, {0, 0, area.cx, area.cy});
    surface_.DrawOn(canvas);
}

void ControlPainter::PaintClientArea(HDC device) {
    surface_.PaintIfOutdated();
    const SIZE area = SizeOf(surface_.Area());
    DeviceCanvas canvas(device, Mapping::Plain(area), {0, 0, area.cx, area.cy});
    surface_.DrawOn(canvas);
}

void ControlPainter::DrawOn(HDC device, const RECT& place, SIZE size) {
    if (size.cx <= 0 || size.cy <= 0 || place.left == place.right || place.top == place.bottom) {
        return;
    }
    surface_.PaintIfOutdated();
    const Mapping mapping = {place, size};
    if (surface_.BorderStyle() != 0) {
        DrawBorder(device, mapping);
    }
    {
        DeviceCanvas canvas(device, mapping, surface_.Area());
        surface_.DrawOn(canvas);
    }
    DrawParts(device, mapping);
}

// The constituents draw in pixels. They are composed at the screen's size and then scaled.
void ControlPainter::DrawParts(HDC device, const Mapping& mapping) const {
    const HWND window = window_.Handle();
    if (window == nullptr || GetWindow(window, GW_CHILD) == nullptr) {
        return;
    }
    const RECT area = surface_.Area();
    const SIZE size = SizeOf(area);
    const RECT all = {0, 0, size.cx, size.cy};
    const WindowDevice screen(nullptr);
    const MemoryDevice parts(screen.Handle(), size);
    DeviceCanvas(parts.Handle(), Mapping::Plain(size), all).Clear(surface_.BackColor());
    DrawChildren(window, parts.Handle());
    const int mode = SetStretchBltMode(device, COLORONCOLOR);
    for (HWND child = GetWindow(window, GW_CHILD); child != nullptr;
         child = GetWindow(child, GW_HWNDNEXT)) {
        const RECT shown = ShownPart(window, child, all);
        if (IsRectEmpty(&shown) == FALSE) {
            Stretch(device, mapping.Of(Shifted(shown, area)), parts.Handle(), shown);
        }
    }
    SetStretchBltMode(device, mode);
}

}  // namespace lumenkit::win32
