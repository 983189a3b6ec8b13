#pragma once

#include <QWidget>
#include <list>

#include "runtime/qt/context.h"

namespace lumenkit::qt {

class Element;

/// The elements of one control or page, and what they have in common.
class Elements {
 public:
    /// `area` is the drawing area of the control, or the page. Where `userMode` is false, no
    /// element takes the keyboard focus. The arguments must outlive this object, and this object
    /// its elements.
    Elements(const Context& context, QWidget& area, bool userMode)
        : context_(context), area_(area), userMode_(userMode) {}

    const Context& GetContext() const { return context_; }
    QWidget& Area() const { return area_; }
    bool UserMode() const { return userMode_; }  ///< passed on to embedded controls
    /// By how much the area is larger than it is designed, in pixels.
    QSize Growth() const { return growth_; }
    void SetGrowth(QSize growth) { growth_ = growth; }

    /// Returns the existing elements in the order of creation.
    const std::list<Element*>& All() const { return all_; }

    // Called by the elements when they are created and destroyed.
    std::list<Element*>::iterator Register(Element& element) {
        return all_.insert(all_.end(), &element);
    }
    void Unregister(std::list<Element*>::iterator position) { all_.erase(position); }

 private:
    const Context& context_;
    QWidget& area_;
    bool userMode_;
    QSize growth_ = {0, 0};
    std::list<Element*> all_;
};

}  // namespace lumenkit::qt
