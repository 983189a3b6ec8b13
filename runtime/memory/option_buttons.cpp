#include "runtime/memory/option_buttons.h"

namespace lumenkit::memory {

OptionButtons::OptionButtons(Elements& elements, const host::OptionButtonDesign& design,
                             host::Frame& frame, host::OptionButtonEvents& events)
    : OptionArray(
          [&elements](const host::OptionButtonDesign& element, OptionGroup& group) {
              return std::make_unique<OptionButton>(elements, element, group);
          },
          design, frame, events),
      elements_(elements) {}

OptionButton& OptionButtons::Item(std::int16_t index) {
    elements_.GetForm().Faults().Call(u"OptionButtons", u"Item");
    return OptionArray::Item(index);
}

void OptionButtons::Load(std::int16_t index) {
    elements_.GetForm().Faults().Call(u"OptionButtons", u"Load");
    OptionArray::Load(index);
}

}  // namespace lumenkit::memory
