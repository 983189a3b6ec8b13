#include "apps/lumenform/design/canvas/place_label.h"

#include <QToolTip>
#include <algorithm>
#include <cmath>

namespace lumenkit::lumenform {

namespace {

// Returns the place of a length beside the pointer: behind it, or in front of it where no room is
// left. Beyond the edge, it stays inside.
int PlaceIn(int begin, int room, int pointer, int aside, int length) {
    const int last = begin + room - length;
    const int behind = pointer + aside;
    const int place = behind <= last ? behind : pointer - aside / 2 - length;
    return std::max(std::min(place, last), begin);
}

}  // namespace

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
    const QRect seen = parentWidget()->visibleRegion().boundingRect();
    move(PlaceIn(seen.left(), seen.width(), pointer.x(), aside.x(), width()),
         PlaceIn(seen.top(), seen.height(), pointer.y(), aside.y(), height()));
    show();
}

}  // namespace lumenkit::lumenform
