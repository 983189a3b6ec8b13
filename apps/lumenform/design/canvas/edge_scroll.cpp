#include "apps/lumenform/design/canvas/edge_scroll.h"

#include <QScrollBar>
#include <algorithm>

namespace lumenkit::lumenform {

EdgeScroll::EdgeScroll(QAbstractScrollArea& area) : area_(area) {
    constexpr int interval = 30;  // milliseconds
    timer_.setInterval(interval);
    connect(&timer_, &QTimer::timeout, this, &EdgeScroll::Scroll);
}

void EdgeScroll::Follow(QPoint pointer) {
    pointer_ = pointer;
    if (Step().isNull()) {
        timer_.stop();
    } else if (!timer_.isActive()) {
        timer_.start();
    }
}

int EdgeScroll::StepAt(int place, int length) {
    constexpr int reach = 16;  // pixels inside the edge
    constexpr int fastest = 48;
    const auto step = [&](int depth) { return std::min(1 + depth / 2, fastest); };
    if (place < reach) {
        return -step(reach - place);
    }
    return place >= length - reach ? step(place - (length - reach)) : 0;
}

QPoint EdgeScroll::Step() const {
    const QSize size = area_.viewport()->size();
    return {StepAt(pointer_.x(), size.width()), StepAt(pointer_.y(), size.height())};
}

void EdgeScroll::Scroll() const {
    const QPoint step = Step();
    QScrollBar& across = *area_.horizontalScrollBar();
    QScrollBar& down = *area_.verticalScrollBar();
    across.setValue(across.value() + step.x());
    down.setValue(down.value() + step.y());
}

}  // namespace lumenkit::lumenform
