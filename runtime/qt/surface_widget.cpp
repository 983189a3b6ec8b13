#include "runtime/qt/surface_widget.h"

#include <QAccessibleWidget>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <memory>
#include <utility>

#include "runtime/qt/input.h"

namespace lumenkit::qt {

namespace {

constexpr Qt::MouseButtons clickingButtons = Qt::LeftButton | Qt::RightButton;

// Presents the surface to screen readers as a label with the painted text as its name.
class SurfaceAccessible final : public QAccessibleWidget {
 public:
    explicit SurfaceAccessible(SurfaceWidget& area)
        : QAccessibleWidget(&area, QAccessible::StaticText), area_(area) {}

    QString text(QAccessible::Text kind) const override {
        const QString painted = area_.PaintedText();
        return kind == QAccessible::Name && !painted.isEmpty() ? painted
                                                               : QAccessibleWidget::text(kind);
    }
    QAccessible::Role role() const override {
        return area_.PaintedText().isEmpty() ? QAccessible::Client : QAccessible::StaticText;
    }

 private:
    SurfaceWidget& area_;
};

// Qt calls this function, so no exception may leave it. If it returns null, Qt describes the object
// itself.
QAccessibleInterface* MakeAccessible(const QString& /*key*/, QObject* object) {
    auto* const area = dynamic_cast<SurfaceWidget*>(object);
    std::unique_ptr<SurfaceAccessible> made;
    if (area != nullptr) {
        HandleEvent(area->Errors(), [&] { made = std::make_unique<SurfaceAccessible>(*area); });
    }
    return made.release();
}

void OfferAccessibility() {
    static const bool offered = [] {
        QAccessible::installFactory(&MakeAccessible);
        return true;
    }();
    static_cast<void>(offered);
}

}  // namespace

SurfaceWidget::SurfaceWidget(QWidget& outside, ShownSurface& surface, ErrorSink errors)
    : QWidget(&outside), surface_(&surface), errors_(std::move(errors)) {
    OfferAccessibility();
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
}

void SurfaceWidget::Detach() {
    surface_ = nullptr;
    hide();
}

QString SurfaceWidget::PaintedText() const {
    return surface_ == nullptr ? QString() : surface_->PaintedText();
}

Control* SurfaceWidget::GetControl() const {
    return surface_ == nullptr ? nullptr : surface_->GetControl();
}

bool SurfaceWidget::event(QEvent* event) {
    const QEvent::Type type = event->type();
    const bool handled = QWidget::event(event);
    if (type != QEvent::DeferredDelete && surface_ != nullptr) {  // DeferredDelete destroys this
        switch (type) {
            case QEvent::PaletteChange:
                surface_->PaletteChanged();
                break;
            case QEvent::Show:
            case QEvent::ScreenChangeInternal:
                surface_->UpdateScale();
                break;
            default:
                break;
        }
    }
    return handled;
}

void SurfaceWidget::paintEvent(QPaintEvent* event) {
    HandleEvent(errors_, [&] {
        if (surface_ != nullptr && !surface_->IsPainting()) {
            QPainter painter(this);
            surface_->DrawOn(painter, event->rect());
        }
    });
}

void SurfaceWidget::Tell(MouseHandler handler, host::MouseArguments mouse) {
    HandleEvent(errors_, [&] {
        if (Control* control = GetControl()) {
            (control->*handler)(mouse);
        }
    });
}

void SurfaceWidget::Tell(void (Control::*handler)()) {
    HandleEvent(errors_, [&] {
        if (Control* control = GetControl()) {
            (control->*handler)();
        }
    });
}

void SurfaceWidget::mousePressEvent(QMouseEvent* event) {
    pressed_ |= event->button();
    Tell(&Control::UserControl_MouseDown, MouseArgumentsOf(*event));
}

void SurfaceWidget::mouseMoveEvent(QMouseEvent* event) {
    Tell(&Control::UserControl_MouseMove, MouseArgumentsOf(*event));
}

void SurfaceWidget::mouseReleaseEvent(QMouseEvent* event) {
    const bool clicks = pressed_.testFlag(event->button()) &&
                        clickingButtons.testFlag(event->button()) &&
                        rect().contains(event->position().toPoint());
    pressed_.setFlag(event->button(), false);
    Tell(&Control::UserControl_MouseUp, MouseArgumentsOf(*event));
    if (clicks) {
        Tell(&Control::UserControl_Click);
    }
}

void SurfaceWidget::mouseDoubleClickEvent(QMouseEvent* event) {
    if (clickingButtons.testFlag(event->button())) {
        Tell(&Control::UserControl_DblClick);
    } else {
        mousePressEvent(event);
    }
}

}  // namespace lumenkit::qt
