#include "runtime/qt/surface_widget.h"

#include <QAccessible>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <memory>
#include <utility>

#include "runtime/qt/input.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::qt {

namespace {

constexpr Qt::MouseButtons clickingButtons = Qt::LeftButton | Qt::RightButton;

// The area of a control that draws a text is that text. Any other area contains the constituents.
class AreaDescription final : public GroupDescription {
 public:
    explicit AreaDescription(SurfaceWidget& area) : GroupDescription(area), area_(area) {}

    QString text(QAccessible::Text kind) const override {
        const QString spoken = kind == QAccessible::Name ? area_.SpokenText() : QString();
        return spoken.isEmpty() ? GroupDescription::text(kind) : spoken;
    }
    QAccessible::Role role() const override {
        return area_.SpokenText().isEmpty() ? QAccessible::Client : QAccessible::StaticText;
    }

 private:
    SurfaceWidget& area_;
};

}  // namespace

SurfaceWidget::SurfaceWidget(QWidget& outside, ShownSurface& surface, ErrorSink errors)
    : QWidget(&outside), surface_(&surface), errors_(std::move(errors)) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
}

void SurfaceWidget::Detach() {
    surface_ = nullptr;
    hide();
}

QString SurfaceWidget::SpokenText() const {
    QString text;
    HandleEvent(errors_, [&] {
        if (const Control* control = GetControl()) {
            text = ToQString(control->SpokenText())
                       .replace(QLatin1String("\r\n"), QLatin1String("\n"));
        }
    });
    return text.isEmpty() && surface_ != nullptr ? surface_->PaintedText() : text;
}

void SurfaceWidget::SpokenTextChanged() {
    if (QAccessible::isActive()) {
        QAccessibleEvent changed(this, QAccessible::NameChanged);
        QAccessible::updateAccessibility(&changed);
    }
}

QAccessibleInterface* SurfaceWidget::NewDescription() {
    return std::make_unique<AreaDescription>(*this).release();
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
