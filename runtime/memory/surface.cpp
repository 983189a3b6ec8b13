#include "runtime/memory/surface.h"

#include <utility>

#include "frame/host/accepted_values.h"
#include "frame/runtime_error.h"

namespace lumenkit::memory {

Surface::Surface(std::shared_ptr<FaultPlan> faults, float width, float height)
    : faults_(std::move(faults)),
      font_(std::make_shared<Font>(faults_, u"MS Sans Serif", 8.25F)),
      drawingFont_(font_->Clone()),
      width_(width),
      height_(height) {
    RequireSize(width, height);
}

float Surface::CurrentX() const {
    Call(u"CurrentX");
    return currentX_;
}

void Surface::SetCurrentX(float x) {
    Call(u"SetCurrentX");
    currentX_ = x;
}

float Surface::CurrentY() const {
    Call(u"CurrentY");
    return currentY_;
}

void Surface::SetCurrentY(float y) {
    Call(u"SetCurrentY");
    currentY_ = y;
}

void Surface::Cls() {
    Call(u"Cls");
    drawn_.Cls();
    currentX_ = 0;
    currentY_ = 0;
}

void Surface::Print(TextView text) {
    Call(u"Print");
    drawn_.Print(text, currentX_, currentY_, Attributes(), foreColor_);
    currentX_ += Attributes().WidthOf(text);
}

void Surface::FillBox(float x1, float y1, float x2, float y2, Color color) {
    Call(u"FillBox");
    const Color used = color == Color{} ? foreColor_ : color;
    drawn_.Box({.x1 = x1, .y1 = y1, .x2 = x2, .y2 = y2, .color = used});
    currentX_ = x2;
    currentY_ = y2;
}

void Surface::FillPixels(float x, float y, const host::PixelBox& box, Color color) {
    FillBox(x + static_cast<float>(box.left) * pixelWidth_,
            y + static_cast<float>(box.top) * pixelHeight_,
            x + static_cast<float>(box.right) * pixelWidth_,
            y + static_cast<float>(box.bottom) * pixelHeight_, color);
}

float Surface::TextWidth(TextView text) {
    Call(u"TextWidth");
    return Attributes().WidthOf(text);
}

void Surface::TextWidths(TextView text, std::span<double> ends) {
    Call(u"TextWidths");
    const double unit = Attributes().UnitWidth();
    for (std::size_t index = 0; index < text.size(); ++index) {
        ends[index] = static_cast<double>(index + 1) * unit;
    }
}

float Surface::TextHeight(TextView /*text*/) {
    Call(u"TextHeight");
    return static_cast<float>(Attributes().LineHeight());
}

float Surface::ScaleWidth() const {
    Call(u"ScaleWidth");
    return width_;
}

float Surface::ScaleHeight() const {
    Call(u"ScaleHeight");
    return height_;
}

float Surface::VisibleBottom() const {
    Call(u"VisibleBottom");
    return visibleBottom_;
}

host::FontRef Surface::CurrentFont() const {
    Call(u"CurrentFont");
    return font_;
}

void Surface::SetCurrentFont(host::FontRef font) {
    Call(u"SetCurrentFont");
    font_ = Font::From(std::move(font));
}

host::FontRef Surface::BeginDrawing() {
    Call(u"BeginDrawing");
    drawingFont_->CopyFrom(*font_);
    isDrawing_ = true;
    return drawingFont_;
}

Color Surface::ForeColor() const {
    Call(u"ForeColor");
    return foreColor_;
}

void Surface::SetForeColor(Color color) {
    Call(u"SetForeColor");
    foreColor_ = color;
}

Color Surface::BackColor() const {
    Call(u"BackColor");
    return backColor_;
}

void Surface::SetBackColor(Color color) {
    Call(u"SetBackColor");
    backColor_ = color;
    drawn_.Clear();
}

bool Surface::FontTransparent() const {
    Call(u"FontTransparent");
    return fontTransparent_;
}

void Surface::SetFontTransparent(bool transparent) {
    Call(u"SetFontTransparent");
    fontTransparent_ = transparent;
}

bool Surface::AutoRedraw() const {
    Call(u"AutoRedraw");
    return autoRedraw_;
}

void Surface::SetAutoRedraw(bool keep) {
    Call(u"SetAutoRedraw");
    autoRedraw_ = keep;
}

void Surface::Refresh() {
    Call(u"Refresh");
    PaintControl();
}

void Surface::PaintControl() {
    if (autoRedraw_ || !shown_ || control_ == nullptr) {
        return;
    }
    drawn_.Clear();
    control_->UserControl_Paint();
}

float Surface::Width() const {
    Call(u"Width");
    return width_;
}

float Surface::Height() const {
    Call(u"Height");
    return height_;
}

void Surface::Size(float width, float height) {
    Call(u"Size");
    Resize(width, height);
}

void Surface::Resize(float width, float height) {
    RequireSize(width, height);
    if (width == width_ && height == height_) {
        return;
    }
    width_ = width;
    height_ = height;
    if (control_ != nullptr) {
        control_->UserControl_Resize();
    }
}

bool Surface::Enabled() const {
    Call(u"Enabled");
    return enabled_;
}

void Surface::SetEnabled(bool enabled) {
    Call(u"SetEnabled");
    enabled_ = enabled;
}

std::int16_t Surface::BorderStyle() const {
    Call(u"BorderStyle");
    return borderStyle_;
}

void Surface::SetBorderStyle(std::int16_t style) {
    Call(u"SetBorderStyle");
    borderStyle_ = AcceptedNumber<std::int16_t>(style, 0, 1);
}

std::int16_t Surface::Pointer() const {
    Call(u"Pointer");
    return pointer_;
}

void Surface::SetPointer(std::int16_t pointer) {
    Call(u"SetPointer");
    RequirePointer(pointer);
    pointer_ = pointer;
}

}  // namespace lumenkit::memory
