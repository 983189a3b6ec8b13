#pragma once

namespace lumenkit::memory {

/// A constituent as the focus reaches it.
class FocusTarget {
 public:
    FocusTarget() = default;
    virtual ~FocusTarget() = default;
    FocusTarget(const FocusTarget&) = delete;
    FocusTarget& operator=(const FocusTarget&) = delete;

    virtual void ReceiveFocus() {}
    virtual void LoseFocus() {}
};

/// Keeps track of the constituent that has the focus.
class Focus {
 public:
    /// Moves the focus to `target`, or to nothing if it is null: notifies the holder that it loses
    /// the focus, then `target` that it gets it. Does nothing if `target` has the focus already.
    void MoveTo(FocusTarget* target);
    bool IsAt(const FocusTarget& target) const { return holder_ == &target; }
    /// Removes the focus from `target`, which is being destroyed, without notifying it.
    void Forget(const FocusTarget& target);

 private:
    FocusTarget* holder_ = nullptr;
};

}  // namespace lumenkit::memory
