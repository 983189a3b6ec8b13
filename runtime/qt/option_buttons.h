#pragma once

#include <cstdint>
#include <map>
#include <memory>

#include "frame/host/option_buttons.h"
#include "frame/host/simple_constituents.h"
#include "runtime/qt/option_button.h"

namespace lumenkit::qt {

/// The group is the array, hidden elements included. The Tab key stops once, at the selected
/// element or else the first that can be reached; arrow keys select from one to the next, by index
/// and around.
class OptionButtons final : public host::OptionButtons {
 public:
    OptionButtons(Constituents& owner, const host::OptionButtonDesign& design, host::Frame& frame,
                  host::OptionButtonEvents& events);

    OptionButton& Item(std::int16_t index) override;
    void Load(std::int16_t index) override;

    // For the elements.
    /// Selects `button` in place of every other one and notifies the click, if it is not selected.
    void Choose(OptionButton& button);
    /// To the next element that can be reached (direction 1) or the one before (-1).
    void GoFrom(OptionButton& button, int direction);
    void UpdateTabStops();
    /// The same after a change of nothing but this element.
    void UpdateTabStops(const OptionButton& changed);

 private:
    void Make(std::int16_t index);

    Constituents& owner_;
    host::OptionButtonEvents& events_;
    Text name_;
    Text fontName_;
    host::OptionButtonDesign design_;  // of the elements to load; its texts are the fields above
    OptionButton* tabStop_ = nullptr;
    std::map<std::int16_t, std::unique_ptr<OptionButton>> buttons_;
};

}  // namespace lumenkit::qt
