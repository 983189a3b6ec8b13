#include <QGuiApplication>
#include <QPainter>
#include <QPalette>
#include <algorithm>
#include <cmath>
#include <limits>

#include <lumenkit/widgets/caption_painter.h>

#include "runtime/qt/palette_color.h"
#include "runtime/qt/pixels.h"
#include "runtime/qt/qt_text.h"
#include "vlabel/spoken_caption.h"
#include "widgets/core/conversions.h"
#include "widgets/core/drawn_caption.h"

namespace lumenkit::widgets {

namespace {

// Device pixels for each pixel of the painter's coordinates, however it is rotated.
double ScaleOf(const QPainter& painter) {
    const double scale = std::sqrt(std::abs(painter.deviceTransform().determinant()));
    return scale > 0 ? scale : 1;
}

}  // namespace

class CaptionPainter::Private {
 public:
    /// Lays the caption out, unless it was laid out like this the last time.
    DrawnCaption& At(qreal width, double scale) {
        const qreal border = wrap ? width : -1;
        if (!drawn || drawn->Width() != border || drawn->Scale() != scale) {
            drawn = std::make_unique<DrawnCaption>(Settings(), ToFontObject(font), ToColor(Ink()),
                                                   border, scale);
        }
        return *drawn;
    }
    DrawnCaption& OnScreen(qreal width) { return At(width, qGuiApp->devicePixelRatio()); }

    QColor Ink() const {
        return color.isValid() ? color : QGuiApplication::palette().color(QPalette::WindowText);
    }

    QString caption;
    QFont font = QGuiApplication::font();
    QColor color;
    bool wrap = false;
    std::int16_t indent = 0;
    QString prefix;
    std::unique_ptr<DrawnCaption> drawn;  // reset by every change

 private:
    CaptionSettings Settings() const {
        const qt::TwipsPerPixel& twips = qt::TwipsPerPixel::OfScreens();
        return {.Caption = qt::ToText(caption),
                .BulletPrefix = qt::ToText(prefix),
                .BulletIndent = indent,
                .WordWrap = wrap,
                .IsCompiled = false,
                .TwipsPerPixelX = static_cast<std::int16_t>(std::lround(twips.x)),
                .TwipsPerPixelY = static_cast<std::int16_t>(std::lround(twips.y))};
    }
};

CaptionPainter::CaptionPainter() : d_(std::make_unique<Private>()) {}
CaptionPainter::CaptionPainter(const QString& caption) : CaptionPainter() {
    d_->caption = caption;
}
CaptionPainter::~CaptionPainter() = default;
CaptionPainter::CaptionPainter(CaptionPainter&& other) noexcept = default;
CaptionPainter& CaptionPainter::operator=(CaptionPainter&& other) noexcept = default;

CaptionPainter::CaptionPainter(const CaptionPainter& other) : CaptionPainter() {
    *this = other;
}
CaptionPainter& CaptionPainter::operator=(const CaptionPainter& other) {
    if (this != &other) {
        d_->caption = other.d_->caption;
        d_->font = other.d_->font;
        d_->color = other.d_->color;
        d_->wrap = other.d_->wrap;
        d_->indent = other.d_->indent;
        d_->prefix = other.d_->prefix;
        d_->drawn.reset();
    }
    return *this;
}

// ---- Properties

QString CaptionPainter::caption() const {
    return d_->caption;
}
void CaptionPainter::setCaption(const QString& caption) {
    d_->caption = caption;
    d_->drawn.reset();
}

QFont CaptionPainter::font() const {
    return d_->font;
}
void CaptionPainter::setFont(const QFont& font) {
    d_->font = font;
    d_->drawn.reset();
}

QColor CaptionPainter::color() const {
    return d_->Ink();
}
void CaptionPainter::setColor(const QColor& color) {
    d_->color = color;
    d_->drawn.reset();
}

bool CaptionPainter::wordWrap() const {
    return d_->wrap;
}
void CaptionPainter::setWordWrap(bool wrap) {
    d_->wrap = wrap;
    d_->drawn.reset();
}

int CaptionPainter::bulletIndent() const {
    return d_->indent;
}
void CaptionPainter::setBulletIndent(int twips) {
    constexpr int largest = std::numeric_limits<std::int16_t>::max();
    d_->indent = static_cast<std::int16_t>(std::clamp(twips, 0, largest));
    d_->drawn.reset();
}

QString CaptionPainter::bulletPrefix() const {
    return d_->prefix;
}
void CaptionPainter::setBulletPrefix(const QString& prefix) {
    d_->prefix = prefix;
    d_->drawn.reset();
}

// ---- Measuring

QSizeF CaptionPainter::size(qreal width) const {
    return d_->OnScreen(width).Size();
}

QList<CaptionRun> CaptionPainter::runs(qreal width) const {
    QList<CaptionRun> runs;
    for (const CaptionSurface::Run& run : d_->OnScreen(width).Runs()) {
        const QColor color = qt::ToQColor(run.color, QGuiApplication::palette());
        // The boxes of one bullet follow each other.
        if (run.text.empty() && !runs.isEmpty() && runs.last().isBullet) {
            runs.last().rect |= run.rect;
        } else {
            runs.append({qt::ToQString(run.text), run.rect, color, run.text.empty()});
        }
    }
    return runs;
}

int CaptionPainter::runAt(QPointF point, qreal width) const {
    const QList<CaptionRun> all = runs(width);
    const auto found = std::find_if(
        all.rbegin(), all.rend(), [&](const CaptionRun& run) { return run.rect.contains(point); });
    return static_cast<int>(std::distance(found, all.rend())) - 1;
}

QString CaptionPainter::plainText() const {
    return qt::ToQString(SpokenCaption(qt::ViewOf(d_->caption), qt::ViewOf(d_->prefix)))
        .replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

QString CaptionPainter::errorString() const {
    return d_->OnScreen(-1).Error();
}

// ---- Drawing

void CaptionPainter::draw(QPainter& painter, const QRectF& rect) const {
    if (!painter.isActive() || rect.isEmpty()) {
        return;
    }
    const qt::TwipsPerPixel& twips = qt::TwipsPerPixel::OfScreens();
    constexpr double twipsPerInch = 1440;
    const double unit = painter.device()->logicalDpiX() * twips.x / twipsPerInch;
    painter.save();
    painter.setClipRect(rect, Qt::IntersectClip);
    painter.translate(rect.topLeft());
    painter.scale(unit, unit);
    const QRectF visible(QPointF(), rect.size() / unit);
    d_->At(visible.width(), ScaleOf(painter)).DrawOn(painter, visible);
    painter.restore();
}

}  // namespace lumenkit::widgets
