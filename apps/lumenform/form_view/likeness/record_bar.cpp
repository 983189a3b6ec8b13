#include <QStyle>
#include <QStyleOptionButton>
#include <algorithm>
#include <array>
#include <utility>

#include "apps/lumenform/form_view/likeness/bars.h"
#include "apps/lumenform/form_view/likeness/painted.h"
#include "apps/lumenform/form_view/likeness/still.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

namespace {

struct RecordButton {
    bool goesBack;
    bool goesToEnd;  // beside a bar
};

// From the left; the caption is in the middle.
constexpr std::array recordButtons = {RecordButton{true, true}, RecordButton{true, false},
                                      RecordButton{false, false}, RecordButton{false, true}};

// A triangle, and for the first and the last record a line at its tip.
void PaintSign(const RecordButton& button, const QRect& where, QPainter& painter,
               const QColor& ink) {
    const double side = std::max(std::min(where.width(), where.height()) / 3.0, 3.0);
    const QPointF middle = QRectF(where).center();
    const double back = button.goesBack ? 1 : -1;
    const QPointF tip(middle.x() - back * side / 2, middle.y());
    const double base = middle.x() + back * side / 2;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ink);
    painter.drawPolygon(QPolygonF(
        {tip, QPointF(base, middle.y() - side / 1.6), QPointF(base, middle.y() + side / 1.6)}));
    if (button.goesToEnd) {
        painter.drawRect(
            QRectF(tip.x() - back * 2 - 0.75, middle.y() - side / 1.6, 1.5, side * 1.25));
    }
    painter.setRenderHint(QPainter::Antialiasing, false);
}

void PaintRecordBar(const QString& caption, const QWidget& widget, QPainter& painter) {
    constexpr int buttons = static_cast<int>(recordButtons.size());
    const QPalette& palette = widget.palette();
    const int side = std::min(widget.height(), widget.width() / buttons);
    painter.fillRect(widget.rect(), palette.color(QPalette::Base));
    for (int index = 0; index < buttons; ++index) {
        const int left =
            index < buttons / 2 ? index * side : widget.width() - (buttons - index) * side;
        QStyleOptionButton bevel;
        bevel.initFrom(&widget);
        bevel.rect = QRect(left, 0, side, widget.height());
        bevel.state |= QStyle::State_Raised;
        widget.style()->drawControl(QStyle::CE_PushButtonBevel, &bevel, &painter, &widget);
        PaintSign(recordButtons[static_cast<std::size_t>(index)], bevel.rect, painter,
                  palette.color(QPalette::ButtonText));
    }
    constexpr int inset = 4;
    const QRect room = widget.rect().adjusted(2 * side + inset, 0, -2 * side - inset, 0);
    painter.setPen(palette.color(QPalette::Text));
    painter.drawText(room, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
                     widget.fontMetrics().elidedText(caption, Qt::ElideRight, room.width()));
}

}  // namespace

PlainWidget MakeRecordBar(const BlockReader& reader, const PlainSink& /*raise*/) {
    const auto paint = [caption = qt::ToQString(reader.String(u"Caption"))](const QWidget& widget,
                                                                            QPainter& painter) {
        PaintRecordBar(caption, widget, painter);
    };
    return Likeness(reader, std::make_unique<Painted>(QAccessible::ToolBar, paint));
}

}  // namespace lumenkit::lumenform
