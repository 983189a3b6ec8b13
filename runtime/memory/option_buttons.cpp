#include "runtime/memory/option_buttons.h"

namespace lumenkit::memory {

OptionButtons::OptionButtons(Constituents& owner, const host::OptionButtonDesign& design,
                             host::Frame& frame, host::OptionButtonEvents& events)
    : OptionArray(
          [&owner](const host::OptionButtonDesign& element, OptionGroup& group) {
              return std::make_unique<OptionButton>(owner, element, group);
          },
          design, frame, events),
      owner_(owner) {}

OptionButton& OptionButtons::Item(std::int16_t index) {
    owner_.GetForm().Faults().Call(u"OptionButtons", u"Item");
    return OptionArray::Item(index);
}

void OptionButtons::Load(std::int16_t index) {
    owner_.GetForm().Faults().Call(u"OptionButtons", u"Load");
    OptionArray::Load(index);
}

}  // namespace lumenkit::memory
