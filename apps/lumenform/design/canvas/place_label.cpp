#include "apps/lumenform/design/canvas/place_label.h"

#include <QToolTip>
#include <cmath>

namespace lumenkit::lumenform {

PlaceLabel::PlaceLabel(QWidget* parent) : QLabel(parent) {
    constexpr int margin = 3;
    setMargin(margin);
    setFrameStyle(int{QFrame::Box} | int{QFrame::Plain});
    setTextFormat(Qt::PlainText);
    setAutoFillBackground(true);
    setForegroundRole(QPalette::ToolTipText);
    setBackgroundRole(QPalette::ToolTipBase);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void PlaceLabel::Tell(const host::Placement& place, QPoint pointer) {
    constexpr QPoint aside(14, 22);
    const auto whole = [](float twips) { return QString::number(std::lround(twips)); };
    setText(whole(place.left) + QStringLiteral(", ") + whole(place.top) + QStringLiteral("  ") +
            whole(place.width) + QStringLiteral(" \u00D7 ") + whole(place.height));
    setPalette(QToolTip::palette());
    adjustSize();
    const QPoint farthest(parentWidget()->width() - width(), parentWidget()->height() - height());
    const QPoint to = pointer + aside;
    move(std::min(to.x(), farthest.x()), std::min(to.y(), farthest.y()));
    show();
}

}  // namespace lumenkit::lumenform
