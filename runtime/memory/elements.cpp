#include "runtime/memory/elements.h"

#include "runtime/memory/surface.h"

namespace lumenkit::memory {

bool Elements::AcceptInput() const {
    return surface_ == nullptr || surface_->AcceptsInput();
}

std::list<Element*>::iterator Elements::Register(Element& element) {
    return all_.insert(all_.end(), &element);
}

}  // namespace lumenkit::memory
