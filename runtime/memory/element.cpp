#include "runtime/memory/element.h"

#include <stdexcept>

#include "frame/host/accepted_values.h"
#include "frame/numbers.h"
#include "runtime/memory/form.h"

namespace lumenkit::memory {

namespace {

const Element* ParentOf(const host::Design& design) {
    if (design.parent == nullptr) {
        return nullptr;
    }
    const auto* parent = dynamic_cast<const Element*>(design.parent);
    if (parent == nullptr) {
        throw std::logic_error("the parent belongs to another runtime");
    }
    return parent;
}

Text FullNameOf(const host::Design& design) {
    Text name(design.name);
    if (design.index >= 0) {
        name += u'(';
        AppendDecimal(name, design.index);
        name += u')';
    }
    return name;
}

}  // namespace

Element::Element(Elements& elements, TextView kind, const host::Design& design)
    : elements_(elements),
      faults_(elements.GetForm().Faults()),
      kind_(kind),
      name_(design.name),
      index_(design.index),
      fullName_(FullNameOf(design)),
      parent_(ParentOf(design)),
      placement_(design.placement),
      visible_(design.visible),
      position_(elements.Register(*this)) {}

Element::~Element() {
    elements_.GetForm().GetFocus().Forget(*this);
    elements_.Unregister(position_);
}

bool Element::AcceptsInput() const {
    for (const Element* element = this; element != nullptr; element = element->parent_) {
        if (!element->visible_ || !element->enabled_) {
            return false;
        }
    }
    return elements_.AcceptInput();
}

PropertyList Element::Properties() const {
    return {{u"Left", placement_.left},     {u"Top", placement_.top}, {u"Width", placement_.width},
            {u"Height", placement_.height}, {u"Visible", visible_},   {u"Enabled", enabled_}};
}

void Element::MoveTo(const host::Placement& placement) {
    RequireSize(placement.width, placement.height);
    placement_ = placement;
}

}  // namespace lumenkit::memory
