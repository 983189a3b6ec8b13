#include "runtime/memory/control_site.h"

#include <stdexcept>
#include <vector>

#include "frame/automation/event_arguments.h"
#include "frame/runtime_error.h"

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
    const Event* description = events_ == nullptr ? nullptr : events_->Find(event);
    if (description == nullptr || description->parameters.size() != arguments.size()) {
        throw std::logic_error("the class raises no such event");
    }
    if (log_ != nullptr) {
        log_->Add(RaisedEvent{.control = controlName_,
                              .name = Text(description->name),
                              .arguments = {arguments.begin(), arguments.end()}});
    }
    if (handler_) {
        RunHandler(description->name, arguments);
    }
}

void ControlSite::RunHandler(TextView name, std::span<Value> arguments) {
    const std::vector<Value> originals(arguments.begin(), arguments.end());
    const EventHandler handler = handler_;  // a copy: the handler may be replaced while it runs
    try {
        handler(name, arguments);
    } catch (const RuntimeError&) {
        // Errors of the handler are not passed to the control.
    }
    RestoreTypes(arguments, originals);
}

}  // namespace lumenkit::memory
