#pragma once

#include <cstdint>
#include <map>
#include <memory>

#include "frame/host/option_buttons.h"
#include "runtime/memory/option_button.h"

namespace lumenkit::memory {

class OptionButtons final : public host::OptionButtons {
 public:
    OptionButtons(Constituents& owner, const host::OptionButtonDesign& design, host::Frame& frame,
                  host::OptionButtonEvents& events);

    OptionButton& Item(std::int16_t index) override;
    void Load(std::int16_t index) override;

    /// If `button` is not selected, selects it, deselects all others and notifies Click.
    void Choose(OptionButton& button);

 private:
    Constituents& owner_;
    host::OptionButtonEvents& events_;
    Text name_;
    Text fontName_;
    host::OptionButtonDesign design_;  // of elements to load; its texts refer to the fields above
    std::map<std::int16_t, std::unique_ptr<OptionButton>> buttons_;
};

}  // namespace lumenkit::memory
