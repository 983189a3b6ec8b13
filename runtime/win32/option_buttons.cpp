#include "runtime/win32/option_buttons.h"

#include <iterator>
#include <utility>

#include "frame/runtime_error.h"

namespace lumenkit::win32 {

OptionButtons::OptionButtons(const Owner& owner, const host::OptionButtonDesign& design,
                             host::Frame& frame, host::OptionButtonEvents& events)
    : owner_(owner),
      events_(events),
      name_(design.name),
      fontName_(design.fontName),
      design_(design) {
    design_.name = name_;
    design_.fontName = fontName_;
    design_.parent = &frame;
    Add(0);
    design_.caption = {};
    design_.visible = false;
    PlaceTabStop();
}

void OptionButtons::Add(std::int16_t index) {
    design_.index = index;
    buttons_.emplace(index, std::make_unique<OptionButton>(owner_, design_, *this));
}

host::OptionButton& OptionButtons::Item(std::int16_t index) {
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
    Add(index);
}

void OptionButtons::Choose(OptionButton& button) {
    if (selected_ == &button) {
        return;
    }
    if (selected_ != nullptr) {
        selected_->Mark(false);
    }
    selected_ = &button;
    button.Mark(true);
    PlaceTabStop();
    events_.Click(button.Index());
}

void OptionButtons::Release(OptionButton& button) {
    if (selected_ == &button) {
        selected_ = nullptr;
        button.Mark(false);
        PlaceTabStop();
    }
}

OptionButton* OptionButtons::Neighbour(const OptionButton& button, bool forward) const {
    const auto own = buttons_.find(button.Index());
    auto place = own;
    do {
        if (forward) {
            ++place;
            place = place == buttons_.end() ? buttons_.begin() : place;
        } else {
            place = std::prev(place == buttons_.begin() ? buttons_.end() : place);
        }
        if (place->second->TakesFocus()) {
            return place->second.get();
        }
    } while (place != own);
    return nullptr;
}

void OptionButtons::Step(OptionButton& button, bool forward) {
    OptionButton* const next = Neighbour(button, forward);
    if (next == nullptr) {
        return;
    }
    const Window::Watch watch(*next);
    SetFocus(next->Handle());
    if (!watch.IsGone()) {
        Choose(*next);
    }
}

OptionButton* OptionButtons::Stop() const {
    if (selected_ != nullptr && selected_->TakesFocus()) {
        return selected_;
    }
    for (const auto& [index, button] : buttons_) {
        if (button->TakesFocus()) {
            return button.get();
        }
    }
    return nullptr;
}

void OptionButtons::PlaceTabStop() {
    OptionButton* const stop = Stop();
    if (stop == tabStop_) {
        return;
    }
    if (tabStop_ != nullptr) {
        tabStop_->BecomeTabStop(false);
    }
    tabStop_ = stop;
    if (stop != nullptr) {
        stop->BecomeTabStop(true);
    }
}

}  // namespace lumenkit::win32
