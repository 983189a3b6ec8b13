#include "runtime/memory/hosted_control.h"

#include <stdexcept>

#include "runtime/memory/counted_bag.h"

namespace lumenkit::memory {

HostedControl::HostedControl(Form& form, const ClassDescriptor& type, const Placing& placing)
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
      constituents_(form, &surface_, placing.userMode, EmbedControl),
      reports_(form.GetInteraction()),
      host_{.surface = surface_,
            .container = site_,
            .ambient = ambient_,
            .extender = extender_,
            .screen = form.GetScreen(),
            .application = form.GetApplication(),
            .interaction = reports_,
            .constituents = constituents_} {
    if (type.createControl == nullptr) {
        throw std::logic_error("the class is no control");
    }
    extender_.SupportTag(placing.hasTag);
    control_ = type.createControl(host_);
    surface_.SetControl(control_.get());
    control_->UserControl_Initialize();
}

HostedControl::~HostedControl() {
    surface_.SetControl(nullptr);
}

void HostedControl::StartNew() {
    InitProperties();
    FinishStart();
}

void HostedControl::StartSaved(host::PropertyBag& bag) {
    ReadProperties(bag);
    FinishStart();
}

void HostedControl::FinishStart() {
    control_->UserControl_Resize();
    if (startsVisible_) {
        SetShown(true);
    }
}

void HostedControl::InitProperties() {
    control_->UserControl_InitProperties();
}

void HostedControl::ReadProperties(host::PropertyBag& bag) {
    CountedBag counted(form_.Faults(), bag);
    control_->UserControl_ReadProperties(counted);
}

host::Placement HostedControl::Place() const {
    return {.left = left_,
            .top = top_,
            .width = surface_.CurrentWidth(),
            .height = surface_.CurrentHeight()};
}

void HostedControl::Move(const host::Placement& placement) {
    left_ = placement.left;
    top_ = placement.top;
    Resize(placement.width, placement.height);
}

void HostedControl::Resize(float width, float height) {
    surface_.Resize(width, height);
}

void HostedControl::SetShown(bool shown) {
    const bool appears = shown && !surface_.IsShown();
    surface_.SetShown(shown);
    if (appears) {
        control_->UserControl_Show();
    }
}

PropertyBag HostedControl::Save() {
    PropertyBag bag;
    Save(bag);
    return bag;
}

void HostedControl::Save(host::PropertyBag& bag) {
    CountedBag counted(form_.Faults(), bag);
    shared::SaveControl(*control_, counted, reports_);
}

const DisplayList& HostedControl::Paint() {
    surface_.PaintControl();
    return surface_.Drawn();
}

ObjectRef HostedControl::SharedAutomation() {
    return {ObjectRef(), &Automation()};
}

Value HostedControl::Extender::Invoke(std::int32_t identifier, InvokeKind kind,
                                      std::span<Value> arguments) {
    if (const Member* member = Known(identifier)) {
        GetControl().GetForm().Faults().Call(u"Extender", member->name);
    }
    return host::Extender::Invoke(identifier, kind, arguments);
}

std::unique_ptr<HostedControl> PlaceControl(Form& form, TextView className, const Placing& placing,
                                            host::PropertyBag* bag) {
    auto control = std::make_unique<HostedControl>(form, form.FindClass(className), placing);
    if (bag == nullptr) {
        control->StartNew();
    } else {
        control->StartSaved(*bag);
    }
    return control;
}

}  // namespace lumenkit::memory
