#include "runtime/memory/focus.h"

namespace lumenkit::memory {

void Focus::MoveTo(FocusTarget* target) {
    if (target == holder_) {
        return;
    }
    FocusTarget* loser = holder_;
    holder_ = target;
    if (loser != nullptr) {
        loser->LoseFocus();
    }
    if (target != nullptr && holder_ == target) {
        target->ReceiveFocus();
    }
}

void Focus::Forget(const FocusTarget& target) {
    if (holder_ == &target) {
        holder_ = nullptr;
    }
}

}  // namespace lumenkit::memory
