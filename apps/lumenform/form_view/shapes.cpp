#include "apps/lumenform/form_view/shapes.h"

#include <QApplication>
#include <QPainter>
#include <algorithm>
#include <array>
#include <cstddef>

#include "runtime/qt/palette_color.h"

namespace lumenkit::lumenform {

namespace {

Qt::PenStyle PenStyleOf(const Stroke& stroke) {
    constexpr std::array<Qt::PenStyle, Stroke::InsideSolid + 1> styles = {
        Qt::NoPen,       Qt::SolidLine,      Qt::DashLine, Qt::DotLine,
        Qt::DashDotLine, Qt::DashDotDotLine, Qt::SolidLine};
    const bool isWhole = stroke.width > 1 && stroke.style != Stroke::Transparent;
    return isWhole ? Qt::SolidLine : styles[static_cast<std::size_t>(stroke.style)];
}

bool IsEqualSided(ShapeWidget::Form form) {
    using Form = ShapeWidget::Form;
    return form == Form::Square || form == Form::Circle || form == Form::RoundedSquare;
}

// Returns the largest square in the middle of `room`.
QRectF SquareIn(const QRectF& room) {
    const qreal side = std::min(room.width(), room.height());
    QRectF square(0, 0, side, side);
    square.moveCenter(room.center());
    return square;
}

}  // namespace

Stroke Stroke::Of(const BlockReader& reader) {
    constexpr std::int32_t widest = 1000;
    Stroke stroke;
    stroke.color = reader.ColorOf(u"BorderColor", stroke.color);
    stroke.style = static_cast<Style>(reader.Choice(u"BorderStyle", InsideSolid + 1, stroke.style));
    stroke.width = std::clamp(reader.Whole(u"BorderWidth", stroke.width), 1, widest);
    return stroke;
}

QPen Stroke::Pen() const {
    return {qt::ToQColor(color, QApplication::palette()), static_cast<qreal>(width),
            PenStyleOf(*this), Qt::FlatCap, Qt::MiterJoin};
}

int Stroke::Reach() const {
    return style == Transparent || style == InsideSolid ? 0 : width / 2;
}

LineWidget::LineWidget(const Stroke& stroke) : stroke_(stroke) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void LineWidget::SetRises(bool rises) {
    rises_ = rises;
    update();
}

int LineWidget::Reach() const {
    constexpr int roomToClick = 2;  // room for the mouse: a horizontal line has no height
    return stroke_.width / 2 + roomToClick;
}

void LineWidget::paintEvent(QPaintEvent* /*event*/) {
    const qreal middle = Reach() + 0.5;  // centre of the pixel in the corner
    const QRectF box = QRectF(rect()).adjusted(middle, middle, 1 - middle, 1 - middle);
    QPainter painter(this);
    painter.setPen(stroke_.Pen());
    painter.setRenderHint(QPainter::Antialiasing, box.width() != 0 && box.height() != 0);
    if (rises_) {
        painter.drawLine(box.bottomLeft(), box.topRight());
    } else {
        painter.drawLine(box.topLeft(), box.bottomRight());
    }
}

Filling Filling::Of(const BlockReader& reader) {
    constexpr std::array styles = {Qt::SolidPattern, Qt::NoBrush,         Qt::HorPattern,
                                   Qt::VerPattern,   Qt::FDiagPattern,    Qt::BDiagPattern,
                                   Qt::CrossPattern, Qt::DiagCrossPattern};
    constexpr std::int32_t transparent = 1;
    constexpr std::int32_t opaque = 1;
    Filling filling;
    filling.color = reader.ColorOf(u"FillColor", filling.color);
    filling.style = styles[static_cast<std::size_t>(
        reader.Choice(u"FillStyle", static_cast<std::int32_t>(styles.size()), transparent))];
    if (reader.Whole(u"BackStyle", 0) == opaque) {
        filling.ground = reader.ColorOf(u"BackColor", Color::WindowBackground);
    }
    return filling;
}

ShapeWidget::ShapeWidget(Form form, const Stroke& stroke, const Filling& filling)
    : form_(form), stroke_(stroke), filling_(filling) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

// The line that the border follows.
QRectF ShapeWidget::Outline() const {
    const qreal inset = stroke_.style == Stroke::InsideSolid ? stroke_.width / 2.0 : Reach() + 0.5;
    const QRectF room = QRectF(rect()).adjusted(inset, inset, -inset, -inset);
    return IsEqualSided(form_) ? SquareIn(room) : room;
}

void ShapeWidget::Draw(QPainter& painter, const QRectF& outline) const {
    switch (form_) {
        case Form::Oval:
        case Form::Circle:
            painter.drawEllipse(outline);
            break;
        case Form::RoundedRectangle:
        case Form::RoundedSquare: {
            const qreal radius = std::min(outline.width(), outline.height()) / 8;
            painter.drawRoundedRect(outline, radius, radius);
            break;
        }
        case Form::Rectangle:
        case Form::Square:
            painter.drawRect(outline);
    }
}

void ShapeWidget::paintEvent(QPaintEvent* /*event*/) {
    const QRectF outline = Outline();
    if (outline.width() < 0 || outline.height() < 0) {
        return;
    }
    const QPalette palette = QApplication::palette();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing,
                          form_ != Form::Rectangle && form_ != Form::Square);
    if (filling_.ground) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(qt::ToQColor(*filling_.ground, palette));
        Draw(painter, outline);
    }
    painter.setPen(stroke_.Pen());
    painter.setBrush(QBrush(qt::ToQColor(filling_.color, palette), filling_.style));
    Draw(painter, outline);
}

}  // namespace lumenkit::lumenform
