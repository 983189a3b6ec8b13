#include <QEvent>

#include <lumenkit/widgets/control_widget.h>

#include "runtime/qt/qt_text.h"
#include "widgets/core/control_core.h"

namespace lumenkit::widgets {

ControlWidget::ControlWidget(std::unique_ptr<ControlCore> core, QWidget* parent)
    : QWidget(parent), core_(std::move(core)) {
    core_->SetOwner(*this);
}

ControlWidget::~ControlWidget() = default;

QString ControlWidget::tag() const {
    return qt::ToQString(core_->Tag());
}

void ControlWidget::setTag(const QString& tag) {
    if (tag != this->tag()) {
        core_->SetTag(qt::ToText(tag));
        Q_EMIT tagChanged(tag);
    }
}

bool ControlWidget::isDesignMode() const {
    return core_->IsDesignMode();
}

void ControlWidget::setDesignMode(bool on) {
    core_->SetDesignMode(on);
}

// ---- Size

bool ControlWidget::hasHeightForWidth() const {
    return core_->Wraps();
}

int ControlWidget::heightForWidth(int width) const {
    return core_->Wraps() ? core_->IdealSize(width).height() : -1;
}

QSize ControlWidget::sizeHint() const {
    return core_->IdealSize();
}

QSize ControlWidget::minimumSizeHint() const {
    return core_->Wraps() ? QSize() : core_->IdealSize();
}

// Qt delivers the event when the widget is shown or drawn into a picture, and not before.
void ControlWidget::resizeEvent(QResizeEvent* /*event*/) {
    core_->Start();
    core_->Resized();
}

// ---- Changes of the widget

void ControlWidget::showEvent(QShowEvent* /*event*/) {
    core_->Start();
}

void ControlWidget::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        core_->FontChanged();
    } else if (event->type() == QEvent::EnabledChange) {
        core_->EnabledChanged();
    }
}

}  // namespace lumenkit::widgets
