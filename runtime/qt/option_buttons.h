#pragma once

#include <cstdint>

#include "frame/host/option_buttons.h"
#include "runtime/qt/option_button.h"
#include "runtime/shared/option_array.h"

namespace lumenkit::qt {

/// The Tab order of the buttons is the order of their indices.
class OptionButtons final : public shared::OptionArray<OptionButton> {
 public:
    OptionButtons(Elements& elements, const host::OptionButtonDesign& design, host::Frame& frame,
                  host::OptionButtonEvents& events);

    void Load(std::int16_t index) override;
};

}  // namespace lumenkit::qt
