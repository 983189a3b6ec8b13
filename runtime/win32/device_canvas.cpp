#include "runtime/win32/device_canvas.h"

#include <array>
#include <cmath>
#include <cstdlib>

#include "runtime/win32/colors.h"
#include "runtime/win32/device.h"
#include "runtime/win32/drawn_text.h"
#include "runtime/win32/wide_text.h"

namespace lumenkit::win32 {

namespace {

int Scale(int pixel, LONG start, LONG end, LONG size) {
    if (size == 0 || end - start == size) {
        return static_cast<int>(start) + pixel;
    }
    return static_cast<int>(
        start + std::lround(static_cast<double>(pixel) * static_cast<double>(end - start) /
                            static_cast<double>(size)));
}

// Returns the corners of a triangle. The box may run upwards.
std::array<POINT, 3> Corners(Figure figure, const RECT& box) {
    const LONG right = box.right + (box.right > box.left ? -1 : 1);
    const LONG bottom = box.bottom + (box.bottom > box.top ? -1 : 1);
    const POINT middle = {(box.left + right) / 2, (box.top + bottom) / 2};
    switch (figure) {
        case Figure::Up:
            return {{{box.left, bottom}, {right, bottom}, {middle.x, box.top}}};
        case Figure::Down:
            return {{{box.left, box.top}, {right, box.top}, {middle.x, bottom}}};
        case Figure::Left:
            return {{{right, box.top}, {right, bottom}, {box.left, middle.y}}};
        default:
            return {{{box.left, box.top}, {box.left, bottom}, {right, middle.y}}};
    }
}

}  // namespace

Mapping Mapping::Plain(SIZE size) {
    return {.place = {0, 0, size.cx, size.cy}, .size = size};
}

int Mapping::X(int pixel) const {
    return Scale(pixel, place.left, place.right, size.cx);
}

int Mapping::Y(int pixel) const {
    return Scale(pixel, place.top, place.bottom, size.cy);
}

RECT Mapping::Of(const RECT& box) const {
    return {.left = X(static_cast<int>(box.left)),
            .top = Y(static_cast<int>(box.top)),
            .right = X(static_cast<int>(box.right)),
            .bottom = Y(static_cast<int>(box.bottom))};
}

bool Mapping::IsPlain() const {
    return place.right - place.left == size.cx && place.bottom - place.top == size.cy;
}

DeviceCanvas::DeviceCanvas(HDC device, const Mapping& mapping, const RECT& area)
    : device_(device), mapping_(mapping), area_(area), isPlain_(mapping.IsPlain()) {
    SaveDC(device_);
    SetTextAlign(device_, TA_LEFT | TA_TOP | TA_NOUPDATECP);
    const RECT clip = mapping_.Of(area_);
    IntersectClipRect(device_, clip.left, clip.top, clip.right, clip.bottom);
}

DeviceCanvas::~DeviceCanvas() {
    RestoreDC(device_, -1);  // relative, so that a metafile may be played at any depth
}

void DeviceCanvas::Clear(Color paper) {
    FillMapped(mapping_.Of(area_), paper);
}

void DeviceCanvas::Fill(const RECT& box, Color color) {
    FillMapped(Mapped(box), color);
}

RECT DeviceCanvas::Mapped(RECT box) const {
    OffsetRect(&box, static_cast<int>(area_.left), static_cast<int>(area_.top));
    return mapping_.Of(box);
}

// The outline has the colour too: without one the platform omits the last row and column. It is one
// pixel of the device wide.
void DeviceCanvas::FillFigure(Figure figure, const RECT& box, Color color) {
    const RECT place = Mapped(box);
    const OwnBrush brush(CreateSolidBrush(ToColorRef(color)));
    const OwnPen pen(CreatePen(PS_SOLID, 0, ToColorRef(color)));
    SelectObject(device_, brush.get());
    SelectObject(device_, pen.get());
    if (figure == Figure::Ellipse) {
        Ellipse(device_, place.left, place.top, place.right, place.bottom);
    } else {
        const std::array<POINT, 3> corners = Corners(figure, place);
        Polygon(device_, corners.data(), static_cast<int>(corners.size()));
    }
    // Metafiles do not tell which objects were selected before.
    SelectObject(device_, GetStockObject(WHITE_BRUSH));
    SelectObject(device_, GetStockObject(BLACK_PEN));
}

void DeviceCanvas::BeginClip(const RECT& box) {
    const RECT clip = Mapped(box);
    SaveDC(device_);
    IntersectClipRect(device_, clip.left, clip.top, clip.right, clip.bottom);
}

void DeviceCanvas::EndClip() {
    RestoreDC(device_, -1);
    font_ = nullptr;
    ink_ = CLR_INVALID;
    backgroundMode_ = 0;
}

// Drawing an empty opaque text fills the box without a brush.
void DeviceCanvas::FillMapped(const RECT& box, Color color) {
    SetBkColor(device_, ToColorRef(color));
    ExtTextOutW(device_, 0, 0, ETO_OPAQUE, &box, L"", 0, nullptr);
}

void DeviceCanvas::Use(HFONT font) {
    if (font_ != font) {
        SelectObject(device_, font);
        font_ = font;
    }
}

void DeviceCanvas::Print(const TextRun& run) {
    const COLORREF ink = ToColorRef(run.ink);
    if (ink_ != ink) {
        SetTextColor(device_, ink);
        ink_ = ink;
    }
    const int mode = run.hasPaper ? OPAQUE : TRANSPARENT;
    if (backgroundMode_ != mode) {
        SetBkMode(device_, mode);
        backgroundMode_ = mode;
    }
    if (run.hasPaper) {
        SetBkColor(device_, ToColorRef(run.paper));
    }
    const POINT at = {mapping_.X(static_cast<int>(area_.left + run.at.x)),
                      mapping_.Y(static_cast<int>(area_.top + run.at.y))};
    if (!isPlain_) {
        PrintScaled(run, at);
        return;
    }
    Use(run.font->Handle());
    const TextView text = DrawnText(run.text.substr(0, longestAtOnce), drawn_);
    ExtTextOutW(device_, at.x, at.y, 0, nullptr, AsWide(text.data()),
                static_cast<UINT>(text.size()), nullptr);
}

// Each unit keeps its position in the line, so that the lines break as on the screen.
void DeviceCanvas::PrintScaled(const TextRun& run, POINT at) {
    const ScreenFontRef font = Scaled(*run.font);
    const TextView text = DrawnText(run.text.substr(0, longestAtOnce), drawn_);
    advances_.resize(text.size());
    run.font->Ends(text, advances_);
    const int left = static_cast<int>(area_.left + run.at.x);
    int before = mapping_.X(left);
    for (int& end : advances_) {
        const int mapped = mapping_.X(left + end);
        end = std::abs(mapped - before);
        before = mapped;
    }
    SelectObject(device_, font->Handle());
    ExtTextOutW(device_, at.x, at.y, 0, nullptr, AsWide(text.data()),
                static_cast<UINT>(text.size()), advances_.data());
}

ScreenFontRef DeviceCanvas::Scaled(const ScreenFont& font) const {
    const double across = std::abs(static_cast<double>(mapping_.place.right - mapping_.place.left) /
                                   static_cast<double>(mapping_.size.cx));
    const double down = std::abs(static_cast<double>(mapping_.place.bottom - mapping_.place.top) /
                                 static_cast<double>(mapping_.size.cy));
    LOGFONTW design = font.Design();
    design.lfHeight = static_cast<LONG>(std::lround(static_cast<double>(design.lfHeight) * down));
    constexpr double noticeable = 0.02;
    if (std::abs(across - down) > noticeable * down) {
        design.lfWidth = static_cast<LONG>(std::lround(font.AverageWidth() * across));
    }
    if (design.lfHeight == 0) {
        design.lfHeight = -1;
    }
    return cache_->Find(design);
}

}  // namespace lumenkit::win32
