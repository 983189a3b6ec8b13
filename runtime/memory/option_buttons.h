#pragma once

#include <cstdint>

#include "frame/host/option_buttons.h"
#include "runtime/memory/option_button.h"
#include "runtime/shared/option_array.h"

namespace lumenkit::memory {

class OptionButtons final : public shared::OptionArray<OptionButton> {
 public:
    OptionButtons(Elements& elements, const host::OptionButtonDesign& design, host::Frame& frame,
                  host::OptionButtonEvents& events);

    OptionButton& Item(std::int16_t index) override;
    void Load(std::int16_t index) override;

 private:
    Elements& elements_;
};

}  // namespace lumenkit::memory
