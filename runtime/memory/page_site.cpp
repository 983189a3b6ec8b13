#include "runtime/memory/page_site.h"

#include "frame/runtime_error.h"

namespace lumenkit::memory {

std::int16_t SelectedControls::Count() const {
    faults_.Call(u"SelectedControls", u"Count");
    return static_cast<std::int16_t>(controls_.size());
}

ObjectRef SelectedControls::Item(std::int16_t index) {
    faults_.Call(u"SelectedControls", u"Item");
    if (index < 0 || static_cast<std::size_t>(index) >= controls_.size()) {
        Raise(ErrorNumber::SubscriptOutOfRange);
    }
    return controls_[static_cast<std::size_t>(index)];
}

}  // namespace lumenkit::memory
