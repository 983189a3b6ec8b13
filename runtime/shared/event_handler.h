#pragma once

#include <cstdint>
#include <functional>
#include <span>

#include "frame/automation/interface_table.h"
#include "frame/text.h"

namespace lumenkit::shared {

/// Receives an event by name. It may assign the arguments and call the control. A RuntimeError that
/// it throws does not reach the control.
using EventHandler = std::function<void(TextView name, std::span<Value> arguments)>;

/// Returns the event that a control raises. `events` is null for a class without events. Throws
/// std::logic_error for an event that the class does not have and for a wrong number of arguments.
const Event& FindRaisedEvent(const EventTable* events, std::int32_t event,
                             std::span<const Value> arguments);

/// Runs `handler`. An argument that it changed to another type is converted back; one that does not
/// convert gets its original value. The handler may be replaced while it runs.
void RunEventHandler(const EventHandler& handler, TextView name, std::span<Value> arguments);

}  // namespace lumenkit::shared
