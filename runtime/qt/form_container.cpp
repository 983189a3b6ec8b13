#include "runtime/qt/form_container.h"

#include <stdexcept>
#include <vector>

#include "frame/automation/event_arguments.h"
#include "frame/runtime_error.h"

namespace lumenkit::qt {

void FormContainer::PropertyChanged(TextView name) {
    if (onPropertyChanged) {
        onPropertyChanged(name);
    }
}

bool FormContainer::CanPropertyChange(TextView name) {
    return !mayPropertyChange || mayPropertyChange(name);
}

void FormContainer::RaiseEvent(std::int32_t event, std::span<Value> arguments) {
    const Event* description = events_ == nullptr ? nullptr : events_->Find(event);
    if (description == nullptr || description->parameters.size() != arguments.size()) {
        throw std::logic_error("the class raises no such event");
    }
    if (!onEvent) {
        return;
    }
    const std::vector<Value> originals(arguments.begin(), arguments.end());
    const auto handler = onEvent;  // it may assign another handler
    try {
        handler(description->name, arguments);
    } catch (const RuntimeError&) {
        // Errors of the container's handler do not reach the control.
    }
    RestoreTypes(arguments, originals);
}

}  // namespace lumenkit::qt
