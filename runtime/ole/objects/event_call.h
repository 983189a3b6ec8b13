// Raises events on their listeners.
#pragma once

#include <span>

#include "frame/automation/interface_table.h"
#include "runtime/ole/objects/connection_point.h"

namespace lumenkit::ole {

/// Calls the event on every listener. Arguments are passed by reference: a value that one listener
/// assigns is passed to the next one and is in `arguments` afterwards, in the type of the event's
/// parameter. Failures of listeners are ignored.
void RaiseEvent(const ConnectionPoint& point, const Event& event, std::span<Value> arguments);

}  // namespace lumenkit::ole
