#include "runtime/qt/form_container.h"

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
    const Event& raised = shared::FindRaisedEvent(events_, event, arguments);
    if (onEvent) {
        shared::RunEventHandler(onEvent, raised.name, arguments);
    }
}

}  // namespace lumenkit::qt
