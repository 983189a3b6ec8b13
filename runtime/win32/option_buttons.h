#pragma once

#include "frame/host/option_buttons.h"
#include "runtime/win32/option_button.h"

namespace lumenkit::win32 {

class OptionButtons final : public OptionGroup {
 public:
    OptionButtons(const Elements& elements, const host::OptionButtonDesign& design,
                  host::Frame& frame, host::OptionButtonEvents& events);
};

}  // namespace lumenkit::win32
