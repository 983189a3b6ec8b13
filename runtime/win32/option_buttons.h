#pragma once

#include <cstdint>
#include <map>
#include <memory>

#include "frame/host/option_buttons.h"
#include "runtime/win32/option_button.h"

namespace lumenkit::win32 {

/// One of the buttons is where Tab leads: the selected one, or the first that takes the focus.
class OptionButtons final : public host::OptionButtons {
 public:
    OptionButtons(const Owner& owner, const host::OptionButtonDesign& design, host::Frame& frame,
                  host::OptionButtonEvents& events);

    host::OptionButton& Item(std::int16_t index) override;
    void Load(std::int16_t index) override;

    // For the elements.
    const OptionButton* Selected() const { return selected_; }
    /// Selects `button` in place of any other and notifies the click, if it is not selected.
    void Choose(OptionButton& button);
    /// Takes the mark from it, if it has it.
    void Release(OptionButton& button);
    /// Gives the focus to the next button (or the one before) that takes it, round the ends, and
    /// chooses it.
    void Step(OptionButton& button, bool forward);
    void PlaceTabStop();

 private:
    using Elements = std::map<std::int16_t, std::unique_ptr<OptionButton>>;

    void Add(std::int16_t index);
    OptionButton* Neighbour(const OptionButton& button, bool forward) const;
    OptionButton* Stop() const;

    Owner owner_;
    host::OptionButtonEvents& events_;
    Text name_;
    Text fontName_;
    host::OptionButtonDesign design_;  // of the elements to load; its texts are the fields above
    Elements buttons_;
    OptionButton* selected_ = nullptr;
    OptionButton* tabStop_ = nullptr;
};

}  // namespace lumenkit::win32
