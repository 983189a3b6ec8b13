#include "runtime/qt/surface.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "frame/host/accepted_values.h"
#include "runtime/qt/input.h"
#include "runtime/qt/palette_color.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::qt {

namespace {

constexpr double dotsPerMeter = 1440.0 / 0.0254;

const TwipsPerPixel& Twips() {
    return TwipsPerPixel::OfScreens();
}

}  // namespace

Surface::Surface(SurfaceOwner& owner, const ErrorSink& errors, float width, float height)
    : owner_(owner),
      area_(std::make_unique<SurfaceWidget>(owner.Outside(), *this, errors)),
      font_(
          std::make_shared<Font>(u"MS Sans Serif", 8.25F), [this] { FontChanged(); }, errors),
      scale_(area_->devicePixelRatioF()),
      width_(width),
      height_(height) {
    RequireSize(width, height);
}

Surface::~Surface() {
    FinishPicture();
    area_->Detach();
    DeleteSafely(area_.release());
}

// ---- Drawing

QColor Surface::Shown(Color color) const {
    return ToQColor(color, area_->palette());
}

QRect Surface::WholeArea() const {
    return {QPoint(0, 0), area_->size()};
}

// Returns the painter to draw with now, or null if nothing can be drawn.
QPainter* Surface::Target() {
    if (painter_ != nullptr) {
        return painter_;
    }
    return autoRedraw_ ? &PicturePainter() : nullptr;
}

void Surface::Cls() {
    currentX_ = 0;
    currentY_ = 0;
    nextRun_ = 0;
    QPainter* painter = Target();
    if (painter == nullptr) {
        area_->update();
        return;
    }
    if (!isBlank_ || autoRedraw_) {
        painter->fillRect(IsPainting() ? exposed_ : WholeArea(), Shown(backColor_));
        isBlank_ = true;
        Touch(WholeArea());
    }
}

void Surface::Print(TextView text) {
    const std::shared_ptr<FontFace>& face = CurrentFace();
    double width = 0;
    if (QPainter* painter = Target()) {
        Run& run = NextRun(text, face);
        width = run.width;
        DrawRun(*painter, run);
    } else {
        width = face->WidthOf(text);
    }
    currentX_ += static_cast<float>(width * Twips().x);
}

// Returns the run that was printed at this place in the last painting, if it is the same. Otherwise
// the new run replaces it.
Surface::Run& Surface::NextRun(TextView text, const std::shared_ptr<FontFace>& face) {
    if (nextRun_ == runs_.size()) {
        runs_.emplace_back();
    }
    Run& run = runs_[nextRun_++];
    if (run.face != face || run.text != text) {
        run = {.text = Text(text), .face = face, .glyphs = {}, .width = face->WidthOf(text)};
    }
    run.y = currentY_;
    return run;
}

void Surface::DrawRun(QPainter& painter, Run& run) {
    const double left = currentX_ / Twips().x;
    const double top = currentY_ / Twips().y;
    const QRectF place(left, top, run.width, run.face->LineHeight());
    const QRectF visible = IsPainting() ? exposed_ : WholeArea();
    // Letters may extend beyond their advance, by less than the height of the line.
    const double reach = run.face->LineHeight();
    if (!place.adjusted(-reach, -reach, reach, reach).intersects(visible)) {
        return;
    }
    if (!fontTransparent_) {
        painter.fillRect(place, Shown(backColor_));
    }
    if (!run.glyphs) {
        run.glyphs = run.face->GlyphsOf(run.text);
    }
    UsePen(painter, foreColor_);
    const QPointF baseLine(left, top + run.face->Ascent());
    for (const QGlyphRun& glyphs : run.glyphs->runs) {
        painter.drawGlyphRun(baseLine, glyphs);
    }
    isBlank_ = false;
    Touch(place.adjusted(-reach, -reach, reach, reach));
}

void Surface::UsePen(QPainter& painter, Color color) {
    if (pen_ != color) {
        pen_ = color;
        painter.setPen(Shown(color));
    }
}

void Surface::FillBox(float x1, float y1, float x2, float y2, Color color) {
    currentX_ = x2;
    currentY_ = y2;
    QPainter* painter = Target();
    if (painter == nullptr) {
        return;
    }
    // Round in device pixels relative to the origin of the device, because that is the grid to
    // fill.
    const QTransform& device = painter->deviceTransform();
    const auto cell = [](double twips, double perPixel, double scale, double origin) {
        return std::round(twips / perPixel * scale + std::round(origin));
    };
    const double xScale = device.m11();
    const double yScale = device.m22();
    const auto [left, right] = std::minmax(
        {cell(x1, Twips().x, xScale, device.dx()), cell(x2, Twips().x, xScale, device.dx())});
    const auto [top, bottom] = std::minmax(
        {cell(y1, Twips().y, yScale, device.dy()), cell(y2, Twips().y, yScale, device.dy())});
    const QRectF box(QPointF((left - device.dx()) / xScale, (top - device.dy()) / yScale),
                     QSizeF((right - left + 1) / xScale, (bottom - top + 1) / yScale));
    painter->fillRect(box, Shown(color == Color{} ? foreColor_ : color));
    isBlank_ = false;
    Touch(box);
}

