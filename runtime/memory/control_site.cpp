#include "runtime/memory/control_site.h"

namespace lumenkit::memory {

void ControlSite::PropertyChanged(TextView name) {
    faults_.Call(u"Container", u"PropertyChanged");
    if (log_ != nullptr) {
        log_->Add(ChangedProperty{.control = controlName_, .name = Text(name)});
    }
}

bool ControlSite::CanPropertyChange(TextView name) {
    faults_.Call(u"Container", u"CanPropertyChange");
    const auto answer = allowed_.find(LCase(name));
    return answer == allowed_.end() || answer->second;
}

void ControlSite::AllowChange(TextView name, bool allowed) {
    allowed_[LCase(name)] = allowed;
}

void ControlSite::RaiseEvent(std::int32_t event, std::span<Value> arguments) {
    faults_.Call(u"Container", u"RaiseEvent");
    const Event& raised = shared::FindRaisedEvent(events_, event, arguments);
    if (log_ != nullptr) {
        log_->Add(RaisedEvent{.control = controlName_,
                              .name = Text(raised.name),
                              .arguments = {arguments.begin(), arguments.end()}});
    }
    if (handler_) {
        shared::RunEventHandler(handler_, raised.name, arguments);
    }
}

bool Ambient::UserMode() const {
    form_.Faults().Call(u"Ambient", u"UserMode");
    return userMode_;
}

host::FontRef Ambient::AmbientFont() const {
    form_.Faults().Call(u"Ambient", u"AmbientFont");
    return form_.AmbientFont().Clone();
}

Color Ambient::BackColor() const {
    form_.Faults().Call(u"Ambient", u"BackColor");
    return form_.AmbientBackColor();
}

}  // namespace lumenkit::memory
