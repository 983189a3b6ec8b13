#include "runtime/qt/option_buttons.h"

#include <iterator>

#include "frame/runtime_error.h"

namespace lumenkit::qt {

OptionButtons::OptionButtons(Constituents& owner, const host::OptionButtonDesign& design,
                             host::Frame& frame, host::OptionButtonEvents& events)
    : owner_(owner),
      events_(events),
      name_(design.name),
      fontName_(design.fontName),
      design_(design) {
    design_.name = name_;
    design_.fontName = fontName_;
    design_.parent = &frame;
    Make(0);
    design_.caption = {};
    design_.visible = false;
}

void OptionButtons::Make(std::int16_t index) {
    design_.index = index;
    auto button = std::make_unique<OptionButton>(owner_, design_, *this);
    button->SetTabStop(false);
    const auto place = buttons_.emplace(index, std::move(button)).first;
    if (place != buttons_.begin()) {
        QWidget::setTabOrder(std::prev(place)->second->Widget(), place->second->Widget());
    }
    UpdateTabStops(*place->second);
}

OptionButton& OptionButtons::Item(std::int16_t index) {
    const auto found = buttons_.find(index);
    if (found == buttons_.end()) {
        Raise(ErrorNumber::NoSuchArrayElement);
    }
    return *found->second;
}

void OptionButtons::Load(std::int16_t index) {
    if (index < 0) {
        Raise(ErrorNumber::NoSuchArrayElement);
    }
    if (buttons_.contains(index)) {
        Raise(ErrorNumber::AlreadyLoaded);
    }
    Make(index);
}

void OptionButtons::Choose(OptionButton& button) {
    if (button.IsSelected()) {
        return;
    }
    for (const auto& [index, other] : buttons_) {
        if (other->IsSelected()) {
            other->Mark(false);
        }
    }
    button.Mark(true);
    UpdateTabStops();
    const Notifying notifying;
    events_.Click(button.Index());
}

void OptionButtons::GoFrom(OptionButton& button, int direction) {
    auto next = buttons_.find(button.Index());
    do {
        if (direction > 0) {
            next = std::next(next) == buttons_.end() ? buttons_.begin() : std::next(next);
        } else {
            next = std::prev(next == buttons_.begin() ? buttons_.end() : next);
        }
    } while (!next->second->IsReachable() && next->second.get() != &button);
    OptionButton& target = *next->second;
    if (&target != &button) {
        target.Widget()->setFocus(Qt::OtherFocusReason);
        Choose(target);
    }
}

void OptionButtons::UpdateTabStops(const OptionButton& changed) {
    const bool cannotBeStop = tabStop_ != nullptr && tabStop_ != &changed &&
                              !changed.IsSelected() &&
                              (tabStop_->IsSelected() || tabStop_->Index() < changed.Index());
    if (!cannotBeStop) {
        UpdateTabStops();
    }
}

void OptionButtons::UpdateTabStops() {
    OptionButton* stop = nullptr;
    for (const auto& [index, button] : buttons_) {
        if (button->IsReachable() && (stop == nullptr || button->IsSelected())) {
            stop = button.get();
        }
    }
    if (stop == tabStop_) {
        return;
    }
    if (tabStop_ != nullptr) {
        tabStop_->SetTabStop(false);
    }
    tabStop_ = stop;
    if (stop != nullptr) {
        stop->SetTabStop(true);
    }
}

}  // namespace lumenkit::qt
