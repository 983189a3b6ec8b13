#include "apps/lumenform/form_view/shape_widget.h"

#include <QApplication>
#include <QPainter>
#include <algorithm>
#include <array>
#include <cstddef>

#include "runtime/qt/palette_color.h"

namespace lumenkit::lumenform {

namespace {

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
