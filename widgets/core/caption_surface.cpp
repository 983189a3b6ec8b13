#include "widgets/core/caption_surface.h"

#include <algorithm>
#include <utility>

#include "runtime/qt/pixels.h"

namespace lumenkit::widgets {

namespace {

const qt::TwipsPerPixel& Twips() {
    return qt::TwipsPerPixel::OfScreens();
}

}  // namespace

CaptionSurface::CaptionSurface(std::shared_ptr<qt::Font> font, Color foreColor, float width,
                               double scale)
    : font_(std::move(font)), foreColor_(foreColor), width_(width), scale_(scale) {}

void CaptionSurface::Cls() {
    currentX_ = 0;
    currentY_ = 0;
    runs_.clear();
    picture_.Clear();
}

void CaptionSurface::Print(TextView text) {
    const std::shared_ptr<qt::FontFace>& face = Face();
    const QPointF at(currentX_ / Twips().x, currentY_ / Twips().y);
    const double width = picture_.Print(text, face, at, foreColor_, std::nullopt);
    if (!text.empty()) {
        runs_.push_back({Text(text), QRectF(at, QSizeF(width, face->LineHeight())), foreColor_});
    }
    currentX_ += static_cast<float>(width * Twips().x);
}

void CaptionSurface::FillBox(float x1, float y1, float x2, float y2, Color color) {
    currentX_ = x2;
    currentY_ = y2;
    const QPointF corner(x1 / Twips().x, y1 / Twips().y);
    const QPointF opposite(x2 / Twips().x, y2 / Twips().y);
    picture_.Fill(corner, opposite, Filled(color));
    AddBox(QRectF(corner, opposite).normalized().adjusted(0, 0, 1, 1), color);
}

// A pixel of the box is a pixel of the screen, and grows with the texts.
void CaptionSurface::FillPixels(float x, float y, const host::PixelBox& box, Color color) {
    const QPointF origin(x / Twips().x, y / Twips().y);
    currentX_ = static_cast<float>(x + box.right * Twips().x);
    currentY_ = static_cast<float>(y + box.bottom * Twips().y);
    picture_.FillPixels(origin, box, Filled(color));
    AddBox(QRectF(origin + QPointF(box.left, box.top), origin + QPointF(box.right, box.bottom))
               .adjusted(0, 0, 1, 1),
           color);
}

void CaptionSurface::AddBox(const QRectF& box, Color color) {
    runs_.push_back({{}, box, Filled(color)});
}

host::FontRef CaptionSurface::BeginDrawing() {
    drawingFont_ = font_->Clone();
    return drawingFont_;
}

float CaptionSurface::TextWidth(TextView text) {
    return static_cast<float>(Face()->WidthOf(text) * Twips().x);
}

void CaptionSurface::TextWidths(TextView text, std::span<double> ends) {
    Face()->Ends(text, Twips().x, ends);
}

float CaptionSurface::TextHeight(TextView /*text*/) {
    return static_cast<float>(Face()->LineHeight() * Twips().y);
}

}  // namespace lumenkit::widgets
