#pragma once

namespace lumenkit::memory {

class Element;

/// Which constituent the keyboard belongs to.
class Focus {
 public:
    Element* Holder() const { return holder_; }
    /// The holder hears that it loses the focus, then `element` that it gets it; null takes it
    /// away. Nothing happens where nothing changes.
    void MoveTo(Element* element);
    /// `element` goes away.
    void Forget(const Element& element);

 private:
    Element* holder_ = nullptr;
};

}  // namespace lumenkit::memory
