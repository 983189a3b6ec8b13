#include "runtime/qt/hosted_page.h"

#include <QEvent>

#include "frame/runtime_error.h"
#include "runtime/qt/boundary.h"
#include "runtime/qt/hosted_control.h"
#include "runtime/qt/pixels.h"

namespace lumenkit::qt {

void HostedPage::Site::SetChanged(bool value) {
    if (value && edited) {
        edited();
    }
    if (changed == value) {
        return;
    }
    changed = value;
    if (listener) {
        listener(value);
    }
}

ObjectRef HostedPage::Selection::Item(std::int16_t index) {
    if (index < 0 || static_cast<std::size_t>(index) >= controls.size()) {
        Raise(ErrorNumber::SubscriptOutOfRange);
    }
    return controls[static_cast<std::size_t>(index)];
}

HostedPage::HostedPage(const Context& context, const ClassDescriptor& type, QWidget* parent)
    : QWidget(parent),
      context_(context),
      screen_(*this),
      constituents_(context, *this, true, EmbedControl),
      host_{.site = site_,
            .selectedControls = selection_,
            .screen = screen_,
            .interaction = context.interaction,
            .constituents = constituents_} {
    if (type.createPage == nullptr) {
        Raise(ErrorNumber::CannotCreateObject);
    }
    setMinimumSize(ToPixels({.width = type.pageWidth, .height = type.pageHeight}).size());
    resize(minimumSize());
    const Notifying notifying;
    page_ = type.createPage(host_);
    page_->PropertyPage_Initialize();
}

void HostedPage::Select(std::vector<ObjectRef> controls) {
    selection_.controls = std::move(controls);
    const Notifying notifying;
    page_->PropertyPage_SelectionChanged();
}

void HostedPage::Apply() {
    const Notifying notifying;
    page_->PropertyPage_ApplyChanges();
}

void HostedPage::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    constituents_.FollowArea((size() - minimumSize()).expandedTo({0, 0}));
}

void HostedPage::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        constituents_.ShowColors();
    }
}

}  // namespace lumenkit::qt
