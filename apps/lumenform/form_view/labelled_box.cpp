#include "apps/lumenform/form_view/labelled_box.h"

#include <QPainter>
#include <utility>

namespace lumenkit::lumenform {

LabelledBox::LabelledBox(QString name, QString className)
    : name_(std::move(name)), className_(std::move(className)) {
    setAccessibleName(name_ + u' ' + className_);
    setToolTip(name_ + u'\n' + className_);
}

void LabelledBox::paintEvent(QPaintEvent* /*event*/) {
    constexpr int margin = 4;
    QPainter painter(this);
    painter.setPen(
        QPen(palette().color(QPalette::Disabled, QPalette::WindowText), 1, Qt::DashLine));
    painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
    const QRect room = rect().adjusted(margin, margin, -margin, -margin);
    const auto fitted = [&](const QString& text) {
        return fontMetrics().elidedText(text, Qt::ElideRight, room.width());
    };
    painter.setPen(palette().color(QPalette::WindowText));
    const int line = fontMetrics().height();
    const bool both = room.height() >= 2 * line;
    painter.drawText(room, Qt::AlignCenter,
                     both ? fitted(name_) + u'\n' + fitted(className_) : fitted(name_));
}

}  // namespace lumenkit::lumenform
