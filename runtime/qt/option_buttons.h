#pragma once

#include <cstdint>
#include <map>
#include <memory>

#include "frame/host/option_buttons.h"
#include "frame/host/simple_constituents.h"
#include "runtime/qt/option_button.h"

namespace lumenkit::qt {

/// An array of option buttons. The whole array is one group, hidden elements included. The Tab key
/// stops once: at the selected element, or else at the first reachable one. The arrow keys select
/// the next or previous reachable element by index and wrap around at the ends.
class OptionButtons final : public host::OptionButtons {
 public:
    OptionButtons(Constituents& owner, const host::OptionButtonDesign& design, host::Frame& frame,
                  host::OptionButtonEvents& events);

    OptionButton& Item(std::int16_t index) override;
    void Load(std::int16_t index) override;

    // Used by the elements.
    /// Selects `button`, clears every other element and notifies the click. Does nothing if
    /// `button` is already selected.
    void Choose(OptionButton& button);
    /// Moves to the next reachable element (direction 1) or to the previous one (-1) and selects
    /// it.
    void GoFrom(OptionButton& button, int direction);
    void UpdateTabStops();
    /// Does the same after a change that affects only this element.
    void UpdateTabStops(const OptionButton& changed);

 private:
    void Make(std::int16_t index);

    Constituents& owner_;
    host::OptionButtonEvents& events_;
    Text name_;
    Text fontName_;
    host::OptionButtonDesign design_;  // for new elements; its texts are the members above
    OptionButton* tabStop_ = nullptr;
    std::map<std::int16_t, std::unique_ptr<OptionButton>> buttons_;
};

}  // namespace lumenkit::qt
