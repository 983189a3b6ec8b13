#pragma once

#include <list>

#include "runtime/memory/form.h"

namespace lumenkit::memory {

class Element;
class Surface;

/// The elements of one control or page, and what they have in common.
class Elements {
 public:
    /// `surface` is that of the control, null for a page. The arguments must outlive this object,
    /// and this object its elements.
    Elements(Form& form, const Surface* surface, bool userMode)
        : form_(form), surface_(surface), userMode_(userMode) {}

    Form& GetForm() const { return form_; }
    bool UserMode() const { return userMode_; }  ///< passed on to embedded controls
    /// Returns whether the control or page itself accepts input.
    bool AcceptInput() const;

    /// Returns the existing elements in the order of creation.
    const std::list<Element*>& All() const { return all_; }

    // Called by the elements when they are created and destroyed.
    std::list<Element*>::iterator Register(Element& element);
    void Unregister(std::list<Element*>::iterator position) { all_.erase(position); }

 private:
    Form& form_;
    const Surface* surface_;
    bool userMode_;
    std::list<Element*> all_;
};

}  // namespace lumenkit::memory
