#include "runtime/qt/surface.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

#include "frame/host/accepted_values.h"
#include "frame/raised_flag.h"
#include "runtime/qt/input.h"
#include "runtime/qt/interaction.h"
#include "runtime/qt/palette_color.h"

namespace lumenkit::qt {

namespace {

const TwipsPerPixel& Twips() {
    return TwipsPerPixel::OfScreens();
}

// Shapes of device pixels are made for screens of up to twice the usual resolution. On a finer one
// they would be specks, so that each of their pixels takes several.
host::PixelBox OnFineScreen(const host::PixelBox& box, double scale) {
    const auto pixels = static_cast<int>(std::max(std::round(scale / 2), 1.0));
    const auto first = [pixels](int cell) { return static_cast<std::int16_t>(cell * pixels); };
    const auto last = [&](int cell) { return static_cast<std::int16_t>(first(cell) + pixels - 1); };
    return {first(box.left), first(box.top), last(box.right), last(box.bottom)};
}

}  // namespace

Surface::Surface(SurfaceOwner& owner, const ErrorSink& errors, float width, float height)
    : owner_(owner),
      area_(std::make_unique<SurfaceWidget>(owner.Outside(), *this, errors)),
      font_(
          std::make_shared<Font>(u"MS Sans Serif", 8.25F), [this] { PictureOutdated(); }, errors),
      drawingFont_(font_.Get()->Clone()),
      scale_(area_->devicePixelRatioF()),
      width_(width),
      height_(height) {
    RequireSize(width, height);
}

Surface::~Surface() {
    Boxes().Remove(*this);
    area_->Detach();
    DeleteSafely(area_.release());
}

// ---- Drawing

void Surface::Cls() {
    currentX_ = 0;
    currentY_ = 0;
    if (IsRecording()) {
        picture_.Clear();
    }
    area_->update();
}

void Surface::Print(TextView text) {
    const std::shared_ptr<FontFace>& face = CurrentFace();
    double width = 0;
    if (IsRecording()) {
        const QPointF at(currentX_ / Twips().x, currentY_ / Twips().y);
        const auto paper = fontTransparent_ ? std::nullopt : std::optional(backColor_);
        width = picture_.Print(text, face, at, foreColor_, paper);
        Touch();
    } else {
        width = face->WidthOf(text);
    }
    currentX_ += static_cast<float>(width * Twips().x);
}

host::FontRef Surface::BeginDrawing() {
    drawingFont_->CopyFrom(*font_.Get());
    isDrawing_ = true;
    return drawingFont_;
}

void Surface::FillBox(float x1, float y1, float x2, float y2, Color color) {
    currentX_ = x2;
    currentY_ = y2;
    if (IsRecording()) {
        picture_.Fill({x1 / Twips().x, y1 / Twips().y}, {x2 / Twips().x, y2 / Twips().y},
                      color == Color{} ? foreColor_ : color);
        Touch();
    }
}

void Surface::FillPixels(float x, float y, const host::PixelBox& box, Color color) {
    const host::PixelBox fine = OnFineScreen(box, scale_);
    currentX_ = static_cast<float>(x + fine.right * Twips().x / scale_);
    currentY_ = static_cast<float>(y + fine.bottom * Twips().y / scale_);
    if (IsRecording()) {
        picture_.FillPixels({x / Twips().x, y / Twips().y}, fine,
                            color == Color{} ? foreColor_ : color);
        Touch();
    }
}

// Schedules a repaint of the last mark.
void Surface::Touch() {
    if (!isPainting_) {
        area_->update(picture_.LastExtent().toAlignedRect());
    }
}

void Surface::SetAutoRedraw(bool keep) {
    if (keep == autoRedraw_) {
        return;
    }
    autoRedraw_ = keep;
    picture_.Clear();
    PictureOutdated();
}

// ---- Painting

void Surface::DrawOn(QPainter& painter, const QRect& exposed) {
    UpdateScale();
    PaintIfOutdated();
    const QPalette palette = area_->palette();
    painter.fillRect(exposed, ToQColor(backColor_, palette));
    picture_.DrawOn(painter, exposed, palette, scale_);
}

void Surface::PaintIfOutdated() {
    if (!IsOutdated() || isPainting_) {
        return;
    }
    if (Boxes().IsAny()) {
        Boxes().Add(*this);
        return;
    }
    isOutdated_ = false;
    paintedSize_ = area_->size();
    if (!autoRedraw_ && control_ != nullptr) {
        PaintControl();
    }
}

void Surface::PaintControl() {
    const RaisedFlag painting(isPainting_);
    picture_.Clear();
    control_->UserControl_Paint();
}

// Called when the control must paint again.
void Surface::PictureOutdated() {
    isOutdated_ = true;
    area_->update();
}

void Surface::Refresh() {
    if (isPainting_) {
        return;
    }
    font_.Flush();
    PictureOutdated();
    Cause([&] { area_->repaint(); });
    if (area_->isVisible()) {
        PaintIfOutdated();  // shown, but not on the screen yet
    }
}

QString Surface::PaintedText() const {
    return picture_.Texts();
}

void Surface::PaletteChanged() {
    area_->update();
    owner_.PaletteChanged();
}

void Surface::UpdateScale() {
    const double scale = area_->devicePixelRatioF();
    if (scale != scale_) {
        scale_ = scale;
        isOutdated_ = true;
    }
}

// ---- Measuring

float Surface::TextWidth(TextView text) {
    return static_cast<float>(CurrentFace()->WidthOf(text) * Twips().x);
}

void Surface::TextWidths(TextView text, std::span<double> ends) {
    CurrentFace()->Ends(text, Twips().x, ends);
}

float Surface::TextHeight(TextView /*text*/) {
    return static_cast<float>(CurrentFace()->LineHeight() * Twips().y);
}

float Surface::ScaleWidth() const {
    return std::max(width_ - 2 * owner_.BorderWidth(borderStyle_), 0.0F);
}

float Surface::ScaleHeight() const {
    return std::max(height_ - 2 * owner_.BorderWidth(borderStyle_), 0.0F);
}

float Surface::VisibleBottom() const {
    return ScaleHeight();
}

// ---- Properties

void Surface::SetForeColor(Color color) {
    foreColor_ = color;
}

void Surface::SetBackColor(Color color) {
    backColor_ = color;
    if (IsRecording()) {
        picture_.Clear();
    }
    if (!isPainting_) {
        PictureOutdated();
    }
}

void Surface::Size(float width, float height) {
    RequireSize(width, height);
    if (width == width_ && height == height_) {
        return;
    }
    width_ = width;
    height_ = height;
    isOutdated_ = true;
    Cause([&] { owner_.SurfaceResized(); });
    if (control_ != nullptr) {
        const Notifying notifying;
        control_->UserControl_Resize();
    }
}

void Surface::SetEnabled(bool enabled) {
    enabled_ = enabled;
    Cause([&] { area_->setEnabled(enabled); });
}

void Surface::SetBorderStyle(std::int16_t style) {
    borderStyle_ = AcceptedNumber<std::int16_t>(style, 0, 1);
    Cause([&] { owner_.SurfaceResized(); });
    PictureOutdated();
}

void Surface::SetPointer(std::int16_t pointer) {
    RequirePointer(pointer);
    pointer_ = pointer;
    ShowPointer(*area_, static_cast<host::MousePointer>(pointer));
}

}  // namespace lumenkit::qt
