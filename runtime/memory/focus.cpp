#include "runtime/memory/focus.h"

#include "runtime/memory/element.h"

namespace lumenkit::memory {

void Focus::MoveTo(Element* element) {
    if (element == holder_) {
        return;
    }
    Element* loser = holder_;
    holder_ = element;
    if (loser != nullptr) {
        loser->LoseFocus();
    }
    if (element != nullptr && holder_ == element) {
        element->ReceiveFocus();
    }
}

void Focus::Forget(const Element& element) {
    if (holder_ == &element) {
        holder_ = nullptr;
    }
}

}  // namespace lumenkit::memory
