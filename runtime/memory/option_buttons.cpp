#include "runtime/memory/option_buttons.h"

#include "frame/runtime_error.h"

namespace lumenkit::memory {

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
    design_.index = 0;
    buttons_.emplace(0, std::make_unique<OptionButton>(owner_, design_, *this));
    design_.caption = {};
    design_.visible = false;
}

OptionButton& OptionButtons::Item(std::int16_t index) {
    owner_.GetForm().Faults().Call(u"OptionButtons", u"Item");
    const auto found = buttons_.find(index);
    if (found == buttons_.end()) {
        Raise(ErrorNumber::NoSuchArrayElement);
    }
    return *found->second;
}

void OptionButtons::Load(std::int16_t index) {
    owner_.GetForm().Faults().Call(u"OptionButtons", u"Load");
    if (index < 0) {
        Raise(ErrorNumber::NoSuchArrayElement);
    }
    if (buttons_.contains(index)) {
        Raise(ErrorNumber::AlreadyLoaded);
    }
    design_.index = index;
    buttons_.emplace(index, std::make_unique<OptionButton>(owner_, design_, *this));
}

void OptionButtons::Choose(OptionButton& button) {
    if (button.IsMarked()) {
        return;
    }
    for (const auto& [index, other] : buttons_) {
        other->Mark(other.get() == &button);
    }
    events_.Click(button.Index());
}

}  // namespace lumenkit::memory
