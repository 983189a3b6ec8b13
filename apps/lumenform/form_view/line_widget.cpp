#include "apps/lumenform/form_view/line_widget.h"

#include <QPainter>

namespace lumenkit::lumenform {

LineWidget::LineWidget(const Stroke& stroke, bool rises) : stroke_(stroke), rises_(rises) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
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

}  // namespace lumenkit::lumenform
