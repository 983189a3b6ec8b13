#include "runtime/qt/element.h"

#include <iterator>
#include <stdexcept>
#include <utility>

#include "frame/host/accepted_values.h"
#include "runtime/qt/boundary.h"
#include "runtime/qt/pixels.h"

namespace lumenkit::qt {

namespace {

// Takes the focus from a hidden or disabled widget, even if no other widget can take it.
void LeaveFocus(QWidget& widget, bool usable) {
    if (!usable && widget.hasFocus()) {
        widget.clearFocus();
    }
}

}  // namespace

Element::Element(Elements& elements, const host::Design& design)
    : elements_(elements),
      name_(design.name),
      index_(design.index),
      placement_(design.placement),
      movingEdges_(design.movingEdges),
      visible_(design.visible),
      position_(elements.Register(*this)) {}

Element::~Element() {
    elements_.Unregister(position_);
    if (widget_ != nullptr) {  // the derived constructor threw
        widget_->hide();
        DeleteSafely(widget_);
    }
}

QWidget& Element::ParentFor(const Elements& elements, const host::Design& design) {
    if (design.parent == nullptr) {
        return elements.Area();
    }
    const auto* parent = dynamic_cast<const Element*>(design.parent);
    if (parent == nullptr) {
        throw std::logic_error("the parent belongs to another runtime");
    }
    return parent->Inside();
}

void Element::AdoptHidden(std::unique_ptr<QWidget> widget) {
    widget_ = widget.release();  // its parent widget owns it from here on
    if (!UserMode()) {
        widget_->setFocusPolicy(Qt::NoFocus);
    }
    widget_->lower();
    if (position_ != elements_.All().begin()) {
        (*std::prev(position_))->NameNext(*widget_);
    }
}

void Element::Adopt(std::unique_ptr<QWidget> widget) {
    AdoptHidden(std::move(widget));
    widget_->setGeometry(Geometry());
    widget_->setVisible(visible_);
}

void Element::Release() {
    Disconnect();
    if (widget_ != nullptr) {
        widget_->hide();
        DeleteSafely(widget_);
    }
}

void Element::MoveTo(const host::Placement& placement) {
    RequireSize(placement.width, placement.height);
    placement_ = placement;
    Cause([widget = widget_.data(), place = Geometry()] { widget->setGeometry(place); });
}

QRect Element::Geometry() const {
    const QSize growth = elements_.Growth();
    const auto moved = [](bool moves, int by) { return moves ? by : 0; };
    return ToPixels(placement_)
        .adjusted(
            moved(movingEdges_.left, growth.width()), moved(movingEdges_.top, growth.height()),
            moved(movingEdges_.right, growth.width()), moved(movingEdges_.bottom, growth.height()));
}

void Element::FollowArea() {
    if (widget_ != nullptr && widget_->geometry() != Geometry()) {
        widget_->setGeometry(Geometry());
    }
}

void Element::BecomeVisible(bool visible) {
    visible_ = visible;
    // A handler may destroy this object.
    Cause([widget = widget_.data(), visible] {
        widget->setVisible(visible);
        LeaveFocus(*widget, visible);
    });
}

void Element::BecomeEnabled(bool enabled) {
    enabled_ = enabled;
    Cause([widget = widget_.data(), enabled] {
        widget->setEnabled(enabled);
        LeaveFocus(*widget, enabled);
    });
}

void Element::RepaintNow() {
    Cause([&] { widget_->repaint(); });
}

}  // namespace lumenkit::qt
