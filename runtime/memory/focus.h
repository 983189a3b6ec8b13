#pragma once

namespace lumenkit::memory {

class Element;

/// Keeps track of the constituent that has the focus.
class Focus {
 public:
    Element* Holder() const { return holder_; }
    /// Moves the focus to `element`, or to nothing if it is null: notifies the holder that it loses
    /// the focus, then `element` that it gets it. Does nothing if `element` has the focus already.
    void MoveTo(Element* element);
    /// Removes the focus from `element`, which is being destroyed, without notifying it.
    void Forget(const Element& element);

 private:
    Element* holder_ = nullptr;
};

}  // namespace lumenkit::memory
