#pragma once

#include <cstdint>
#include <functional>
#include <iterator>
#include <map>
#include <memory>
#include <utility>

#include "frame/host/option_buttons.h"
#include "frame/host/simple_constituents.h"
#include "frame/runtime_error.h"
#include "frame/text.h"

namespace lumenkit::shared {

/// An array of option buttons. The whole array is one group, hidden elements included. The Tab key
/// stops at one of the buttons: the selected one if it takes the focus, otherwise the first one
/// that does.
///
/// `Button` is the runtime's host::OptionButton. Besides Index and TakesFocus it has two functions
/// that change only what it shows: Mark and BecomeTabStop.
template <typename Button>
class OptionArray : public host::OptionButtons {
 public:
    ~OptionArray() override = default;
    OptionArray(const OptionArray&) = delete;
    OptionArray& operator=(const OptionArray&) = delete;

    Button& Item(std::int16_t index) override;
    void Load(std::int16_t index) override;

    // Used by the buttons.
    bool IsSelected(const Button& button) const { return selected_ == &button; }
    /// Selects `button`, clears the other one and notifies the click. Does nothing if `button` is
    /// already selected.
    void Choose(Button& button);
    /// Clears `button` if it is selected.
    void Release(Button& button);
    /// Returns the next (or previous) button that takes the focus, by index and around the ends.
    /// This may be `button` itself. Null if no button takes the focus.
    Button* Neighbour(const Button& button, bool forward) const;
    struct Rank {
        int position = 0;  ///< from 1; 0: the button is hidden
        int count = 0;
    };
    /// Returns the position of `button` among the visible buttons, in the order of the indices.
    Rank RankOf(const Button& button) const;
    /// Returns the button at which the Tab key stops. Null if no button takes the focus.
    Button* TabStop() const;
    /// Called after a button was shown, hidden, enabled or disabled.
    void PlaceTabStop();

 protected:
    using Buttons = std::map<std::int16_t, std::unique_ptr<Button>>;
    using Maker =
        std::function<std::unique_ptr<Button>(const host::OptionButtonDesign&, OptionArray&)>;

    /// `make` creates the elements; see host::Constituents::AddOptionButtons.
    OptionArray(Maker make, const host::OptionButtonDesign& design, host::Frame& frame,
                host::OptionButtonEvents& events);
    const Buttons& All() const { return buttons_; }

 private:
    void Add(std::int16_t index);

    Maker make_;
    host::OptionButtonEvents& events_;
    Text name_;
    Text fontName_;
    host::OptionButtonDesign design_;  // for new elements; its texts are the fields above
    Button* selected_ = nullptr;
    Button* tabStop_ = nullptr;
    Buttons buttons_;
};

template <typename Button>
OptionArray<Button>::OptionArray(Maker make, const host::OptionButtonDesign& design,
                                 host::Frame& frame, host::OptionButtonEvents& events)
    : make_(std::move(make)),
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

template <typename Button>
void OptionArray<Button>::Add(std::int16_t index) {
    design_.index = index;
    buttons_.emplace(index, make_(design_, *this));
}

template <typename Button>
Button& OptionArray<Button>::Item(std::int16_t index) {
    const auto found = buttons_.find(index);
    if (found == buttons_.end()) {
        Raise(ErrorNumber::NoSuchArrayElement);
    }
    return *found->second;
}

template <typename Button>
void OptionArray<Button>::Load(std::int16_t index) {
    if (index < 0) {
        Raise(ErrorNumber::NoSuchArrayElement);
    }
    if (buttons_.contains(index)) {
        Raise(ErrorNumber::AlreadyLoaded);
    }
    Add(index);
}

template <typename Button>
void OptionArray<Button>::Choose(Button& button) {
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

template <typename Button>
void OptionArray<Button>::Release(Button& button) {
    if (selected_ == &button) {
        selected_ = nullptr;
        button.Mark(false);
        PlaceTabStop();
    }
}

template <typename Button>
Button* OptionArray<Button>::Neighbour(const Button& button, bool forward) const {
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

template <typename Button>
typename OptionArray<Button>::Rank OptionArray<Button>::RankOf(const Button& button) const {
    Rank rank;
    for (const auto& [index, other] : buttons_) {
        rank.count += other->Visible() ? 1 : 0;
        if (other.get() == &button && other->Visible()) {
            rank.position = rank.count;
        }
    }
    return rank;
}

template <typename Button>
Button* OptionArray<Button>::TabStop() const {
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

template <typename Button>
void OptionArray<Button>::PlaceTabStop() {
    Button* const stop = TabStop();
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

}  // namespace lumenkit::shared
