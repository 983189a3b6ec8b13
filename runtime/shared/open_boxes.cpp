#include "runtime/shared/open_boxes.h"

#include <algorithm>

namespace lumenkit::shared {

OpenBoxes::Scope::~Scope() {
    if (--boxes_.count_ > 0) {
        return;
    }
    while (!boxes_.waiters_.empty()) {
        BoxWaiter* const waiter = boxes_.waiters_.back();
        boxes_.waiters_.pop_back();
        waiter->BoxesClosed();
    }
}

void OpenBoxes::Add(BoxWaiter& waiter) {
    if (std::ranges::find(waiters_, &waiter) == waiters_.end()) {
        waiters_.push_back(&waiter);
    }
}

void OpenBoxes::Remove(BoxWaiter& waiter) {
    std::erase(waiters_, &waiter);
}

}  // namespace lumenkit::shared
