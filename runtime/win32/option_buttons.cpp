#include "runtime/win32/option_buttons.h"

#include <memory>

namespace lumenkit::win32 {

OptionButtons::OptionButtons(const Elements& elements, const host::OptionButtonDesign& design,
                             host::Frame& frame, host::OptionButtonEvents& events)
    : OptionArray(
          [&elements](const host::OptionButtonDesign& element, OptionArray& group) {
              return std::make_unique<OptionButton>(elements, element, group);
          },
          design, frame, events) {}

}  // namespace lumenkit::win32
