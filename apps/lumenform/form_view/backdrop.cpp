#include "apps/lumenform/form_view/backdrop.h"

#include <QEvent>
#include <QPaintEvent>
#include <QPainter>
#include <memory>

namespace lumenkit::lumenform {

namespace {

// Paints the background of its parent before the parent paints itself.
class Backdrop final : public QObject {
 public:
    explicit Backdrop(QWidget& widget) : QObject(&widget), widget_(widget) {
        widget.installEventFilter(this);
    }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            QPainter painter(&widget_);
            painter.fillRect(static_cast<const QPaintEvent&>(*event).rect(),
                             widget_.palette().brush(widget_.backgroundRole()));
        }
        return false;
    }

 private:
    QWidget& widget_;
};

}  // namespace

void PaintOwnBackground(QWidget& widget) {
    if (widget.autoFillBackground()) {
        widget.setAutoFillBackground(false);
        static_cast<void>(std::make_unique<Backdrop>(widget).release());  // a child of the widget
    }
}

}  // namespace lumenkit::lumenform
