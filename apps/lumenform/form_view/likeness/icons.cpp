#include "apps/lumenform/form_view/likeness/icons.h"

#include <QStyle>
#include <QStyleOptionButton>
#include <algorithm>
#include <array>

#include "apps/lumenform/form_view/likeness/painted.h"
#include "apps/lumenform/form_view/likeness/still.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

namespace {

constexpr double signSide = 20;  // of the square in which the signs are drawn

struct SignPen {
    QPainter& painter;
    QColor ink;
    QColor accent;
    QColor paper;

    void Sheet(const QRectF& where) const {
        painter.setBrush(paper);
        painter.drawRect(where);
        painter.setBrush(Qt::NoBrush);
    }
};

void DrawClock(const SignPen& pen) {
    pen.painter.setBrush(pen.paper);
    pen.painter.drawEllipse(QRectF(2.5, 2.5, 15, 15));
    pen.painter.setPen(QPen(pen.accent, 1.6));
    pen.painter.drawPolyline(QPolygonF({QPointF(10, 5), QPointF(10, 10), QPointF(14, 12)}));
}

void DrawDialog(const SignPen& pen) {
    pen.Sheet(QRectF(2.5, 3.5, 15, 13));
    pen.painter.fillRect(QRectF(3, 4, 14, 3), pen.accent);
    pen.painter.drawRect(QRectF(5, 9.5, 10, 2.5));
    pen.painter.fillRect(QRectF(11, 13.5, 4.5, 1.8), pen.ink);
}

void DrawPictures(const SignPen& pen) {
    for (const double step : {6.0, 3.0, 0.0}) {
        pen.Sheet(QRectF(2.5 + step, 8.5 - step, 9, 9));
    }
    pen.painter.setPen(QPen(pen.accent, 1.4));
    pen.painter.drawPolyline(
        QPolygonF({QPointF(3.5, 16), QPointF(6, 12.5), QPointF(8, 14.5), QPointF(10.5, 11)}));
}

void DrawPlug(const SignPen& pen) {
    pen.painter.drawLine(QPointF(10, 10), QPointF(10, 15));
    pen.painter.drawLine(QPointF(4, 15), QPointF(16, 15));
    pen.Sheet(QRectF(5.5, 3.5, 9, 7));
    pen.painter.fillRect(QRectF(7, 5, 6, 4), pen.accent);
    for (const double across : {4.0, 10.0, 16.0}) {
        pen.painter.fillRect(QRectF(across - 1.5, 14, 3, 3), pen.ink);
    }
}

void DrawGear(const SignPen& pen) {
    pen.painter.setBrush(pen.paper);
    pen.painter.drawEllipse(QRectF(4.5, 4.5, 11, 11));
    pen.painter.setPen(QPen(pen.accent, 1.6));
    pen.painter.drawEllipse(QRectF(8, 8, 4, 4));
    pen.painter.setPen(QPen(pen.ink, 1.6));
    for (int turn = 0; turn < 8; ++turn) {
        pen.painter.translate(10, 10);
        pen.painter.rotate(45);
        pen.painter.translate(-10, -10);
        pen.painter.drawLine(QPointF(10, 2), QPointF(10, 4.5));
    }
}

struct Sign {
    TextView className;
    void (*draw)(const SignPen& pen);
};

// Classes that are not here have the gear.
constexpr std::array signs = {
    Sign{u"CommonDialog", DrawDialog},
    Sign{u"ImageList", DrawPictures},
    Sign{u"Inet", DrawPlug},
    Sign{u"MSComm", DrawPlug},
    Sign{u"PictureClip", DrawPictures},
    Sign{u"Timer", DrawClock},
    Sign{u"Winsock", DrawPlug},
};

auto SignOf(TextView className) {
    const TextView bare = className.substr(className.rfind(u'.') + 1);
    const auto* const found = std::ranges::find_if(signs, [&](const Sign& sign) {
        return SameText(sign.className, bare, Compare::IgnoreCase);
    });
    return found == signs.end() ? DrawGear : found->draw;
}

}  // namespace

PlainWidget MakeIcon(const BlockReader& reader, const PlainSink& /*raise*/) {
    const auto paint = [draw = SignOf(reader.Block().ClassName())](const QWidget& widget,
                                                                   QPainter& painter) {
        QStyleOptionButton bevel;
        bevel.initFrom(&widget);
        bevel.state |= QStyle::State_Raised;
        widget.style()->drawControl(QStyle::CE_PushButtonBevel, &bevel, &painter, &widget);
        const double side = std::min(widget.width(), widget.height());
        painter.translate((widget.width() - side) / 2, (widget.height() - side) / 2);
        constexpr double margin = 2;
        painter.scale(side / (signSide + 2 * margin), side / (signSide + 2 * margin));
        painter.translate(margin, margin);
        painter.setRenderHint(QPainter::Antialiasing);
        const QPalette& palette = widget.palette();
        const SignPen pen{painter, palette.color(QPalette::ButtonText),
                          palette.color(QPalette::Link), palette.color(QPalette::Base)};
        painter.setPen(QPen(pen.ink, 1.2));
        draw(pen);
    };
    auto icon = std::make_unique<Painted>(QAccessible::Graphic, paint);
    icon->setToolTip(qt::ToQString(reader.Block().Name() + u'\n' + reader.Block().ClassName()));
    return Likeness(reader, std::move(icon));
}

}  // namespace lumenkit::lumenform
