#pragma once

#include <cstdint>
#include <map>
#include <memory>

#include "frame/host/option_buttons.h"
#include "runtime/win32/option_button.h"

namespace lumenkit::win32 {

/// Tab stops at one of the buttons: the selected one, or else the first that takes the focus.
class OptionButtons final : public host::OptionButtons {
 public:
    OptionButtons(const Owner& owner, const host::OptionButtonDesign& design, host::Frame& frame,
                  host::OptionButtonEvents& events);

    host::OptionButton& Item(std::int16_t index) override;
    void Load(std::int16_t index) override;

    // Used by the elements.
    const OptionButton* Selected() const { return selected_; }
    /// Selects `button`, clears the other one and notifies the click. Does nothing if `button` is
    /// already selected.
    void Choose(OptionButton& button);
    /// Clears the mark of `button` if it is selected.
    void Release(OptionButton& button);
    /// Moves the focus to the next (or previous) button that takes it, wrapping around at the ends,
    /// and chooses that button.
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
    host::OptionButtonDesign design_;  // for new elements; its texts are the members above
    Elements buttons_;
    OptionButton* selected_ = nullptr;
    OptionButton* tabStop_ = nullptr;
};

}  // namespace lumenkit::win32
