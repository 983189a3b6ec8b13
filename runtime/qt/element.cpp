#include "runtime/qt/element.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>
#include <utility>

#include "frame/host/accepted_values.h"
#include "runtime/qt/boundary.h"
#include "runtime/qt/pixels.h"

namespace lumenkit::qt {

namespace {

bool TakesTab(const QWidget& widget) {
    return widget.isVisible() && widget.isEnabled() && (widget.focusPolicy() & Qt::TabFocus) != 0;
}

bool Contains(const QWidget& outer, const QWidget* inner) {
    return inner == &outer || outer.isAncestorOf(inner);
}

// Gives back the focus that the drawing area keeps: to the widget that lost it, or else to one that
// can be used now.
void TakeFocusBack(const QWidget& area, QWidget& widget, const QPointer<QWidget>& loser) {
    if (area.window()->focusWidget() != &area) {
        return;
    }
    if (loser != nullptr && loser->isVisible() && loser->isEnabled()) {
        loser->setFocus(Qt::OtherFocusReason);
    } else if (TakesTab(widget)) {
        widget.setFocus(Qt::OtherFocusReason);
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
    BecomeUsable(visible, [visible](QWidget& widget) { widget.setVisible(visible); });
}

void Element::BecomeEnabled(bool enabled) {
    enabled_ = enabled;
    BecomeUsable(enabled, [enabled](QWidget& widget) { widget.setEnabled(enabled); });
}

// Moves the focus before the change, because Qt would move it to any widget of the form. A handler
// of the focus may destroy this object.
template <typename Change>
void Element::BecomeUsable(bool usable, Change&& change) {
    QWidget* const leaving = usable ? nullptr : FocusedInside();
    const QPointer<QWidget> next = leaving == nullptr ? nullptr : FocusAfter();
    const QPointer<QWidget> loser = lostFocus_;
    if (usable || leaving != nullptr) {
        lostFocus_ = next == &Area() ? leaving : nullptr;
    }
    Cause([&change, &next, &loser, usable, area = QPointer<QWidget>(&Area()), widget = widget_] {
        if (next != nullptr) {
            next->setFocus(Qt::OtherFocusReason);
        }
        if (widget != nullptr) {
            change(*widget);
        }
        if (usable && area != nullptr && widget != nullptr) {
            TakeFocusBack(*area, *widget, loser);
        }
    });
}

// Returns the widget in this element to which the window sends the keys; null if it is elsewhere.
QWidget* Element::FocusedInside() const {
    if (widget_ == nullptr || !UserMode()) {
        return nullptr;
    }
    QWidget* const focus = widget_->window()->focusWidget();
    return focus != nullptr && Contains(*widget_, focus) ? focus : nullptr;
}

// Returns the widget that gets the focus when this element loses it.
QWidget* Element::FocusAfter() const {
    if (const Element* const heir = Heir()) {
        return heir->Widget();
    }
    const std::list<Element*>& all = elements_.All();
    const auto own = std::list<Element*>::const_iterator(position_);
    const auto takes = [this](const Element* element) {
        const QWidget* const widget = element->Widget();
        return widget != nullptr && !Contains(*widget_, widget) && TakesTab(*widget);
    };
    auto found = std::find_if(std::next(own), all.end(), takes);
    if (found == all.end()) {
        found = std::find_if(all.begin(), own, takes);
    }
    return found == all.end() || found == own ? &Area() : (*found)->Widget();
}

void Element::RepaintNow() {
    Cause([&] { widget_->repaint(); });
}

}  // namespace lumenkit::qt
