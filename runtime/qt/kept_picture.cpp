#include "runtime/qt/kept_picture.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "runtime/qt/palette_color.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::qt {

namespace {

// Returns the first and last device pixel that a box covers in one direction. A cell of the box has
// `zoom` pixels.
std::pair<double, double> Covered(double corner, double opposite, double near, double far,
                                  double zoom) {
    const auto begin = [zoom](double cell) { return std::round(cell * zoom); };
    const auto end = [zoom](double cell) { return std::round((cell + 1) * zoom) - 1; };
    const double first = std::min(corner + begin(near), opposite + begin(far));
    return {first, std::max({corner + end(near), opposite + end(far), first})};
}

}  // namespace

QRectF KeptPicture::Mark::Place() const {
    return face ? QRectF(at, QSizeF(width, face->LineHeight()))
                : QRectF(at, opposite).normalized().adjusted(0, 0, 1, 1);
}

QRectF KeptPicture::Mark::Extent() const {
    if (face) {
        const double reach = face->LineHeight();
        return Place().adjusted(-reach, -reach, reach, reach);
    }
    return Place().adjusted(std::min<int>(cells.left, 0) - 1, std::min<int>(cells.top, 0) - 1,
                            std::max<int>(cells.right, 0) + 1, std::max<int>(cells.bottom, 0) + 1);
}

KeptPicture::Mark& KeptPicture::Next() {
    if (count_ == marks_.size()) {
        marks_.emplace_back();
    }
    return marks_[count_];
}

double KeptPicture::Print(TextView text, const std::shared_ptr<FontFace>& face, QPointF at,
                          Color ink, std::optional<Color> paper) {
    Mark& mark = Next();
    if (mark.face != face || mark.text != text) {
        mark = {.face = face, .text = Text(text), .glyphs = {}, .width = face->WidthOf(text)};
    }
    mark.at = at;
    mark.color = ink;
    mark.paper = paper;
    ++count_;
    return mark.width;
}

void KeptPicture::Fill(QPointF corner, QPointF opposite, Color color) {
    AddBox(corner, opposite, {}, color);
}

void KeptPicture::FillPixels(QPointF origin, const host::PixelBox& box, Color color) {
    AddBox(origin, origin, box, color);
}

void KeptPicture::AddBox(QPointF corner, QPointF opposite, const host::PixelBox& cells,
                         Color color) {
    Mark& mark = Next();
    mark.face.reset();
    mark.at = corner;
    mark.opposite = opposite;
    mark.cells = cells;
    mark.color = color;
    ++count_;
}

void KeptPicture::DrawOn(QPainter& painter, const QRectF& visible, const QPalette& palette,
                         double scale) {
    std::optional<Color> pen;
    for (std::size_t index = 0; index < count_; ++index) {
        Mark& mark = marks_[index];
        if (!mark.Extent().intersects(visible)) {
            continue;
        }
        if (mark.face) {
            DrawText(painter, mark, palette, pen);
        } else {
            DrawBox(painter, mark, palette, scale);
        }
    }
}

void KeptPicture::DrawText(QPainter& painter, Mark& mark, const QPalette& palette,
                           std::optional<Color>& pen) {
    if (mark.paper) {
        painter.fillRect(mark.Place(), ToQColor(*mark.paper, palette));
    }
    if (!mark.glyphs) {
        mark.glyphs = mark.face->GlyphsOf(mark.text);
    }
    if (pen != mark.color) {
        pen = mark.color;
        painter.setPen(ToQColor(mark.color, palette));
    }
    mark.face->Draw(painter, mark.at + QPointF(0, mark.face->Ascent()), *mark.glyphs);
}

// Rounds in device pixels relative to the origin of the device, because that is the grid to fill.
void KeptPicture::DrawBox(QPainter& painter, const Mark& mark, const QPalette& palette,
                          double scale) {
    const QTransform& device = painter.deviceTransform();
    const double xScale = device.m11();
    const double yScale = device.m22();
    const auto [left, right] =
        Covered(std::round(mark.at.x() * xScale + std::round(device.dx())),
                std::round(mark.opposite.x() * xScale + std::round(device.dx())), mark.cells.left,
                mark.cells.right, xScale / scale);
    const auto [top, bottom] =
        Covered(std::round(mark.at.y() * yScale + std::round(device.dy())),
                std::round(mark.opposite.y() * yScale + std::round(device.dy())), mark.cells.top,
                mark.cells.bottom, yScale / scale);
    painter.fillRect(QRectF(QPointF((left - device.dx()) / xScale, (top - device.dy()) / yScale),
                            QSizeF((right - left + 1) / xScale, (bottom - top + 1) / yScale)),
                     ToQColor(mark.color, palette));
}

QRectF KeptPicture::LastExtent() const {
    return count_ == 0 ? QRectF() : marks_[count_ - 1].Extent();
}

QString KeptPicture::Texts() const {
    QString texts;
    const Mark* former = nullptr;
    for (std::size_t index = 0; index < count_; ++index) {
        const Mark& mark = marks_[index];
        if (!mark.face) {
            continue;
        }
        if (former != nullptr && mark.at.y() != former->at.y()) {
            texts += QLatin1Char('\n');
        }
        texts += ToQString(mark.text);
        former = &mark;
    }
    return texts;
}

}  // namespace lumenkit::qt
