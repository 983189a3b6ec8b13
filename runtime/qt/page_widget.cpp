#include "runtime/qt/page_widget.h"

#include <QEvent>

#include "frame/runtime_error.h"
#include "runtime/qt/boundary.h"
#include "runtime/qt/pixels.h"

namespace lumenkit::qt {

void PageWidget::Site::SetChanged(bool value) {
    if (changed == value) {
        return;
    }
    changed = value;
    if (listener) {
        listener(value);
    }
}

ObjectRef PageWidget::Selection::Item(std::int16_t index) {
    if (index < 0 || static_cast<std::size_t>(index) >= controls.size()) {
        Raise(ErrorNumber::SubscriptOutOfRange);
    }
    return controls[static_cast<std::size_t>(index)];
}

PageWidget::PageWidget(const Context& context, const ClassDescriptor& type, QWidget* parent)
    : QWidget(parent),
      screen_(*this),
      constituents_(context, *this, true),
      host_{.site = site_,
            .selectedControls = selection_,
            .screen = screen_,
            .interaction = context.interaction,
            .constituents = constituents_} {
    if (type.createPage == nullptr) {
        Raise(ErrorNumber::CannotCreateObject);
    }
    setFixedSize(ToPixels({.width = type.pageWidth, .height = type.pageHeight}).size());
    const Notifying notifying;
    page_ = type.createPage(host_);
    page_->PropertyPage_Initialize();
}

void PageWidget::Select(std::vector<ObjectRef> controls) {
    selection_.controls = std::move(controls);
    const Notifying notifying;
    page_->PropertyPage_SelectionChanged();
}

void PageWidget::Apply() {
    const Notifying notifying;
    page_->PropertyPage_ApplyChanges();
}

void PageWidget::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        constituents_.ApplyColors();
    }
}

}  // namespace lumenkit::qt
