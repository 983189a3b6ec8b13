#include "runtime/qt/picture_box.h"

#include <QCoreApplication>
#include <QFrame>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>
#include <cstdlib>
#include <memory>

#include "runtime/qt/accessible.h"
#include "runtime/qt/pixels.h"

namespace lumenkit::qt {

namespace {

// The area inside the border, which contains the constituents.
class InsideWidget final : public QWidget, public SelfDescribing {
 public:
    using QWidget::QWidget;

    QAccessibleInterface* NewDescription() override {
        return std::make_unique<GroupDescription>(*this).release();
    }
};

bool IsSideways(const QWheelEvent& event) {
    const QPoint turned = event.angleDelta();
    return event.modifiers().testFlag(Qt::ShiftModifier) ||
           std::abs(turned.x()) > std::abs(turned.y());
}

// The same turn without Shift, with which a scroll bar scrolls by pages.
QWheelEvent WithoutShift(const QWheelEvent& event) {
    return {event.position(),   event.globalPosition(),
            event.pixelDelta(), event.angleDelta(),
            event.buttons(),    event.modifiers() & ~Qt::KeyboardModifiers(Qt::ShiftModifier),
            event.phase(),      event.inverted()};
}

class BoxWidget final : public QFrame {
 public:
    explicit BoxWidget(QWidget* parent) : QFrame(parent), inside_(new InsideWidget(this)) {
        setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    }

    QWidget& Inside() const { return *inside_; }

 protected:
    void resizeEvent(QResizeEvent* event) override {
        QFrame::resizeEvent(event);
        inside_->setGeometry(contentsRect());
    }

    // Widgets in the box that do not use the wheel themselves pass it on to the box.
    void wheelEvent(QWheelEvent* event) override {
        event->ignore();
        if (QScrollBar* const bar = BarFor(IsSideways(*event) ? Qt::Horizontal : Qt::Vertical)) {
            QWheelEvent turned = WithoutShift(*event);
            QCoreApplication::sendEvent(bar, &turned);
            event->accept();  // also at the end of the bar, so that nothing else scrolls then
        }
    }

 private:
    QScrollBar* BarFor(Qt::Orientation orientation) const {
        const auto bars = inside_->findChildren<QScrollBar*>(QString(), Qt::FindDirectChildrenOnly);
        const auto found = std::ranges::find_if(bars, [&](const QScrollBar* bar) {
            return bar->orientation() == orientation && bar->isVisible() && bar->isEnabled();
        });
        return found == bars.end() ? nullptr : *found;
    }

    QWidget* inside_;
};

}  // namespace

PictureBox::PictureBox(Elements& elements, const host::Design& design)
    : BasicConstituent(elements, design) {
    Adopt(std::make_unique<BoxWidget>(&ParentFor(elements, design)));
}

QWidget& PictureBox::Inside() const {
    return static_cast<const BoxWidget&>(*Widget()).Inside();
}

int PictureBox::Border() const {
    return static_cast<const QFrame&>(*Widget()).frameWidth();
}

float PictureBox::ScaleWidth() const {
    const double border = 2.0 * Border() * TwipsPerPixel::OfScreens().x;
    return static_cast<float>(std::max(Where().width - border, 0.0));
}

float PictureBox::ScaleHeight() const {
    const double border = 2.0 * Border() * TwipsPerPixel::OfScreens().y;
    return static_cast<float>(std::max(Where().height - border, 0.0));
}

}  // namespace lumenkit::qt
