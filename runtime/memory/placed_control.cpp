#include "runtime/memory/placed_control.h"

#include <stdexcept>

#include "runtime/memory/counted_bag.h"

namespace lumenkit::memory {

PlacedControl::PlacedControl(Form& form, const ClassDescriptor& type, const Placing& placing)
    : form_(form),
      type_(type),
      name_(placing.name.empty() ? form.NewName(type.name) : Text(placing.name)),
      tag_(placing.tag),
      left_(placing.left),
      top_(placing.top),
      startsVisible_(placing.visible),
      surface_(form.SharedFaults(), placing.width, placing.height),
      site_(form.Faults(), placing.isLogged ? &form.GetLog() : nullptr, type.eventTable, name_),
      ambient_(form, placing.userMode),
      extender_(*this),
      constituents_(form, &surface_, placing.userMode),
      host_{.surface = surface_,
            .container = site_,
            .ambient = ambient_,
            .extender = extender_,
            .screen = form.GetScreen(),
            .application = form.GetApplication(),
            .interaction = form.GetInteraction(),
            .constituents = constituents_} {
    if (type.createControl == nullptr) {
        throw std::logic_error("the class is no control");
    }
    extender_.SupportTag(placing.hasTag);
    control_ = type.createControl(host_);
    surface_.SetControl(control_.get());
    control_->UserControl_Initialize();
}

PlacedControl::~PlacedControl() {
    surface_.SetControl(nullptr);
}

void PlacedControl::StartNew() {
    InitProperties();
    FinishStart();
}

void PlacedControl::StartSaved(host::PropertyBag& bag) {
    ReadProperties(bag);
    FinishStart();
}

void PlacedControl::FinishStart() {
    control_->UserControl_Resize();
    if (startsVisible_) {
        Show();
    }
}

void PlacedControl::InitProperties() {
    control_->UserControl_InitProperties();
}

void PlacedControl::ReadProperties(host::PropertyBag& bag) {
    CountedBag counted(form_.Faults(), bag);
    control_->UserControl_ReadProperties(counted);
}

void PlacedControl::Show() {
    if (!surface_.IsShown()) {
        surface_.SetShown(true);
        control_->UserControl_Show();
    }
}

void PlacedControl::Hide() {
    surface_.SetShown(false);
}

void PlacedControl::Resize(float width, float height) {
    surface_.Resize(width, height);
}

void PlacedControl::Move(float left, float top) {
    left_ = left;
    top_ = top;
}

PropertyBag PlacedControl::Save() {
    PropertyBag bag;
    Save(bag);
    return bag;
}

void PlacedControl::Save(host::PropertyBag& bag) {
    CountedBag counted(form_.Faults(), bag);
    control_->UserControl_WriteProperties(counted);
}

const DisplayList& PlacedControl::Paint() {
    surface_.Paint();
    return surface_.Drawn();
}

ObjectRef PlacedControl::SharedAutomation() {
    return {ObjectRef(), &Automation()};
}

std::unique_ptr<PlacedControl> PlaceControl(Form& form, TextView className, const Placing& placing,
                                            host::PropertyBag* bag) {
    auto control = std::make_unique<PlacedControl>(form, form.FindClass(className), placing);
    if (bag == nullptr) {
        control->StartNew();
    } else {
        control->StartSaved(*bag);
    }
    return control;
}

}  // namespace lumenkit::memory
