#include "apps/lumenform/form_view/labelled_box.h"

#include <QChildEvent>
#include <QEvent>
#include <QMargins>
#include <QPainter>
#include <utility>

namespace lumenkit::lumenform {

namespace {

int Area(const QRect& rect) {
    return rect.width() * rect.height();
}

}  // namespace

LabelledBox::LabelledBox(QString name, QString className)
    : name_(std::move(name)), className_(std::move(className)) {
    setAccessibleName(name_ + u' ' + className_);
    setToolTip(name_ + u'\n' + className_);
}

void LabelledBox::childEvent(QChildEvent* event) {
    QWidget::childEvent(event);
    if (event->added() && event->child()->isWidgetType()) {
        event->child()->installEventFilter(this);
    }
    update();
}

bool LabelledBox::eventFilter(QObject* /*watched*/, QEvent* event) {
    switch (event->type()) {
        case QEvent::Move:
        case QEvent::Resize:
        case QEvent::Show:
        case QEvent::Hide:
            update();  // the text may find another room
            break;
        default:
            break;
    }
    return false;
}

// Returns the largest strip above, below or beside the visible controls that has room for a line.
// Empty if there is none.
QRect LabelledBox::Room() const {
    constexpr int margin = 4;
    constexpr int letters = 3;
    const QRect all = rect().adjusted(margin, margin, -margin, -margin);
    QRect taken;
    for (const QWidget* child : findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (!child->isHidden()) {
            taken |= child->geometry();
        }
    }
    if (taken.isEmpty()) {
        return all;
    }
    const QSize least(letters * fontMetrics().averageCharWidth(), fontMetrics().height());
    QRect largest;
    for (const QMargins& cut : {QMargins(0, 0, 0, all.bottom() + 1 - taken.top()),
                                QMargins(0, taken.bottom() + 1 - all.top(), 0, 0),
                                QMargins(0, 0, all.right() + 1 - taken.left(), 0),
                                QMargins(taken.right() + 1 - all.left(), 0, 0, 0)}) {
        const QRect strip = all.marginsRemoved(cut) & all;
        const bool fits = strip.width() >= least.width() && strip.height() >= least.height();
        if (fits && Area(strip) > Area(largest)) {
            largest = strip;
        }
    }
    return largest;
}

void LabelledBox::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setPen(
        QPen(palette().color(QPalette::Disabled, QPalette::WindowText), 1, Qt::DashLine));
    painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
    const QRect room = Room();
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
