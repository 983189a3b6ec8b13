#include "runtime/shared/event_handler.h"

#include <stdexcept>
#include <vector>

#include "frame/automation/event_arguments.h"
#include "frame/runtime_error.h"

namespace lumenkit::shared {

const Event& FindRaisedEvent(const EventTable* events, std::int32_t event,
                             std::span<const Value> arguments) {
    const Event* description = events == nullptr ? nullptr : events->Find(event);
    if (description == nullptr || description->parameters.size() != arguments.size()) {
        throw std::logic_error("the class raises no such event");
    }
    return *description;
}

void RunEventHandler(const EventHandler& handler, TextView name, std::span<Value> arguments) {
    const std::vector<Value> originals(arguments.begin(), arguments.end());
    const EventHandler running = handler;  // it may assign another handler
    try {
        running(name, arguments);
    } catch (const RuntimeError&) {
        // Errors of the handler are not passed to the control.
    }
    RestoreTypes(arguments, originals);
}

}  // namespace lumenkit::shared
