#include "runtime/win32/control_painter.h"

#include "runtime/win32/canvas_part.h"
#include "runtime/win32/drawable.h"
#include "runtime/win32/edges.h"

namespace lumenkit::win32 {

namespace {

// Whether the device consists of pixels and the control covers as many of them as its window.
bool ShowsOwnPixels(HDC device, const Mapping& mapping) {
    const DWORD kind = GetObjectType(device);
    if ((kind != OBJ_DC && kind != OBJ_MEMDC) ||
        GetDeviceCaps(device, TECHNOLOGY) != DT_RASDISPLAY) {
        return false;
    }
    RECT place = mapping.place;
    LPtoDP(device, reinterpret_cast<POINT*>(&place), 2);
    const SIZE size = SizeOf(place);
    return size.cx == mapping.size.cx && size.cy == mapping.size.cy;
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
    const bool showsPixels = ShowsOwnPixels(device, mapping);
    {
        DeviceCanvas canvas(device, mapping, {0, 0, size.cx, size.cy});
        DrawSurface(canvas, size);
        if (!showsPixels) {
            DrawParts(canvas);
        }
    }
    if (showsPixels) {
        DrawParts(device, mapping);
    }
}

void ControlPainter::DrawOn(Canvas& canvas, SIZE size) {
    surface_.PaintIfOutdated();
    DrawSurface(canvas, size);
    DrawParts(canvas);
}

void ControlPainter::DrawSurface(Canvas& canvas, SIZE size) {
    if (surface_.BorderStyle() != 0) {
        DrawSunkenEdge(canvas, {0, 0, size.cx, size.cy});
    }
    CanvasPart area(canvas, surface_.Area());
    surface_.DrawOn(area);
}

void ControlPainter::DrawParts(Canvas& canvas) const {
    if (window_.Handle() != nullptr) {
        CanvasPart area(canvas, surface_.Area());
        DrawChildShapes(window_.Handle(), area);
    }
}

// The window classes draw the constituents in a bitmap, as they do on the screen.
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
