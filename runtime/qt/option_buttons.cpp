#include "runtime/qt/option_buttons.h"

#include <iterator>

namespace lumenkit::qt {

OptionButtons::OptionButtons(Elements& elements, const host::OptionButtonDesign& design,
                             host::Frame& frame, host::OptionButtonEvents& events)
    : OptionArray(
          [&elements](const host::OptionButtonDesign& element, OptionGroup& group) {
              return std::make_unique<OptionButton>(elements, element, group);
          },
          design, frame, events) {}

void OptionButtons::Load(std::int16_t index) {
    OptionArray::Load(index);
    const auto loaded = All().find(index);
    QWidget::setTabOrder(std::prev(loaded)->second->Widget(), loaded->second->Widget());
}

}  // namespace lumenkit::qt