// Schedules a repaint after something was drawn on the kept picture.
void Surface::Touch(const QRectF& pixels) {
    if (painter_ == nullptr) {
        area_->update(pixels.toAlignedRect());
    }
}

// ---- The kept picture

QImage Surface::NewPicture() const {
    const QSize size = (QSizeF(area_->size()) * scale_).toSize().expandedTo({1, 1});
    QImage picture(size, QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(scale_);
    picture.setDotsPerMeterX(static_cast<int>(dotsPerMeter / Twips().x));
    picture.setDotsPerMeterY(static_cast<int>(dotsPerMeter / Twips().y));
    picture.fill(Shown(backColor_));
    return picture;
}

QPainter& Surface::PicturePainter() {
    if (!picturePainter_) {
        if (picture_.isNull()) {
            picture_ = NewPicture();
        }
        picturePainter_ = std::make_unique<QPainter>(&picture_);
        pen_.reset();
    }
    return *picturePainter_;
}

void Surface::FinishPicture() {
    picturePainter_.reset();
}

// Resizes the picture to the area and keeps the part of the drawing that fits.
void Surface::FitPicture() {
    if (picture_.isNull()) {
        return;
    }
    FinishPicture();
    const QImage former = std::exchange(picture_, NewPicture());
    QPainter(&picture_).drawImage(QPointF(0, 0), former);
}

void Surface::SetAutoRedraw(bool keep) {
    if (keep == autoRedraw_) {
        return;
    }
    autoRedraw_ = keep;
    FinishPicture();
    picture_ = {};
    area_->update();
}

// ---- Painting

void Surface::DrawOn(QPainter& painter, const QRect& exposed) {
    UpdateScale();
    hasPainted_ = true;
    if (autoRedraw_) {
        PicturePainter();
        FinishPicture();
        painter.drawImage(QPointF(0, 0), picture_);
        return;
    }
    painter.fillRect(exposed, Shown(backColor_));
    exposed_ = exposed;
    PaintControl(&painter);
}

// With a null painter nothing is drawn, but UserControl_Paint still runs.
void Surface::PaintControl(QPainter* painter) {
    if (control_ == nullptr) {
        return;
    }
    struct Painting {
        explicit Painting(Surface& painted) : surface(painted) {
            surface.pen_.reset();
            surface.isBlank_ = true;
            surface.nextRun_ = 0;
            surface.font_.SetMuted(true);
        }
        ~Painting() {
            surface.painter_ = nullptr;
            surface.font_.SetMuted(false);
        }
        Painting(const Painting&) = delete;
        Painting& operator=(const Painting&) = delete;
        Surface& surface;
    };
    const Painting painting(*this);
    painter_ = painter;
    control_->UserControl_Paint();
}

void Surface::Refresh() {
    if (IsPainting()) {
        area_->update();
        return;
    }
    font_.Flush();
    hasPainted_ = false;
    Cause([&] { area_->repaint(); });
    if (!hasPainted_ && !autoRedraw_ && area_->isVisible()) {
        PaintControl(nullptr);  // shown, but not on the screen yet
    }
}

QString Surface::PaintedText() const {
    QString text;
    const auto last = runs_.begin() + static_cast<std::ptrdiff_t>(nextRun_);
    for (auto run = runs_.begin(); run != last; ++run) {
        if (run != runs_.begin() && run->y != std::prev(run)->y) {
            text += QLatin1Char('\n');
        }
        text += ToQString(run->text);
    }
    return text;
}

void Surface::FontChanged() {
    area_->update();
}

void Surface::PaletteChanged() {
    pen_.reset();
    area_->update();
    owner_.PaletteChanged();
}

void Surface::UpdateScale() {
    const double scale = area_->devicePixelRatioF();
    if (scale != scale_) {
        scale_ = scale;
        FitPicture();
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
    return IsPainting() ? static_cast<float>((exposed_.bottom() + 1) * Twips().y) : ScaleHeight();
}

// ---- Properties

void Surface::SetForeColor(Color color) {
    foreColor_ = color;
}

void Surface::SetBackColor(Color color) {
    backColor_ = color;
    if (IsPainting()) {
        painter_->fillRect(exposed_, Shown(color));
        return;
    }
    if (autoRedraw_) {
        PicturePainter().fillRect(WholeArea(), Shown(color));
    }
    area_->update();
}

void Surface::Size(float width, float height) {
    RequireSize(width, height);
    if (width == width_ && height == height_) {
        return;
    }
    width_ = width;
    height_ = height;
    Cause([&] {
        owner_.SurfaceResized();
        FitPicture();
    });
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
    Cause([&] {
        owner_.SurfaceResized();
        FitPicture();
    });
}

void Surface::SetPointer(std::int16_t pointer) {
    RequirePointer(pointer);
    pointer_ = pointer;
    ShowPointer(*area_, static_cast<host::MousePointer>(pointer));
}

}  // namespace lumenkit::qt
