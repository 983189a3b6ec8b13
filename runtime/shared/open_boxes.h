#pragma once

#include <vector>

namespace lumenkit::shared {

/// Notified when no message box is open any more.
class BoxWaiter {
 public:
    virtual ~BoxWaiter() = default;
    virtual void BoxesClosed() = 0;
};

/// The open message boxes of one thread. A control whose picture is outdated does not paint while a
/// box is open, because its errors would open further boxes above that one. It waits here.
class OpenBoxes {
 public:
    /// Add this scope around the call that shows a box.
    class Scope {
     public:
        explicit Scope(OpenBoxes& boxes) : boxes_(boxes) { ++boxes_.count_; }
        ~Scope();
        Scope(const Scope&) = delete;
        Scope& operator=(const Scope&) = delete;

     private:
        OpenBoxes& boxes_;
    };

    bool IsAny() const { return count_ > 0; }
    /// Calls BoxesClosed of `waiter` once, when the last box is closed. A waiter that waits already
    /// is not added again, and must be removed before it is destroyed.
    void Add(BoxWaiter& waiter);
    void Remove(BoxWaiter& waiter);

 private:
    std::vector<BoxWaiter*> waiters_;
    int count_ = 0;
};

}  // namespace lumenkit::shared
