#include "runtime/qt/scroll_bar.h"

#include <QKeyEvent>
#include <QScrollBar>
#include <QSignalBlocker>
#include <algorithm>

#include "frame/host/accepted_values.h"

namespace lumenkit::qt {

namespace {

// QScrollBar steps back on the right arrow key and forward on the left one. This bar does the
// opposite.
class BarWidget final : public QScrollBar {
 public:
    using QScrollBar::QScrollBar;

 protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() == Qt::Key_Right) {
            triggerAction(SliderSingleStepAdd);
        } else if (event->key() == Qt::Key_Left) {
            triggerAction(SliderSingleStepSub);
        } else {
            QScrollBar::keyPressEvent(event);
        }
    }
};

}  // namespace

ScrollBar::ScrollBar(Elements& elements, const host::Design& design, host::Orientation orientation,
                     host::ScrollBarEvents& events)
    : BasicConstituent(elements, design), events_(events) {
    auto bar = std::make_unique<BarWidget>(
        orientation == host::Orientation::Horizontal ? Qt::Horizontal : Qt::Vertical,
        &ParentFor(elements, design));
    bar->setFocusPolicy(Qt::StrongFocus);
    bar->setRange(0, max_);
    bar->setSingleStep(1);
    bar->setPageStep(1);
    QObject::connect(bar.get(), &QScrollBar::valueChanged, bar.get(), [this](int value) {
        HandleEvent(Errors(), [this, value] { Scroll(static_cast<std::int16_t>(value)); });
    });
    Adopt(std::move(bar));
}

QScrollBar& ScrollBar::Bar() const {
    return static_cast<QScrollBar&>(*Widget());
}

void ScrollBar::Disconnect() {
    if (Widget() != nullptr) {
        QObject::disconnect(&Bar(), &QScrollBar::valueChanged, nullptr, nullptr);
    }
}

void ScrollBar::SetScrollValue(std::int16_t value) {
    Scroll(AcceptedNumber<std::int16_t>(value, 0, max_));
}

void ScrollBar::SetMax(std::int16_t max) {
    Require(max >= 0);
    max_ = max;
    {
        const QSignalBlocker quiet(Bar());
        Bar().setMaximum(max);
    }
    Scroll(std::min(value_, max_));
}

std::int16_t ScrollBar::LargeChange() const {
    return static_cast<std::int16_t>(Bar().pageStep());
}

void ScrollBar::SetLargeChange(std::int16_t step) {
    Require(step >= 1);
    Bar().setPageStep(step);
}

std::int16_t ScrollBar::SmallChange() const {
    return static_cast<std::int16_t>(Bar().singleStep());
}

void ScrollBar::SetSmallChange(std::int16_t step) {
    Require(step >= 1);
    Bar().setSingleStep(step);
}

void ScrollBar::Scroll(std::int16_t value) {
    if (value == value_) {
        return;
    }
    value_ = value;
    {
        const QSignalBlocker quiet(Bar());
        Bar().setValue(value);
    }
    Bar().update();
    const Notifying notifying;
    events_.Change();
}

}  // namespace lumenkit::qt
